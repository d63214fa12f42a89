// Tests of renaming objects and creating folders.
#include "ObjectsTest.h"
#include "values/Text.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Names : public Objects {
  protected:
    Names() {
        Folder(0, "Ales");          // 1
        Folder(1, "Stouts");        // 2
        Folder(1, "Bitters");       // 3
        StyleFolder(0, "British");  // 4
        StyleFolder(4, "Dark");     // 5
        Style("Porter", 5);
        Recipe("Dry", 2, 1);
        Recipe("Mild");
        Touched();
        Notices();
    }
};

TEST_F(Names, OfARecipeChangeOnAllItsEntries) {
    EXPECT_TRUE(io.RenameObject("R:1:0", "Zwickel"));
    for (const char* key : {"R:1:0", "R:1:1", "R:1:2", "R:1:3"})
        EXPECT_EQ(main.tree.Nodes(key)->Name(), "Zwickel") << key;
    EXPECT_EQ(Tree("F:-1"), (Lines{"R:2:0 Mild", "R:1:0 Zwickel"}));
    EXPECT_THAT(Touched(), ElementsAre("2"));
    EXPECT_THAT(Notices(), ElementsAre("renamed Dry to Zwickel"));
    EXPECT_THAT(Boxes(), IsEmpty());
    ExpectInStep();
}

TEST_F(Names, OfAStyleChangeOnBothItsEntries) {
    EXPECT_TRUE(io.RenameObject("S:1:0", "Stout"));
    EXPECT_EQ(main.tree.Nodes("S:1:0")->Name(), "Stout");
    EXPECT_EQ(main.tree.Nodes("S:1:1")->Name(), "Stout");
    EXPECT_THAT(Touched(), ElementsAre("5"));
    EXPECT_THAT(Notices(), ElementsAre("style renamed 1 to Stout"));
    ExpectInStep();
}

TEST_F(Names, OfFoldersChangeAndTheFolderAboveIsTouched) {
    EXPECT_TRUE(io.RenameObject("F:2", "Dark ales"));
    EXPECT_THAT(Touched(), ElementsAre("1"));
    EXPECT_TRUE(io.RenameObject("G:5", "Black"));
    EXPECT_THAT(Touched(), ElementsAre("4"));
    EXPECT_TRUE(io.RenameObject("F:1", "Top"));
    EXPECT_THAT(Touched(), IsEmpty());
    EXPECT_THAT(Notices(), IsEmpty());
    EXPECT_EQ(Tree("F:0"),
              (Lines{"F:1 Top", "  F:3 Bitters", "  F:2 Dark ales", "    R:1:3 Dry", "R:2:3 Mild"}));
    ExpectInStep();
}

TEST_F(Names, RunTheDesignedStatements) {
    const std::string now = "UPDATE FOLDERS SET MODIFIED_WHEN = '03/09/2024 14:05:07' WHERE ";
    EXPECT_THAT(ChangesOf([&] { io.RenameRecipeFolder(2, " Smith's "); }),
                ElementsAre("UPDATE FOLDERS SET NAME = 'Smith''s' WHERE NOT STYLE AND ID = 2",
                            now + "NOT STYLE AND ID = 1"));
    EXPECT_THAT(
        ChangesOf([&] { io.RenameStyleFolder(4, "B"); }),
        ElementsAre("UPDATE FOLDERS SET NAME = 'B' WHERE STYLE AND ID = 4", now + "STYLE AND ID = 0"));
    EXPECT_THAT(ChangesOf([&] { io.RenameRecipe(1, "B"); }),
                ElementsAre("UPDATE RECIPES SET NAME = 'B' WHERE ID = 1", now + "NOT STYLE AND ID = 2"));
    EXPECT_THAT(ChangesOf([&] { io.RenameStyle(1, "B"); }),
                ElementsAre("UPDATE STYLES SET NAME = 'B' WHERE ID = 1", now + "STYLE AND ID = 5"));
}

TEST_F(Names, MustNotBeBlank) {
    for (const char* key : {"F:2", "G:5", "R:1:3", "S:1:1"}) {
        EXPECT_FALSE(io.RenameObject(key, "   "));
        EXPECT_FALSE(io.RenameObject(key, "", Asking::Quietly));
    }
    EXPECT_THAT(Boxes(), ElementsAre("[Could not rename recipe folder] You must type a name",
                                     "[Could not rename style folder] You must type a name",
                                     "[Could not rename recipe] You must type a name",
                                     "[Could not rename style] You must type a name"));
    EXPECT_THAT(Touched(), IsEmpty());
    ExpectInStep();
}

