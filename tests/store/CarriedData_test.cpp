#include "store/CarriedData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "StoreSupport.h"
#include "store/ExchangeFile.h"
#include "store/RecipeCopy.h"
#include "store/RecipeFollowers.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

using testing::ElementsAre;

constexpr DateTime kMay{2026, 5, 4, 9, 30, 5};
constexpr const char* kContents = "SELECT RECIPE_ID, CONTENT FROM CARRIED ORDER BY ID";

std::vector<std::string> ContentsOf(const CarriedData& carried, std::int64_t recipeId) {
    std::vector<std::string> contents;
    for (const CarriedFragment& fragment : carried.Of(recipeId)) contents.push_back(fragment.content);
    return contents;
}

class CarriedDataTest : public testing::Test {
  protected:
    void Keep(std::int64_t recipeId, std::string_view content) {
        carried.Keep(recipeId, kCarriedBeerXml, "old.xml", kMay, content);
    }
    std::string TableCount() {
        return Cell(*db, "SELECT COUNT(*) FROM sqlite_schema WHERE name = 'CARRIED'");
    }

    const std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
    CarriedData carried{*db};
};

TEST_F(CarriedDataTest, HasItsTableFromTheFirstFragmentOn) {
    EXPECT_FALSE(carried.IsThere());
    EXPECT_FALSE(carried.IsCarriedFor(1));
    EXPECT_TRUE(carried.Of(1).empty());
    carried.Drop(1);
    RecipeEnded(*db, 1, RecipeEnd::Deleted);
    RecipeSaved(*db, 1, 2);
    RecipeCopied(*db, 1, 2);
    EXPECT_EQ(TableCount(), "0");
    Keep(1, "<RECIPE/>");
    EXPECT_EQ(TableCount(), "1");
    EXPECT_TRUE(carried.IsThere());
    EXPECT_TRUE(carried.IsCarriedFor(1));
    EXPECT_FALSE(carried.IsCarriedFor(2));
}

// Without the table, nothing may slow a save down or appear among its statements.
TEST_F(CarriedDataTest, AsksNothingOfADatabaseWithoutIt) {
    int statements = 0;
    db->SetStatementHook([&](std::string_view) { ++statements; });
    RecipeEnds(*db, 1, RecipeEnd::SavedAnew);
    RecipeEnded(*db, 1, RecipeEnd::SavedAnew);
    RecipeSaved(*db, 1, 2);
    RecipeCopied(*db, 1, 2);
    RecipeRenamed(*db, 1);
    RecipeImported(*db, 1);
    EXPECT_FALSE(carried.IsCarriedFor(1));
    EXPECT_EQ(statements, 0);
}

TEST_F(CarriedDataTest, TellsWhereAFragmentCameFrom) {
    carried.Keep(7, kCarriedBeerJson, "Ann's \"best\".json", kMay, "{}");
    const std::vector<CarriedFragment> fragments = carried.Of(7);
    ASSERT_EQ(fragments.size(), 1u);
    EXPECT_EQ(fragments[0].format, "beerjson");
    EXPECT_EQ(fragments[0].source, "Ann's \"best\".json");
    EXPECT_EQ(fragments[0].imported, "05/04/2026 09:30:05");
}

TEST_F(CarriedDataTest, GivesAnyBytesBack) {
    const std::vector<std::string> contents = {"",
                                               "007",
                                               "1e400",
                                               " blanks \t\r\n",
                                               "it's \"quoted\" ?",
                                               std::string("nul\0inside", 10),
                                               "\xff\xfe",
                                               "\xF0\x9F\x8D\xBA",
                                               std::string(3'000'000, 'x')};
    std::int64_t recipe = 0;
    for (const std::string& content : contents) {
        Keep(++recipe, content);
        EXPECT_THAT(ContentsOf(carried, recipe), ElementsAre(content)) << content.substr(0, 20);
    }
}

TEST_F(CarriedDataTest, NamesTheNewestFirstAndDropsAllOfOneRecipe) {
    Keep(1, "a");
    Keep(2, "b");
    Keep(1, "c");
    EXPECT_THAT(ContentsOf(carried, 1), ElementsAre("c", "a"));
    carried.Drop(1);
    EXPECT_TRUE(carried.Of(1).empty());
    EXPECT_THAT(ContentsOf(carried, 2), ElementsAre("b"));
}

