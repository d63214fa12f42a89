// Tests of moving folders, recipes and styles.
#include "ObjectsTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kSubFolder =
    "[Could not move folder] The destination folder is a sub-folder of the source folder";

class Moves : public Objects {
  protected:
    Moves() {
        Folder(0, "Ales");          // 1
        Folder(1, "Stouts");        // 2
        Folder(0, "Lagers");        // 3
        StyleFolder(0, "British");  // 4
        StyleFolder(4, "Dark");     // 5
        StyleFolder(0, "German");   // 6
        Style("Porter", 4);
        Style("Bock", 6);
        Recipe("Dry", 2, 1);
        Recipe("Mild");
        Touched();
        Notices();
    }
};

TEST_F(Moves, PutAFolderBelowAnotherAndTouchBoth) {
    EXPECT_TRUE(io.MoveObject("F:2", "F:3"));
    EXPECT_EQ(Tree("F:0"), (Lines{"F:1 Ales", "F:3 Lagers", "  F:2 Stouts", "    R:1:3 Dry", "R:2:3 Mild"}));
    EXPECT_THAT(Select("SELECT PARENT_ID FROM FOLDERS WHERE ID = 2"), ElementsAre("3"));
    EXPECT_THAT(Touched(), ElementsAre("1", "3"));
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(Notices(), IsEmpty());
    ExpectInStep();
}

TEST_F(Moves, RunTheDesignedStatements) {
    EXPECT_THAT(
        ChangesOf([&] { io.MoveRecipeFolder(2, 0); }),
        ElementsAre("UPDATE FOLDERS SET PARENT_ID = 0 WHERE NOT STYLE AND ID = 2",
                    "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE NOT STYLE AND ID = 1",
                    "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE NOT STYLE AND ID = 0"));
    EXPECT_THAT(
        ChangesOf([&] { io.MoveStyleFolder(5, 6); }),
        ElementsAre("UPDATE FOLDERS SET PARENT_ID = 6 WHERE STYLE AND ID = 5",
                    "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE STYLE AND ID = 4",
                    "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE STYLE AND ID = 6"));
    EXPECT_THAT(
        ChangesOf([&] { io.MoveRecipeToFolder(1, 3); }),
        ElementsAre("UPDATE RECIPES SET FOLDER_ID = 3 WHERE ID = 1",
                    "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE NOT STYLE AND ID = 2",
                    "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE NOT STYLE AND ID = 3"));
    EXPECT_THAT(ChangesOf([&] { io.MoveRecipeToStyle(1, 2); }),
                ElementsAre("UPDATE RECIPES SET STYLE_ID = 2 WHERE ID = 1"));
    EXPECT_THAT(
        ChangesOf([&] { io.MoveStyleToFolder(1, 5); }),
        ElementsAre("UPDATE STYLES SET FOLDER_ID = 5 WHERE ID = 1",
                    "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE STYLE AND ID = 4",
                    "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE STYLE AND ID = 5"));
    ExpectInStep();
}

TEST_F(Moves, PutAStyleFolderBelowAnother) {
    EXPECT_TRUE(io.MoveObject("G:5", "G:0"));
    EXPECT_EQ(Tree("G:0"), (Lines{"G:4 British", "  S:1:1 Porter", "    R:1:2 Dry", "G:5 Dark", "G:6 German",
                                  "  S:2:1 Bock", "S:0:1 (None)", "  R:2:2 Mild"}));
    EXPECT_THAT(Touched(), ElementsAre("4"));
    ExpectInStep();
}

TEST_F(Moves, OntoWhereItIsChangesNothingAndSaysNothing) {
    EXPECT_THAT(ChangesOf([&] {
                    EXPECT_FALSE(io.MoveObject("F:2", "F:1"));
                    EXPECT_FALSE(io.MoveObject("F:1", "F:0"));
                    EXPECT_FALSE(io.MoveObject("G:5", "G:4"));
                    EXPECT_FALSE(io.MoveObject("R:1:0", "F:2"));
                    EXPECT_FALSE(io.MoveObject("S:1:0", "G:4"));
                }),
                IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(Notices(), IsEmpty());
}

TEST_F(Moves, RefuseAFolderOntoWhatLiesInIt) {
    EXPECT_FALSE(io.MoveObject("F:1", "F:2"));
    EXPECT_FALSE(io.MoveObject("F:1", "F:1"));
    EXPECT_FALSE(io.MoveObject("G:4", "G:5"));
    EXPECT_FALSE(io.MoveRecipeFolder(1, 2));
    EXPECT_THAT(Boxes(), ElementsAre(kSubFolder, kSubFolder, kSubFolder, kSubFolder));
    EXPECT_FALSE(io.MoveObject("F:1", "F:2", Asking::Quietly));
    EXPECT_FALSE(io.MoveStyleFolder(4, 5, Asking::Quietly));
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(Touched(), IsEmpty());
    ExpectInStep();
}

TEST_F(Moves, RefuseASecondFolderOfTheName) {
    Folder(3, "STOUTS");
    StyleFolder(6, "dark");
    Touched();
    EXPECT_FALSE(io.MoveObject("F:2", "F:3"));
    EXPECT_FALSE(io.MoveObject("G:5", "G:6"));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Could not move recipe folder] The destination folder already contains a folder "
                            "with that name",
                            "[Could not move style folder] The destination folder already contains a folder "
                            "with that name"));
    EXPECT_FALSE(io.MoveObject("F:2", "F:3", Asking::Quietly));
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(Touched(), IsEmpty());
    ExpectInStep();
}