TEST_F(Names, MustNotBeTaken) {
    StyleFolder(4, "Pale");
    Style("Pils");
    Touched();
    const std::pair<const char*, const char*> renames[] = {
        {"F:2", " BITTERS "}, {"G:5", "pale"}, {"R:1:0", "mild"}, {"S:1:0", " pils"}};
    for (const auto& [key, name] : renames) {
        EXPECT_FALSE(io.RenameObject(key, name));
        EXPECT_FALSE(io.RenameObject(key, name, Asking::Quietly));
    }
    EXPECT_THAT(Boxes(),
                ElementsAre("[Could not rename recipe folder] A folder with that name already exists",
                            "[Could not rename style folder] A folder with that name already exists",
                            "[Could not rename recipe] A recipe with that name already exists",
                            "[Could not rename style] A style with that name already exists"));
    EXPECT_THAT(Touched(), IsEmpty());
    EXPECT_THAT(Notices(), IsEmpty());
    ExpectInStep();
}

TEST_F(Names, OfFoldersMayBeTakenElsewhere) {
    EXPECT_TRUE(io.RenameObject("F:2", "Ales"));
    EXPECT_TRUE(io.RenameObject("F:3", "British"));
    EXPECT_THAT(Boxes(), IsEmpty());
    ExpectInStep();
}

TEST_F(Names, MayChangeTheirCaseAlone) {
    EXPECT_TRUE(io.RenameObject("R:1:0", "DRY"));
    EXPECT_TRUE(io.RenameObject("S:1:0", "porTER"));
    EXPECT_TRUE(io.RenameObject("F:2", "stouts"));
    EXPECT_TRUE(io.RenameObject("G:5", "DARK"));
    EXPECT_THAT(Notices(), ElementsAre("renamed Dry to DRY", "style renamed 1 to porTER"));
    EXPECT_THAT(Boxes(), IsEmpty());
    ExpectInStep();
}

// The tree shows the name as typed until the next start.
TEST_F(Names, AreTrimmedInTheDatabaseAndStandAsTypedInTheTree) {
    EXPECT_TRUE(io.RenameObject("R:1:0", "  Best "));
    EXPECT_TRUE(io.RenameObject("F:2", " Best "));
    EXPECT_EQ(main.tree.Nodes("R:1:2")->Name(), "  Best ");
    EXPECT_EQ(main.tree.Nodes("F:2")->Name(), " Best ");
    EXPECT_THAT(Select("SELECT NAME FROM RECIPES WHERE ID = 1"), ElementsAre("Best"));
    EXPECT_THAT(Notices(), ElementsAre("renamed Dry to   Best "));
    // The blanks do not hide the object from the next operation.
    EXPECT_TRUE(io.RenameObject("R:1:0", "BEST"));
    EXPECT_FALSE(io.RenameObject("F:3", "best", Asking::Quietly));
}

TEST_F(Names, OfWhatTheProgramMakesStay) {
    for (const char* key : {"F:0", "F:-1", "G:0", "G:-1", "S:0:0", "S:0:1", "X:DB", "X:STYLE", "", "Q:1"}) {
        EXPECT_FALSE(io.RenameObject(key, "Mine"));
        EXPECT_THAT(Boxes(), ElementsAre("[Could not rename object] Invalid Object")) << key;
        EXPECT_FALSE(io.RenameObject(key, "Mine", Asking::Quietly));
        EXPECT_THAT(Boxes(), IsEmpty());
    }
    ExpectInStep();
}

TEST_F(Names, OfWhatIsMissingCannotChange) {
    for (const char* key : {"F:99", "G:1", "R:99:0", "S:x:0"}) EXPECT_FALSE(io.RenameObject(key, "Mine"));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Error renaming recipe folder] DB_IO\r\nThere is no such recipe folder. (5)",
                            "[Error renaming style folder] DB_IO\r\nThere is no such style folder. (5)",
                            "[Error renaming recipe] DB_IO\r\nThere is no such recipe. (5)",
                            "[Error renaming style] DB_IO\r\nThere is no such style. (5)"));
}