TEST_F(CarriedDataTest, FollowsItsRecipe) {
    Keep(1, "a");
    Keep(1, "b");
    Keep(9, "other");
    RecipeEnds(*db, 1, RecipeEnd::SavedAnew);
    RecipeEnded(*db, 1, RecipeEnd::SavedAnew);
    RecipeSaved(*db, 1, 2);
    EXPECT_EQ(Select(*db, kContents), (Rows{{"2", "a"}, {"2", "b"}, {"9", "other"}}));
    RecipeCopied(*db, 2, 3);
    EXPECT_THAT(ContentsOf(carried, 3), ElementsAre("b", "a"));
    EXPECT_EQ(carried.Of(3)[0].imported, "05/04/2026 09:30:05");
    RecipeRenamed(*db, 2);
    RecipeImported(*db, 2);
    RecipeSaved(*db, std::nullopt, 4);
    EXPECT_THAT(ContentsOf(carried, 2), ElementsAre("b", "a"));
    // It is still there before the row has gone.
    RecipeEnds(*db, 2, RecipeEnd::Deleted);
    EXPECT_TRUE(carried.IsCarriedFor(2));
    RecipeEnded(*db, 2, RecipeEnd::Deleted);
    EXPECT_FALSE(carried.IsCarriedFor(2));
    RecipeEnded(*db, 3, RecipeEnd::Overwritten);
    EXPECT_EQ(Select(*db, kContents), (Rows{{"9", "other"}}));
}

TEST_F(CarriedDataTest, LeavesATableOfAnotherShapeAlone) {
    db->ExecuteNative("CREATE TABLE CARRIED (RECIPE_ID INTEGER); INSERT INTO CARRIED VALUES (1)");
    EXPECT_FALSE(carried.IsCarriedFor(1));
    RecipeEnded(*db, 1, RecipeEnd::Deleted);
    RecipeSaved(*db, 1, 2);
    RecipeCopied(*db, 1, 2);
    carried.Drop(1);
    EXPECT_EQ(Cell(*db, "SELECT RECIPE_ID FROM CARRIED"), "1");
    EXPECT_EQ(ErrorOf([&] { Keep(1, "a"); }).Description(), "table CARRIED has no column named FORMAT");
}

TEST_F(CarriedDataTest, TakesNoViewForItsTable) {
    db->ExecuteNative(
        "CREATE VIEW CARRIED AS SELECT ID, ID AS RECIPE_ID, NAME AS FORMAT, NAME AS SOURCE, NAME AS "
        "IMPORTED, "
        "NAME AS CONTENT FROM RECIPES");
    EXPECT_FALSE(carried.IsThere());
    RecipeEnded(*db, 1, RecipeEnd::Deleted);
}

TEST(CarriedDataFile, OpensWithAndWithoutTheTable) {
    const TemporaryFolder folder;
    const std::string path = folder.File("a.mdb");
    MakeMainDatabase(path);
    {
        const auto db = OpenMainDatabase(path);
        CarriedData(*db).Keep(1, kCarriedBeerXml, "old.xml", kMay, "a");
    }
    const auto db = OpenMainDatabase(path);
    EXPECT_THAT(ContentsOf(CarriedData(*db), 1), ElementsAre("a"));
}

// A kill while the first fragment is kept leaves neither the table nor a part of it.
TEST(CarriedDataFile, ComesWholeOrNotAtAll) {
    const TemporaryFolder folder;
    const std::string path = folder.File("a.mdb");
    MakeMainDatabase(path);
    EXPECT_TRUE(DiesIn([&] {
        const auto db = OpenMainDatabase(path);
        DieAt(*db, 0);
        CarriedData(*db).Keep(1, kCarriedBeerXml, "old.xml", kMay, "a");
    }));
    const auto db = OpenMainDatabase(path);
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM sqlite_schema WHERE name LIKE 'CARRIED%'"), "0");
}

// Answers every conflict by overwriting.
class Overwriting : public CopyHost {
  public:
    bool Continue(const std::string&, int, int) override { return true; }
    ConflictAnswer ResolveConflict(const std::string&, const std::string&) override {
        return {ConflictResponse::Overwrite, {}};
    }
    bool ContinueAfter(const std::string&) override { return true; }
};

