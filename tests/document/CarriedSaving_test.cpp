// Tests that what a recipe carries follows it through its saves, even if one fails or the program is killed
// in the middle.
#include <filesystem>
#include <gmock/gmock.h>

#include "DocumentTest.h"
#include "store/CarriedData.h"
#include "store/ExchangeFile.h"
#include "store/RecipeCopy.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr DateTime kMay{2026, 5, 4, 9, 30, 5};

void KeepFor(Database& database, const std::string& recipe, std::string_view content) {
    const std::optional<std::int64_t> id = RecipeId(database, recipe);
    ASSERT_TRUE(id.has_value());
    CarriedData(database).Keep(*id, kCarriedBeerXml, "old.xml", kMay, content);
}

// Returns "NAME: CONTENT" for everything that is carried, with "-" for what no recipe has.
Log Carried(Database& database) {
    Log lines;
    for (Recordset rows =
             database.OpenRecordset("SELECT RECIPES.NAME, CONTENT FROM CARRIED LEFT JOIN RECIPES ON "
                                    "RECIPES.ID = RECIPE_ID ORDER BY RECIPES.NAME, CARRIED.ID");
         !rows.AtEnd(); rows.MoveNext())
        lines.push_back((rows.Fields(0).IsNull() ? "-" : rows.Fields(0).Text()) + ": " +
                        rows.Fields(1).Text());
    return lines;
}

class CarriedSaving : public DocumentTest {
  protected:
    CarriedSaving() {
        for (const char* name : {"Mild", "Stout"}) {
            New();
            SaveAs(name);
            KeepFor(*database, name, name);
        }
        Open("Mild");
    }
    bool Save() { return document->Storage().Save(tw::SaveAs::No, Asking::Quietly); }
    bool SaveUnder(std::string_view name) { return document->Storage().SaveUnder(name, 0, Asking::Quietly); }
    void Rename(std::string_view name) { document->Fields().SetText(R().txtName, name); }
    Log Carried() { return test::Carried(*database); }
};

TEST_F(CarriedSaving, ItsOwnSavesTakeItAlong) {
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(Save());
    EXPECT_THAT(Carried(), ElementsAre("Mild: Mild", "Stout: Stout"));
    Rename("Light Mild");
    EXPECT_TRUE(Save());
    EXPECT_THAT(Carried(), ElementsAre("Light Mild: Mild", "Stout: Stout"));
    EXPECT_TRUE(SaveUnder("light MILD"));
    EXPECT_THAT(Carried(), ElementsAre("light MILD: Mild", "Stout: Stout"));
}

TEST_F(CarriedSaving, ASaveUnderAnotherNameCopiesIt) {
    EXPECT_TRUE(SaveUnder("Second"));
    EXPECT_THAT(Carried(), ElementsAre("Mild: Mild", "Second: Mild", "Stout: Stout"));
    // From now on the window is that of the copy.
    EXPECT_TRUE(Save());
    EXPECT_TRUE(SaveUnder("Third"));
    EXPECT_THAT(Carried(), ElementsAre("Mild: Mild", "Second: Mild", "Stout: Stout", "Third: Mild"));
}

TEST_F(CarriedSaving, AnotherRecipeLosesItWithItsName) {
    EXPECT_TRUE(SaveUnder("Stout"));
    EXPECT_THAT(Carried(), ElementsAre("Mild: Mild", "Stout: Mild"));
    New();
    Rename("Stout");
    document->SetFolderID(0);
    EXPECT_TRUE(Save());
    EXPECT_THAT(Carried(), ElementsAre("Mild: Mild"));
    Open("Mild");
    Rename("Stout");
    EXPECT_TRUE(Save());
    EXPECT_THAT(Carried(), ElementsAre("Stout: Mild"));
}

TEST_F(CarriedSaving, ARecipeSavedAfterItsDeletionCarriesNothing) {
    host.DeleteRecipe("Mild");
    EXPECT_THAT(Carried(), ElementsAre("Stout: Stout"));
    EXPECT_TRUE(Save());
    EXPECT_TRUE(Save());
    EXPECT_THAT(Carried(), ElementsAre("Stout: Stout"));
}