TEST_F(Names, OfAnyCharactersComeThrough) {
    for (const std::string& name : {std::string("'; DROP TABLE RECIPES; --"), std::string("a \"b\" c"),
                                    std::string(10000, 'x'), std::string("\x01\x1b\n\t%_"),
                                    std::string("\xD7\xA9\xD7\x9B\xD7\xA8 \xE2\x80\xAE"
                                                "abc"),
                                    std::string("\xFF\xFE"), std::string("a\0b", 3)}) {
        EXPECT_TRUE(io.RenameObject("R:1:0", name));
        EXPECT_TRUE(io.RenameObject("F:2", name));
        EXPECT_TRUE(io.RenameObject("G:5", name));
        EXPECT_TRUE(io.RenameObject("S:1:0", name));
        EXPECT_THAT(Select("SELECT NAME FROM RECIPES WHERE ID = 1"), ElementsAre(name));
        EXPECT_TRUE(io.RecipeNameExists(name));
        ExpectInStep();
    }
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Names, OfStylesAreFoundForTheirEntries) {
    main.Execute("UPDATE STYLES SET NAME = 'Pils' WHERE ID = 1");
    io.RenameStyleNodes(1, "Pils");
    ExpectInStep();
    io.RenameStyleNodesByName("PILS ", "Pilsner");
    EXPECT_EQ(main.tree.Nodes("S:1:0")->Name(), "Pilsner");
    EXPECT_THAT(Notices(), ElementsAre("style renamed 1 to Pils", "style renamed 1 to Pilsner"));
    // "(None)" keeps its name if no style has the old name any more.
    io.RenameStyleNodesByName("unknown", "Pilsner");
    EXPECT_EQ(main.tree.Nodes("S:0:0")->Name(), "(None)");
    EXPECT_THAT(Notices(), IsEmpty());
}

TEST_F(Names, AreLookedUp) {
    EXPECT_EQ(io.StyleIdByName(" porter"), 1);
    EXPECT_EQ(io.StyleNameById(1), "Porter");
    EXPECT_EQ(io.StyleNameById(9), "");
    EXPECT_EQ(io.RecipeNameById(2), "Mild");
    EXPECT_TRUE(io.RecipeNameExists(" MILD "));
    EXPECT_FALSE(io.RecipeNameExists("Porter"));
    EXPECT_TRUE(io.StyleNameExists("porter"));
    EXPECT_FALSE(io.StyleNameExists("Mild"));
    EXPECT_TRUE(io.RecipeFolderNameExists(1, " stouts"));
    EXPECT_FALSE(io.RecipeFolderNameExists(0, "Stouts"));
    EXPECT_FALSE(io.RecipeFolderNameExists(4, "Dark"));
    EXPECT_TRUE(io.StyleFolderNameExists(4, "DARK"));
    EXPECT_FALSE(io.StyleFolderNameExists(1, "Stouts"));
}

TEST_F(Names, OfANewFolderAreTrimmedAndTheFolderAboveIsNotTouched) {
    EXPECT_THAT(
        ChangesOf([&] { EXPECT_EQ(io.CreateFolderObject("F:1", "  Smith's "), "F:6"); }),
        ElementsAre("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE, CREATED_WHEN, MODIFIED_WHEN) VALUES (1, "
                    "'Smith''s', FALSE, '03/09/2024 14:05:07', '03/09/2024 14:05:07')"));
    EXPECT_EQ(io.CreateFolderObject("G:0", "Smith's"), "G:7");
    EXPECT_EQ(main.tree.Nodes("F:6")->Name(), "Smith's");
    EXPECT_EQ(main.tree.Nodes("F:6")->IconOpen(), "folder open");
    EXPECT_EQ(main.tree.Nodes("F:6")->IconClosed(), "folder closed");
    EXPECT_THAT(Select("SELECT STYLE, CREATED_WHEN FROM FOLDERS WHERE ID > 5 ORDER BY ID"),
                ElementsAre("FALSE 03/09/2024 14:05:07", "TRUE 03/09/2024 14:05:07"));
    EXPECT_THAT(Touched(), ElementsAre("6", "7"));
    ExpectInStep();
}