// A database with two recipes, of which Mild carries something, and a recipe file with another Mild.
class CarriedDataExchange : public testing::Test {
  protected:
    CarriedDataExchange() {
        MakeMainDatabase(path);
        const auto db = OpenMainDatabase(path);
        const auto file = Database::CreateDatabase(filePath, kExchangeLocale);
        InsertRecipe(*db, FullRecipe("Mild", 1));
        CreateExchangeTables(*db, *file);
        RecipeCopier(*db, *file, host).ExportRecipes(names);
        InsertRecipe(*db, FullRecipe("Stout", 1));
        CarriedData carried(*db);
        for (const std::int64_t recipe : {1, 2})
            carried.Keep(recipe, kCarriedBeerXml, "old.xml", kMay, std::to_string(recipe));
    }
    void Import(Database& db) {
        const auto file = Database::OpenDatabase(filePath, false);
        StylesNotImported unknown;
        RecipeCopier(db, *file, host).ImportRecipes(names, 0, unknown);
    }

    static void FailAt(Database& db, int statement) {
        db.SetStatementHook([count = 0, statement](std::string_view) mutable {
            if (count++ == statement) throw Error("Test", "the disk is on fire", 1);
        });
    }
    // Imports with a small cache, so that half-done pages reach the file before the end.
    void ImportUntil(int statement, void (*strike)(Database& db, int statement)) {
        const auto db = OpenMainDatabase(path);
        db->ExecuteNative("PRAGMA cache_size=3");
        strike(*db, statement);
        try {
            Import(*db);
        } catch (const Error& error) {
            EXPECT_EQ(error.Description(), "the disk is on fire");
        }
    }

    const TemporaryFolder folder;
    const std::string path = folder.File("a.mdb"), filePath = folder.File("a.TWR");
    const std::vector<std::string> names = {"Mild"};
    Overwriting host;
};

TEST_F(CarriedDataExchange, NeverComesIntoARecipeFile) {
    const auto db = OpenMainDatabase(path);
    const auto file = Database::CreateDatabase(folder.File("b.TWR"), kExchangeLocale);
    CreateExchangeTables(*db, *file);
    RecipeCopier(*db, *file, host).ExportRecipes(names);
    EXPECT_EQ(Cell(*file, "SELECT COUNT(*) FROM sqlite_schema WHERE name = 'CARRIED'"), "0");
    EXPECT_EQ(Cell(*file, "SELECT NAME FROM RECIPES"), "Mild");
}

// The table of a recipe file that happens to have that name is nobody's business.
TEST_F(CarriedDataExchange, IsOfTheMainDatabaseAlone) {
    const auto db = OpenMainDatabase(path);
    const auto file = Database::OpenDatabase(filePath, false);
    CarriedData(*file).Keep(1, kCarriedBeerXml, "other.xml", kMay, "x");
    RecipeCopier(*db, *file, host).ExportRecipes(names);
    EXPECT_EQ(Select(*file, kContents), (Rows{{"1", "x"}}));
}

TEST_F(CarriedDataExchange, EndsWithARecipeThatAnImportOverwrites) {
    const auto db = OpenMainDatabase(path);
    Import(*db);
    EXPECT_EQ(Select(*db, "SELECT ID, NAME FROM RECIPES ORDER BY ID"), (Rows{{"2", "Stout"}, {"3", "Mild"}}));
    EXPECT_EQ(Select(*db, kContents), (Rows{{"2", "2"}}));
}

TEST_F(CarriedDataExchange, StaysWhenAnImportFailsOrIsKilledInTheMiddle) {
    const std::string bytes = ReadFile(path);
    const Rows old = {{"1", "1"}, {"2", "2"}};
    int statement = 0;
    for (bool died = true; died; ++statement) {
        for (const bool kill : {false, true}) {
            WriteFile(path, bytes);
            if (kill)
                died = DiesIn([&] { ImportUntil(statement, DieAt); });
            else
                ImportUntil(statement, FailAt);
            const auto db = OpenMainDatabase(path);
            const std::string mild = Cell(*db, "SELECT ID FROM RECIPES WHERE NAME = 'Mild'");
            EXPECT_EQ(Select(*db, kContents), mild == "1" ? old : (Rows{{"2", "2"}}))
                << (kill ? "killed" : "failed") << " at statement " << statement;
        }
    }
    // The names, the DELETEs of the row and of what is carried, the INSERT, the query of the ID, 5 DELETEs
    // and 6 lines; then the run that survives.
    EXPECT_EQ(statement, 1 + 2 + 2 + 5 + 6 + 1);
}

}  // namespace
}  // namespace tw::test