TEST_F(CarriedSaving, ARestoredRecipeKeepsIt) {
    Set(R().txtNotes, "unsaved");
    const RecipeSnapshot snapshot = document->Storage().TakeSnapshot();
    // A save in between gives the stored recipe another id.
    EXPECT_TRUE(Save());
    New().Storage().Restore(snapshot);
    EXPECT_TRUE(Save());
    EXPECT_THAT(Carried(), ElementsAre("Mild: Mild", "Stout: Stout"));
    // The recipe was deleted before it could be restored.
    host.DeleteRecipe("Mild");
    New().Storage().Restore(snapshot);
    EXPECT_TRUE(SaveUnder("Mild"));
    EXPECT_THAT(Carried(), ElementsAre("Stout: Stout"));
}

TEST_F(CarriedSaving, UndoLeavesItAlone) {
    Set(R().txtNotes, "changed");
    document->Replay().Undo();
    document->Replay().Redo();
    EXPECT_THAT(Carried(), ElementsAre("Mild: Mild", "Stout: Stout"));
}

// An import overwrites the stored recipe while its window is open; the next save of the window replaces the
// imported recipe and takes over what that carries.
TEST_F(CarriedSaving, AnOpenRecipeGoesOnWithTheOneThatOverwroteIt) {
    class Overwriting : public CopyHost {
      public:
        bool Continue(const std::string&, int, int) override { return true; }
        ConflictAnswer ResolveConflict(const std::string&, const std::string&) override {
            return {ConflictResponse::Overwrite, {}};
        }
        bool ContinueAfter(const std::string&) override { return true; }
    };
    Overwriting answers;
    const auto file = Database::FromImage({});
    CreateExchangeTables(*database, *file);
    RecipeCopier copier(*database, *file, answers);
    const Log names = {"Mild"};
    StylesNotImported unknown;
    EXPECT_EQ(copier.ExportRecipes(names), 1);
    EXPECT_EQ(copier.ImportRecipes(names, 0, unknown), 1);
    EXPECT_THAT(Carried(), ElementsAre("Stout: Stout"));
    KeepFor(*database, "Mild", "imported");
    EXPECT_TRUE(Save());
    EXPECT_THAT(Carried(), ElementsAre("Mild: imported", "Stout: Stout"));
}

struct SaveWay {
    const char* name;
    const char* newName;  // the name under which Mild is saved
    bool copies;
    std::vector<std::string> carried;  // afterwards
};

const SaveWay kWays[] = {
    {"AgainUnderItsName", "Mild", false, {"Mild: Mild", "Stout: Stout"}},
    {"UnderAnEditedName", "Light", false, {"Light: Mild", "Stout: Stout"}},
    {"UnderAnEditedNameThatAnotherHas", "Stout", false, {"Stout: Mild"}},
    {"AsACopy", "Light", true, {"Light: Mild", "Mild: Mild", "Stout: Stout"}},
    {"AsACopyOverAnother", "Stout", true, {"Mild: Mild", "Stout: Mild"}},
    {"AsACopyOverItself", "Mild", true, {"Mild: Mild", "Stout: Stout"}},
};

void SaveThatWay(RecipeDocument& document, const SaveWay& way) {
    bool saved = false;
    if (way.copies) {
        saved = document.Storage().SaveUnder(way.newName, 0, Asking::Quietly);
    } else {
        document.Fields().SetText(document.Record().txtName, way.newName);
        saved = document.Storage().Save(SaveAs::No, Asking::Quietly);
    }
    EXPECT_TRUE(saved);
}