TEST_F(Names, OfNewFoldersCount) {
    EXPECT_EQ(io.CreateFolderObject("F:1", ""), "F:6");
    EXPECT_EQ(io.CreateFolderObject("F:1", ""), "F:7");
    EXPECT_EQ(io.CreateFolderObject("F:1", "   "), "F:8");
    EXPECT_EQ(io.CreateFolderObject("G:4", ""), "G:9");
    EXPECT_EQ(Tree("F:1"), (Lines{"F:3 Bitters", "F:6 New Folder", "F:7 New Folder (2)", "F:8 New Folder (3)",
                                  "F:2 Stouts", "  R:1:3 Dry"}));
    io.DeleteObject("F:7");
    EXPECT_EQ(io.CreateFolderObject("F:1", ""), "F:10");
    EXPECT_EQ(main.tree.Nodes("F:10")->Name(), "New Folder (2)");
    ExpectInStep();
}

// Every entry of the folder counts, even a recipe.
TEST_F(Names, OfNewFoldersPassOverRecipes) {
    Recipe("New Folder", 1);
    EXPECT_EQ(io.CreateFolderObject("F:1", ""), "F:6");
    EXPECT_EQ(main.tree.Nodes("F:6")->Name(), "New Folder (2)");
}

// The new name is chosen case-sensitively, but the check that follows ignores case and refuses it.
TEST_F(Names, OfNewFoldersMeetOneOfAnotherCase) {
    Folder(1, "NEW FOLDER");
    EXPECT_EQ(io.CreateFolderObject("F:1", ""), "");
    EXPECT_THAT(Boxes(),
                ElementsAre("[Could not create new recipe folder] A folder with that name already exists"));
    EXPECT_EQ(io.CreateFolderObject("F:1", "", Asking::Quietly), "");
    EXPECT_THAT(Boxes(), IsEmpty());
    ExpectInStep();
}

TEST_F(Names, OfNewFoldersMustNotBeTaken) {
    EXPECT_EQ(io.CreateRecipeFolder(1, " STOUTS "), -1);
    EXPECT_EQ(io.CreateStyleFolder(4, "dark"), -1);
    EXPECT_THAT(Boxes(),
                ElementsAre("[Could not create new recipe folder] A folder with that name already exists",
                            "[Could not create new style folder] A folder with that name already exists"));
    EXPECT_EQ(io.CreateStyleFolder(4, "dark", Asking::Quietly), -1);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Names, NewFoldersNeedAFolder) {
    for (const char* key : {"R:1:3", "S:1:1", "X:DB", "X:STYLE", "F:-1", "G:-1", "", "Q:1"}) {
        EXPECT_EQ(io.CreateFolderObject(key, "Mine"), "");
        EXPECT_THAT(Boxes(), ElementsAre("[Could not create new folder] Invalid Parent Object")) << key;
        EXPECT_EQ(io.CreateFolderObject(key, "Mine", Asking::Quietly), "");
        EXPECT_THAT(Boxes(), IsEmpty());
    }
    for (const char* key : {"F:99", "F:4", "F:"}) EXPECT_EQ(io.CreateFolderObject(key, "Mine"), "");
    EXPECT_EQ(io.CreateFolderObject("G:1", "Mine"), "");
    EXPECT_THAT(Boxes(),
                ElementsAre("[Error creating new recipe folder] DB_IO\r\nThere is no such recipe folder. (5)",
                            "[Error creating new recipe folder] DB_IO\r\nThere is no such recipe folder. (5)",
                            "[Error creating new recipe folder] DB_IO\r\nThere is no such recipe folder. (5)",
                            "[Error creating new style folder] DB_IO\r\nThere is no such style folder. (5)"));
    ExpectInStep();
}

TEST_F(Names, NewEntriesTouchTheirFolder) {
    main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Pale', 1, 3)");
    io.AddRecipeNodes(3, "Pale", 3, 1);
    EXPECT_THAT(Touched(), ElementsAre("3"));
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Ale', 4)");
    io.AddStyleNodes(2, "Ale", 4);
    EXPECT_THAT(Touched(), ElementsAre("4"));
    io.AddStyleNodesByName("unknown");
    io.AddRecipeNodesByName("unknown");
    EXPECT_THAT(Touched(), IsEmpty());
    ExpectInStep();
}

TEST_F(Names, NewEntriesOfLinksThatLeadNowhereStandWhereTheyWouldAfterAStart) {
    main.Execute(
        "INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Lost', 99, -1), ('Null', NULL, NULL)");
    io.AddRecipeNodesByName("Lost");
    io.AddRecipeNodesByName("Null");
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Adrift', -1), ('Bare', NULL)");
    io.AddStyleNodesByName("Adrift");
    io.AddStyleNodesByName("Bare");
    ExpectInStep();
}

}  // namespace
}  // namespace tw::test
