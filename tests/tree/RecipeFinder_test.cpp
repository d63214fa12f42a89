#include "tree/RecipeFinder.h"

#include <gtest/gtest.h>

#include "TreeTest.h"
#include "store/Schema.h"
#include "support/OtherNames.h"

namespace tw::test {
namespace {

class RecipeFinderTest : public testing::Test {
  protected:
    void Execute(std::string_view sql) { db->Execute(sql); }
    void Recipe(const std::string& name, int style = 0, const std::string& notes = "") {
        Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID, NOTES) VALUES (" + SqlText(name) + ", " +
                std::to_string(style) + ", 0, " + SqlText(notes) + ")");
    }
    void Row(const std::string& table, int recipe, const std::string& name) {
        Execute("INSERT INTO " + table + " (RECIPE_ID, ROW_ID, NAME) VALUES (" + std::to_string(recipe) +
                ", 1, " + SqlText(name) + ")");
    }
    // Returns the names of the recipes found.
    Lines Find(std::string_view text) {
        Lines names;
        for (const FoundRecipe& recipe : finder.Find(text)) names.emplace_back(recipe.name);
        return names;
    }

    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
    RecipeFinder finder{*db};
};

TEST_F(RecipeFinderTest, FindsNothingInAnEmptyDatabase) {
    EXPECT_EQ(Find(""), Lines{});
    EXPECT_EQ(Find("ale"), Lines{});
}

TEST_F(RecipeFinderTest, TellsIdsAndNamesInTheOrderOfTheList) {
    Recipe("stout");
    Recipe("Amber");
    Recipe("bitter");
    EXPECT_EQ(finder.Find(""), (std::vector<FoundRecipe>{{2, "Amber"}, {3, "bitter"}, {1, "stout"}}));
}

TEST_F(RecipeFinderTest, TakesATextWithoutAWordAsNoCondition) {
    Recipe("Amber");
    EXPECT_EQ(Find(" \t\r\n "), Lines{"Amber"});
}

TEST_F(RecipeFinderTest, FindsPartsOfTheNameWithoutRegardToCase) {
    Recipe("Old Badger");
    Recipe("Gold");
    Recipe("Ænigma Stöut");
    EXPECT_EQ(Find("OLD"), (Lines{"Gold", "Old Badger"}));
    EXPECT_EQ(Find("badger"), Lines{"Old Badger"});
    EXPECT_EQ(Find("STÖUT"), Lines{"Ænigma Stöut"});
    EXPECT_EQ(Find("ænig"), Lines{"Ænigma Stöut"});
    EXPECT_EQ(Find("stout"), Lines{"Ænigma Stöut"});
    EXPECT_EQ(Find("enig st"), Lines{"Ænigma Stöut"});
}

TEST_F(RecipeFinderTest, WantsEveryWordSomewhere) {
    Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Dry Stout', 0)");
    Recipe("Night", 1, "for the winter");
    Recipe("Winter Ale");
    EXPECT_EQ(Find("winter"), (Lines{"Night", "Winter Ale"}));
    EXPECT_EQ(Find("winter stout"), Lines{"Night"});
    EXPECT_EQ(Find("  stout   NIGHT win "), Lines{"Night"});
    EXPECT_EQ(Find("winter stout ale"), Lines{});
}

TEST_F(RecipeFinderTest, SearchesEveryPartOfARecipe) {
    Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Porter', 0)");
    Recipe("one", 1, "smoky\r\nand dark");
    Recipe("two");
    Row("RECIPE_GRAINS", 1, "Crystal Malt");
    Row("RECIPE_HOPS", 1, "Fuggles");
    Row("RECIPE_ADJUNCTS", 1, "Irish Moss");
    Row("RECIPE_SUGARS", 1, "Molasses");
    Row("RECIPE_SALTS", 1, "Gypsum");
    Execute(
        "INSERT INTO RECIPE_LOG (RECIPE_ID, ROW_ID, LOGDATE, ACTION, NOTES) VALUES "
        "(1, 1, '1/2/2024', 'Pitched Yeast', 'London 1318')");
    for (const char* word : {"porter", "smoky", "dark", "crystal", "fuggles", "moss", "molasses", "gypsum",
                             "yeast", "1318", "one"})
        EXPECT_EQ(Find(word), Lines{"one"}) << word;
    EXPECT_EQ(Find("2024"), Lines{});
}

TEST_F(RecipeFinderTest, FindsIngredientsAndStylesByTheirOtherNames) {
    AddOtherNames(*db);
    AddAlias(*db, CatalogueKind::Hop, "EKG", "East Kent Goldings");
    AddFacts(*db, CatalogueKind::Hop, "East Kent Goldings", "", "United Kingdom");
    AddFacts(*db, CatalogueKind::Style, "Best Bitter", "11B", "Beer 2021");
    Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Best Bitter', 0)");
    Recipe("one", 1);
    Recipe("two", 0, "ekg would be better");
    Recipe("three");
    Row("RECIPE_HOPS", 2, "Saaz");
    Row("RECIPE_HOPS", 1, "East Kent Goldings");
    Row("RECIPE_HOPS", 3, " ekg");
    EXPECT_EQ(Find("ekg"), (Lines{"one", "three", "two"}));
    EXPECT_EQ(Find("east kent"), (Lines{"one", "three"}));
    EXPECT_EQ(Find("11b"), Lines{"one"});
}

TEST_F(RecipeFinderTest, TakesHyphensSlashesAndBlanksForTheSame) {
    Recipe("Ale", 0, "SafAle US-05, w-34/70");
    Recipe("Stout", 0, "used 05/06");
    EXPECT_EQ(Find("us05"), (Lines{"Ale", "Stout"}));
    EXPECT_EQ(Find("safale us05"), Lines{"Ale"});
    EXPECT_EQ(Find("34 70"), Lines{"Ale"});
}

TEST_F(RecipeFinderTest, DoesNotJoinTheEndOfOnePartWithTheNext) {
    Recipe("Ale", 0, "xy");
    Row("RECIPE_HOPS", 1, "Fuggles");
    EXPECT_EQ(Find("alexy"), Lines{});
    EXPECT_EQ(Find("alefug"), Lines{});
}

TEST_F(RecipeFinderTest, NarrowsAndWidensAsOneTypes) {
    Recipe("Amber");
    Recipe("Ambrosia");
    Recipe("Pale Ale");
    EXPECT_EQ(Find("a"), (Lines{"Amber", "Ambrosia", "Pale Ale"}));
    EXPECT_EQ(Find("amb"), (Lines{"Amber", "Ambrosia"}));
    EXPECT_EQ(Find("ambr"), Lines{"Ambrosia"});
    EXPECT_EQ(Find("ambrx"), Lines{});
    EXPECT_EQ(Find("ambr"), Lines{"Ambrosia"});
    EXPECT_EQ(Find("am"), (Lines{"Amber", "Ambrosia"}));
    EXPECT_EQ(Find("ale"), Lines{"Pale Ale"});
}

TEST_F(RecipeFinderTest, SeesWhatHasChangedSinceTheLastFind) {
    Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Porter', 0)");
    Recipe("Amber", 1);
    EXPECT_EQ(Find("a"), Lines{"Amber"});
    Recipe("Pale");
    EXPECT_EQ(Find("a"), (Lines{"Amber", "Pale"}));
    Execute("UPDATE RECIPES SET NAME = 'Zebra', NOTES = 'striped' WHERE ID = 1");
    EXPECT_EQ(Find("a"), (Lines{"Pale", "Zebra"}));
    EXPECT_EQ(Find("amber"), Lines{});
    EXPECT_EQ(Find("striped"), Lines{"Zebra"});
    Execute("UPDATE STYLES SET NAME = 'Mild' WHERE ID = 1");
    EXPECT_EQ(Find("porter"), Lines{});
    EXPECT_EQ(Find("mild"), Lines{"Zebra"});
    Row("RECIPE_HOPS", 2, "Saaz");
    EXPECT_EQ(Find("saaz"), Lines{"Pale"});
    Execute("DELETE FROM RECIPE_HOPS");
    EXPECT_EQ(Find("saaz"), Lines{});
    Execute("DELETE FROM RECIPES WHERE ID = 1");
    EXPECT_EQ(Find(""), Lines{"Pale"});
}

TEST_F(RecipeFinderTest, ReadsTheDatabaseOnlyWhenItHasChanged) {
    Recipe("Amber");
    int statements = 0;
    db->SetStatementHook([&](std::string_view) { ++statements; });
    EXPECT_EQ(Find("amber"), Lines{"Amber"});
    EXPECT_GT(statements, 0);
    statements = 0;
    EXPECT_EQ(Find("amb"), Lines{"Amber"});
    EXPECT_EQ(statements, 0);
}

TEST_F(RecipeFinderTest, TriesAgainAfterAnErrorInReading) {
    Recipe("Amber");
    db->SetStatementHook([](std::string_view) { throw Error("Disk", "gone", 1); });
    EXPECT_EQ(ErrorOf([&] { Find("amber"); }), "Disk: gone");
    db->SetStatementHook(nullptr);
    EXPECT_EQ(Find("amber"), Lines{"Amber"});
}

TEST_F(RecipeFinderTest, LeavesOutRowsThatBelongToNoRecipe) {
    Recipe("Amber", 7);
    Row("RECIPE_HOPS", 9, "Saaz");
    Execute("INSERT INTO RECIPE_HOPS (RECIPE_ID, ROW_ID, NAME) VALUES (NULL, 1, 'Hallertau')");
    Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (NULL, NULL, NULL)");
    EXPECT_EQ(Find("saaz"), Lines{});
    EXPECT_EQ(Find("hallertau"), Lines{});
    EXPECT_EQ(finder.Find("").size(), 2U);
}

}  // namespace
}  // namespace tw::test