class CarriedSavingWays : public CarriedSaving, public testing::WithParamInterface<SaveWay> {
  protected:
    // Runs strike, which makes the statement fail, before each statement of the save in turn; then settle,
    // which gets the time of the failure; then saves again, which must end as if nothing had failed. more is
    // what settle has added.
    void FailEverywhere(const std::function<void()>& strike,
                        const std::function<void(RecordingHost& host, const std::string& when)>& settle,
                        const Log& more) {
        int failures = 0;
        for (bool failed = true; failed; ++failures) {
            database = CreateMainDatabaseInMemory();
            FillCatalogue(*database);
            RecordingHost ownHost(*database, platform.clock);
            RecipeDocument stout(ownHost, platform.platform, *database, colors, 1);
            RecipeDocument mild(ownHost, platform.platform, *database, colors, 2);
            ownHost.documents = {&stout, &mild};
            EXPECT_TRUE(stout.Storage().SaveUnder("Stout", 0, Asking::Quietly));
            EXPECT_TRUE(mild.Storage().SaveUnder("Mild", 0, Asking::Quietly));
            KeepFor(*database, "Stout", "Stout");
            KeepFor(*database, "Mild", "Mild");
            int count = 0;
            database->SetStatementHook([&](std::string_view) {
                if (count++ == failures) strike();
            });
            failed = false;
            try {
                SaveThatWay(mild, GetParam());
            } catch (const Error&) {
                failed = true;
            }
            database->SetStatementHook({});
            const std::string when = "failed at statement " + std::to_string(failures);
            if (failed) settle(ownHost, when);
            SaveThatWay(mild, GetParam());
            // What an overwritten recipe carried may remain after a failure; it belongs to nobody.
            database->Execute("DELETE FROM CARRIED WHERE NOT RECIPE_ID IN (SELECT ID FROM RECIPES)");
            Log expected = GetParam().carried;
            if (failed) expected.insert(expected.end(), more.begin(), more.end());
            EXPECT_EQ(Carried(), expected) << when;
        }
        EXPECT_GT(failures, 12);
    }
};

TEST_P(CarriedSavingWays, LoseNothingByAFailureAtAnyStatement) {
    const auto settle = [&](RecordingHost&, const std::string& when) {
        const Log after = Carried();
        // Unless the new row is missing, or what it carries could not be moved, everything has its recipe.
        EXPECT_LE(std::ranges::count_if(after, [](const std::string& line) { return line[0] == '-'; }), 1)
            << when;
        EXPECT_THAT(after, testing::Contains(testing::EndsWith(": Mild"))) << when;
    };
    FailEverywhere([] { throw Error("Database", "disk I/O error", 10); }, settle, {});
}

// Another recipe then gets the id that the undone save had given to this one.
TEST_P(CarriedSavingWays, LoseNothingWhenTheDiskUndoesThem) {
    const auto settle = [&](RecordingHost& ownHost, const std::string& when) {
        EXPECT_EQ(Carried(), (Log{"Mild: Mild", "Stout: Stout"})) << when;
        RecipeDocument third(ownHost, platform.platform, *database, colors, 3);
        EXPECT_TRUE(third.Storage().SaveUnder("Third", 0, Asking::Quietly));
        KeepFor(*database, "Third", "Third");
    };
    FailEverywhere([&] { database->ExecuteNative("ROLLBACK"); }, settle, {"Third: Third"});
}

TEST_P(CarriedSavingWays, AreOneUnitWithItsRecipe) {
    const std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) / ("tunwright_carried_" + std::string(GetParam().name));
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const std::string made = (folder / "made.mdb").string(), path = (folder / "a.mdb").string();
    {
        const auto file = Database::CreateDatabase(made, "");
        CreateSchema(*file);
        RecordingHost ownHost(*file, platform.clock);
        for (const char* name : {"Stout", "Mild"}) {
            RecipeDocument recipe(ownHost, platform.platform, *file, colors, 1);
            EXPECT_TRUE(recipe.Storage().SaveUnder(name, 0, Asking::Quietly));
            KeepFor(*file, name, name);
        }
    }
    int statement = 0;
    for (bool died = true; died; ++statement) {
        std::filesystem::copy_file(made, path, std::filesystem::copy_options::overwrite_existing);
        died = DiesIn([&] {
            const auto file = OpenMainDatabase(path);
            // A small cache, so that half-done pages reach the file before the end.
            file->ExecuteNative("PRAGMA cache_size=3");
            RecordingHost ownHost(*file, platform.clock);
            RecipeDocument mild(ownHost, platform.platform, *file, colors, 1);
            mild.Storage().Open("Mild");
            DieAt(*file, statement);
            SaveThatWay(mild, GetParam());
        });
        EXPECT_EQ(test::Carried(*OpenMainDatabase(path)),
                  died ? (Log{"Mild: Mild", "Stout: Stout"}) : GetParam().carried)
            << "killed before statement " << statement;
    }
    EXPECT_GT(statement, 12);
    std::filesystem::remove_all(folder);
}

INSTANTIATE_TEST_SUITE_P(Saves, CarriedSavingWays, testing::ValuesIn(kWays),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace tw::test