// The names of a recipe folder and a style folder do not conflict, nor do those of a folder and a recipe.
TEST_F(Moves, CompareNamesOfFoldersOfOneKindAlone) {
    Recipe("Stouts", 3);
    EXPECT_TRUE(io.MoveObject("F:2", "F:3"));
    ExpectInStep();
}

TEST_F(Moves, PutARecipeIntoAFolder) {
    EXPECT_TRUE(io.MoveObject("R:1:0", "F:3"));
    EXPECT_EQ(Tree("F:0"), (Lines{"F:1 Ales", "  F:2 Stouts", "F:3 Lagers", "  R:1:3 Dry", "R:2:3 Mild"}));
    EXPECT_THAT(Touched(), ElementsAre("2", "3"));
    EXPECT_THAT(Notices(), ElementsAre("moved Dry 3"));
    EXPECT_TRUE(io.MoveObject("R:1:2", "F:0", Asking::Quietly));
    EXPECT_THAT(Touched(), ElementsAre("3"));
    EXPECT_THAT(Notices(), ElementsAre("moved Dry 0"));
    ExpectInStep();
}

TEST_F(Moves, GiveARecipeAStyleAndTakeItAway) {
    EXPECT_TRUE(io.MoveObject("R:2:3", "S:2:1"));
    EXPECT_EQ(Tree("S:2:0"), Lines{"R:2:1 Mild"});
    EXPECT_EQ(Tree("S:2:1"), Lines{"R:2:2 Mild"});
    EXPECT_EQ(Tree("S:0:0"), Lines{});
    ExpectInStep();
    EXPECT_TRUE(io.MoveObject("R:2:1", "S:0:0"));
    EXPECT_EQ(Tree("S:0:0"), Lines{"R:2:1 Mild"});
    EXPECT_EQ(Tree("S:0:1"), Lines{"R:2:2 Mild"});
    EXPECT_THAT(Notices(), ElementsAre("new style Mild 2", "new style Mild 0"));
    EXPECT_THAT(Touched(), IsEmpty());
    EXPECT_THAT(Select("SELECT NAME FROM RECIPES WHERE NOT MODIFIED_WHEN IS NULL"), IsEmpty());
    ExpectInStep();
}

TEST_F(Moves, PutAStyleWithItsRecipesIntoAFolder) {
    EXPECT_TRUE(io.MoveObject("S:1:0", "G:5"));
    EXPECT_EQ(Tree("G:0"), (Lines{"G:4 British", "  G:5 Dark", "    S:1:1 Porter", "      R:1:2 Dry",
                                  "G:6 German", "  S:2:1 Bock", "S:0:1 (None)", "  R:2:2 Mild"}));
    EXPECT_THAT(Touched(), ElementsAre("4", "5"));
    EXPECT_TRUE(io.MoveStyleToFolderByName(" PORTER ", 0));
    EXPECT_THAT(Touched(), ElementsAre("5"));
    EXPECT_THAT(Notices(), IsEmpty());
    EXPECT_FALSE(io.MoveStyleToFolderByName("Nothing", 0, Asking::Quietly));
    ExpectInStep();
}

