// Tests that what a recipe carries follows it through the operations on objects, even if one fails or the
// program is killed in the middle.
#include <filesystem>
#include <unistd.h>

#include "ObjectsTest.h"
#include "store/CarriedData.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr DateTime kMay{2026, 5, 4, 9, 30, 5};
constexpr const char* kCarried = "SELECT RECIPE_ID, CONTENT FROM CARRIED ORDER BY ID";

// Puts the folder Ales (1) with the folder Stouts (2) into a database without rows; Dry (1) in Stouts, Mild
// (2) in Ales, Best (3) at the top level. Each recipe carries its name.
void Fill(Database& database) {
    database.Execute(
        "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'Ales', FALSE), (1, 'Stouts', FALSE)");
    database.Execute(
        "INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Dry', 0, 2), ('Mild', 0, 1), ('Best', 0, "
        "0)");
    CarriedData carried(database);
    carried.Keep(1, kCarriedBeerXml, "old.xml", kMay, "Dry");
    carried.Keep(2, kCarriedBeerXml, "old.xml", kMay, "Mild");
    carried.Keep(3, kCarriedBeerXml, "old.xml", kMay, "Best");
}

// A recipe that is there carries its own name and nothing else; nothing else is carried. Names that were
// changed begin with the old one.
void ExpectOwnNames(Database& database, const std::string& when) {
    const auto count = [&](const std::string& sql) {
        return database.OpenRecordset("SELECT COUNT(*) FROM " + sql).Fields(0).Integer();
    };
    EXPECT_EQ(count("RECIPES WHERE NOT EXISTS (SELECT * FROM CARRIED WHERE RECIPE_ID = RECIPES.ID AND "
                    "NAME LIKE CONTENT || '%')"),
              0)
        << when;
    EXPECT_EQ(count("CARRIED"), count("RECIPES")) << when;
}

class CarriedObjects : public Objects {
  protected:
    CarriedObjects() {
        Fill(*main.db);
        main.tree.InitFromDatabase();
    }
};

TEST_F(CarriedObjects, EndsWithADeletedRecipe) {
    io.DeleteRecipeById(3);
    EXPECT_THAT(Select(kCarried), ElementsAre("1 Dry", "2 Mild"));
    EXPECT_EQ(io.DeleteRecipeByName(" dry "), 1);
    EXPECT_EQ(io.DeleteRecipeByName("none"), std::nullopt);
    EXPECT_THAT(Select(kCarried), ElementsAre("2 Mild"));
}

TEST_F(CarriedObjects, EndsWithEachRecipeOfADeletedFolder) {
    io.DeleteObject("F:1");
    EXPECT_THAT(Select(kCarried), ElementsAre("3 Best"));
}

TEST_F(CarriedObjects, StaysWhenARecipeIsRenamedOrMoved) {
    EXPECT_TRUE(io.RenameRecipe(2, "Mild Ale"));
    EXPECT_TRUE(io.MoveObject("R:2:0", "F:2"));
    EXPECT_THAT(Select(kCarried), ElementsAre("1 Dry", "2 Mild", "3 Best"));
}

TEST_F(CarriedObjects, StaysWithARecipeThatIsStillThereAfterAFailure) {
    const std::vector<std::function<void()>> operations = {[&] { io.DeleteObject("F:1"); },
                                                           [&] { io.DeleteRecipeById(3); },
                                                           [&] { io.RenameRecipe(2, "Mild Ale"); }};
    for (const auto& operation : operations) {
        int failures = 0;
        for (bool failed = true; failed; ++failures) {
            main.db->ExecuteNative(
                "DELETE FROM FOLDERS; DELETE FROM RECIPES; DELETE FROM CARRIED;"
                "DELETE FROM sqlite_sequence");
            Fill(*main.db);
            main.tree.InitFromDatabase();
            int count = 0;
            main.db->SetStatementHook([&](std::string_view) {
                if (count++ == failures) throw Error("Test", "the disk is on fire", 7);
            });
            try {
                operation();
            } catch (const Error& error) {
                EXPECT_EQ(error.Description(), "the disk is on fire");
            }
            main.db->SetStatementHook(nullptr);
            failed = count > failures;
            // What no recipe has any more may remain after a failure; it belongs to nobody.
            main.Execute("DELETE FROM CARRIED WHERE NOT RECIPE_ID IN (SELECT ID FROM RECIPES)");
            ExpectOwnNames(*main.db, "failed at statement " + std::to_string(failures));
        }
        EXPECT_GT(failures, 2);
    }
}

TEST(CarriedObjectsFile, IsAsOldAsItsRecipeAfterAKill) {
    const std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) / "tunwright_carried_objects";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const std::string made = (folder / "made.mdb").string(), path = (folder / "a.mdb").string();
    {
        const auto database = Database::CreateDatabase(made, "");
        CreateSchema(*database);
        Fill(*database);
    }
    int statement = 0;
    for (bool died = true; died; ++statement) {
        std::filesystem::copy_file(made, path, std::filesystem::copy_options::overwrite_existing);
        died = DiesIn([&] {
            const auto database = OpenMainDatabase(path);
            // A small cache, so that half-done pages reach the file before the end.
            database->ExecuteNative("PRAGMA cache_size=3");
            TWTree tree(database.get());
            tree.InitFromDatabase();
            TreeObjects objects(tree);
            RecordingPlatform outside;
            NoticeRecorder listener;
            DB_IO io(*database, objects, outside.messages, outside.clock, listener);
            DieAt(*database, statement);
            io.DeleteObject("F:1");
        });
        const auto database = OpenMainDatabase(path);
        ExpectOwnNames(*database, "killed before statement " + std::to_string(statement));
        EXPECT_EQ(database->OpenRecordset("SELECT COUNT(*) FROM RECIPES").Fields(0).Integer(), died ? 3 : 1);
    }
    // Two folders: two reads and one DELETE for each; two recipes: six DELETEs for each. Then the run that
    // survives.
    EXPECT_EQ(statement, 2 * 3 + 2 * 6 + 1);
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tw::test