TEST_F(Moves, RefuseEveryOtherPair) {
    const std::pair<const char*, const char*> pairs[] = {{"F:1", "G:4"},
                                                         {"F:1", "S:1:0"},
                                                         {"G:4", "F:1"},
                                                         {"G:4", "R:1:3"},
                                                         {"R:1:0", "G:4"},
                                                         {"S:1:0", "F:1"},
                                                         {"R:1:0", "X:DB"},
                                                         {"R:1:0", "R:2:0"},
                                                         {"S:1:0", "S:2:0"},
                                                         {"F:1", "nothing"},
                                                         {"X:STYLE", "F:1"},
                                                         {"Q:1", "F:1"},
                                                         {"", "F:1"},
                                                         // Would not be shown after the next start.
                                                         {"F:1", "F:-1"},
                                                         {"G:4", "G:-1"},
                                                         {"R:1:3", "F:-1"},
                                                         {"S:1:1", "G:-1"},
                                                         // Belongs to the program itself.
                                                         {"S:0:1", "G:4"},
                                                         {"S:0:0", "G:0"},
                                                         {"F:-1", "F:1"},
                                                         {"G:-1", "G:4"},
                                                         {"F:0", "F:-1"}};
    for (const auto& [source, dest] : pairs) {
        EXPECT_FALSE(io.MoveObject(source, dest));
        EXPECT_THAT(Boxes(), ElementsAre("[Could not move object] Invalid Destination"))
            << source << " onto " << dest;
        EXPECT_FALSE(io.MoveObject(source, dest, Asking::Quietly));
        EXPECT_THAT(Boxes(), IsEmpty());
    }
    ExpectInStep();
}

TEST_F(Moves, TellWhatIsMissing) {
    EXPECT_FALSE(io.MoveObject("F:99", "F:1"));
    EXPECT_FALSE(io.MoveObject("F:1", "F:99"));
    EXPECT_FALSE(io.MoveObject("G:1", "G:4"));
    EXPECT_FALSE(io.MoveObject("R:99:0", "F:1"));
    EXPECT_FALSE(io.MoveObject("R:1:0", "F:4"));
    EXPECT_FALSE(io.MoveObject("R:1:0", "S:99:0"));
    EXPECT_FALSE(io.MoveObject("S:99:0", "G:0"));
    EXPECT_FALSE(io.MoveObject("S:1:0", "G:x"));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Error moving recipe folder] DB_IO\r\nThere is no such recipe folder. (5)",
                            "[Error moving recipe folder] DB_IO\r\nThere is no such recipe folder. (5)",
                            "[Error moving style folder] DB_IO\r\nThere is no such style folder. (5)",
                            "[Error moving recipe to folder] DB_IO\r\nThere is no such recipe. (5)",
                            "[Error moving recipe to folder] DB_IO\r\nThere is no such recipe folder. (5)",
                            "[Error moving recipe to style] DB_IO\r\nThere is no such style. (5)",
                            "[Error moving style] DB_IO\r\nThere is no such style. (5)",
                            "[Error moving style] DB_IO\r\nThere is no such style folder. (5)"));
    EXPECT_FALSE(io.MoveObject("R:99:0", "F:1", Asking::Quietly));
    EXPECT_THAT(Boxes(), IsEmpty());
    ExpectInStep();
}

TEST_F(Moves, TellTheNoticeAfterTheDatabaseAndTheTree) {
    Lines seen;
    listener.look = [&] {
        seen = Select("SELECT FOLDER_ID FROM RECIPES WHERE ID = 1");
        seen.push_back(main.tree.Nodes("R:1:3")->Parent()->Key());
    };
    io.MoveRecipeToFolder(1, 3);
    EXPECT_THAT(seen, ElementsAre("3", "F:3"));
}

TEST_F(Moves, BringARecipeOfNoFolderBackIntoSight) {
    main.Execute("UPDATE RECIPES SET FOLDER_ID = 77 WHERE ID = 1");
    main.tree.InitFromDatabase();
    ASSERT_FALSE(main.tree.NodeExists("R:1:3"));
    EXPECT_TRUE(io.MoveObject("R:1:0", "F:1"));
    EXPECT_THAT(Touched(), ElementsAre("1"));
    ExpectInStep();
}

TEST_F(Moves, BringAStyleOfNoFolderBackWithItsRecipes) {
    main.Execute("UPDATE STYLES SET FOLDER_ID = 77 WHERE ID = 1");
    main.tree.InitFromDatabase();
    ASSERT_FALSE(main.tree.NodeExists("R:1:2"));
    EXPECT_TRUE(io.MoveObject("R:2:0", "S:1:0"));
    ExpectInStep();
    EXPECT_TRUE(io.MoveObject("S:1:0", "G:6"));
    EXPECT_EQ(Tree("S:1:1"), (Lines{"R:1:2 Dry", "R:2:2 Mild"}));
    ExpectInStep();
}

}  // namespace
}  // namespace tw::test
