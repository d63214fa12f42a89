// Tests of the parts of dialogs for choosing recipes and folders.
#include "ObjectsTest.h"
#include "tree/ChooseFolderModel.h"
#include "tree/FolderChooser.h"
#include "tree/RecipeChooser.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Recipes : public Objects {
  protected:
    Recipes() {
        Folder(0, "Winter");
        Recipe("Stout", 1);
        Recipe("Ale");
        Recipe("mild");
        chooser.SetTree(&main.tree);
        chooser.Initialize();
    }
    void Press(const std::string& button) { EXPECT_TRUE(chooser.Press(button)) << button; }
    // Returns the enabled buttons.
    Lines On() const {
        Lines on;
        for (const char* button : {"cmdAdd", "cmdDel", "cmdUp", "cmdDown", "cmdTop", "cmdBottom",
                                   "mnuPopupSortAsc", "mnuPopupSortDesc"})
            if (chooser.IsEnabled(button)) on.emplace_back(button);
        return on;
    }

    RecipeChooser chooser;
};

TEST_F(Recipes, TheWholeTreeIsThereWithItsRootsOpen) {
    const TreeItems& items = chooser.treeRecipes();
    EXPECT_NE(items.Find("R:1:2"), TreeItems::kNone);
    for (const char* key : {"X:DB", "F:0"}) EXPECT_TRUE(items.IsExpanded(items.Find(key))) << key;
    for (const char* key : {"F:-1", "X:STYLE", "F:1"}) EXPECT_FALSE(items.IsExpanded(items.Find(key))) << key;
}

TEST_F(Recipes, ArePickedInTheirOrderEachOnce) {
    chooser.treeRecipes().SelectKey("R:3:3");
    Press("cmdAdd");
    EXPECT_TRUE(chooser.Add("R:1:0"));
    EXPECT_FALSE(chooser.Add("R:1:3"));
    EXPECT_FALSE(chooser.Add("R:9:3"));
    EXPECT_THAT(chooser.Selection(), ElementsAre("mild", "Stout"));
    EXPECT_EQ(chooser.SelectionCount(), 2);
    EXPECT_EQ(chooser.Item(1), "Stout");
    EXPECT_EQ(chooser.Current(), 1);
}

TEST_F(Recipes, AFolderGivesAllItsRecipes) {
    EXPECT_TRUE(chooser.Add("F:0"));
    EXPECT_THAT(chooser.Selection(), ElementsAre("Stout", "Ale", "mild"));
}

TEST_F(Recipes, AnItemBeyondTheListIsAnError) {
    EXPECT_EQ(ErrorOf([&] { chooser.Item(0); }), "RecipeChooser.Item: Subscript out of range");
    EXPECT_EQ(ErrorOf([&] { chooser.Item(-1); }), "RecipeChooser.Item: Subscript out of range");
}

TEST_F(Recipes, TheButtonsMoveTheChosenLine) {
    chooser.Add("F:0");
    chooser.SetCurrent(0);
    Press("cmdDown");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Ale", "Stout", "mild"));
    Press("cmdBottom");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Ale", "mild", "Stout"));
    Press("cmdUp");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Ale", "Stout", "mild"));
    Press("cmdTop");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Stout", "Ale", "mild"));
    EXPECT_EQ(chooser.Current(), 0);
    Press("cmdDel");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Ale", "mild"));
    EXPECT_EQ(chooser.Current(), 0);
}

TEST_F(Recipes, TheLastLineTakenOutLeavesNoneChosen) {
    chooser.Add("R:1:3");
    Press("cmdDel");
    EXPECT_THAT(chooser.Selection(), IsEmpty());
    EXPECT_EQ(chooser.Current(), RecipeChooser::kNone);
    Press("cmdDel");
    EXPECT_EQ(chooser.Current(), RecipeChooser::kNone);
}

TEST_F(Recipes, ThePopupSortsWithoutRegardToCase) {
    chooser.Add("F:0");
    chooser.SetCurrent(0);
    Press("mnuPopupSortAsc");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Ale", "mild", "Stout"));
    EXPECT_EQ(chooser.Current(), 2);
    Press("mnuPopupSortDesc");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Stout", "mild", "Ale"));
}

TEST_F(Recipes, WhatDoesNothingIsOff) {
    EXPECT_THAT(On(), IsEmpty());
    chooser.treeRecipes().SelectKey("X:STYLE");
    EXPECT_THAT(On(), ElementsAre("cmdAdd"));
    chooser.treeRecipes().SelectKey("G:0");
    chooser.Add("F:0");
    EXPECT_THAT(On(),
                ElementsAre("cmdAdd", "cmdDel", "cmdUp", "cmdTop", "mnuPopupSortAsc", "mnuPopupSortDesc"));
    chooser.SetCurrent(0);
    EXPECT_THAT(
        On(), ElementsAre("cmdAdd", "cmdDel", "cmdDown", "cmdBottom", "mnuPopupSortAsc", "mnuPopupSortDesc"));
    EXPECT_FALSE(chooser.Press("cmdOther"));
}

TEST_F(Recipes, ASortedListKeepsItsOrder) {
    chooser.Add("F:0");
    chooser.SetSorted(true);
    EXPECT_THAT(chooser.Selection(), ElementsAre("Ale", "mild", "Stout"));
    Press("cmdDel");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Ale", "Stout"));
    chooser.Add("R:3:3");
    EXPECT_THAT(chooser.Selection(), ElementsAre("Ale", "mild", "Stout"));
    EXPECT_THAT(On(), ElementsAre("cmdDel", "mnuPopupSortAsc"));
}

TEST_F(Recipes, TheActionNamesTheList) {
    chooser.SetAction("Export");
    EXPECT_EQ(chooser.ListCaption(), "Recipes to Export:");
}

TEST_F(Recipes, TheRootTakesAName) {
    const TreeItems& items = chooser.treeRecipes();
    const int root = items.Find("X:DB");
    EXPECT_EQ(items.Text(root), "Recipe Database");
    chooser.SetRootName("Exchange File");
    EXPECT_EQ(items.Text(root), "Exchange File");
    chooser.Initialize();
    EXPECT_EQ(items.Text(items.Find("X:DB")), "Exchange File");
    chooser.SetRootName("");
    EXPECT_EQ(items.Text(items.Find("X:DB")), "Recipe Database");
    EXPECT_EQ(main.tree.Nodes("X:DB")->Name(), "Recipe Database");
}

TEST_F(Recipes, TheTreeOpensToARecipeInAnyCase) {
    EXPECT_TRUE(chooser.OpenTreeTo(" STOUT "));
    EXPECT_EQ(chooser.treeRecipes().SelectedKey(), "R:1:3");
    EXPECT_TRUE(chooser.treeRecipes().IsExpanded(chooser.treeRecipes().Find("F:1")));
    EXPECT_FALSE(chooser.OpenTreeTo("Porter"));
    EXPECT_EQ(chooser.treeRecipes().SelectedKey(), "R:1:3");
}

TEST_F(Recipes, TheTreeOpensToNamesWithQuotesAndBeyondAscii) {
    Recipe("The \"Best\" of Bob's");
    Recipe("Kölsch");
    chooser.Initialize();
    EXPECT_TRUE(chooser.OpenTreeTo("the \"best\" of bob's"));
    EXPECT_EQ(chooser.treeRecipes().SelectedKey(), "R:4:3");
    EXPECT_TRUE(chooser.OpenTreeTo("KÖLSCH"));
    EXPECT_EQ(chooser.treeRecipes().SelectedKey(), "R:5:3");
}

TEST_F(Recipes, ARecipeInNoFolderIsFoundUnderAllRecipes) {
    main.Execute("INSERT INTO RECIPES (NAME, FOLDER_ID, STYLE_ID) VALUES ('Lost', 99, 0)");
    main.tree.InitFromDatabase();
    chooser.Initialize();
    EXPECT_TRUE(chooser.OpenTreeTo("Lost"));
    EXPECT_EQ(chooser.treeRecipes().SelectedKey(), "R:4:0");
}

TEST(RecipeChooser, MakesATreeOfADatabase) {
    const auto file = MakeExchangeDatabase();
    file->Execute("INSERT INTO RECIPES (NAME, STYLE_NAME) VALUES ('Porter', 'Dark')");
    RecipeChooser chooser;
    chooser.SetDB(file.get());
    chooser.Initialize();
    EXPECT_TRUE(chooser.Add("S:Dark:1"));
    EXPECT_THAT(chooser.Selection(), ElementsAre("Porter"));
    EXPECT_TRUE(chooser.OpenTreeTo("porter"));
    EXPECT_EQ(chooser.treeRecipes().SelectedKey(), "R:1:0");
}

TEST(RecipeChooser, WithoutATreeIsEmpty) {
    RecipeChooser chooser;
    chooser.Initialize();
    EXPECT_EQ(chooser.treeRecipes().Count(), 0);
    EXPECT_FALSE(chooser.OpenTreeTo("Ale"));
    EXPECT_FALSE(chooser.Add("F:0"));
}

class Folders : public Objects {
  protected:
    Folders() {
        Folder(0, "Winter");
        Folder(1, "Old");
        StyleFolder(0, "Dark");
    }
    static Lines Texts(FolderChooser& chooser) {
        Lines texts;
        for (int item = 0; item < chooser.Items().Count(); ++item)
            texts.emplace_back(chooser.Items().Text(item));
        return texts;
    }
};

TEST_F(Folders, AreShownUnderTheirLabel) {
    FolderChooser chooser(main.tree, io);
    EXPECT_EQ(chooser.Label(), "Recipe Folder");
    EXPECT_THAT(Texts(chooser), ElementsAre("My Recipe Folders", "Winter", "Old"));
    EXPECT_EQ(chooser.FolderID(), 0);
    chooser.SetStyles(true);
    EXPECT_EQ(chooser.Label(), "Style Folder");
    EXPECT_THAT(Texts(chooser), ElementsAre("My Style Folders", "Dark"));
    EXPECT_EQ(chooser.FolderID(), 0);
}

TEST_F(Folders, AreChosenByTheirId) {
    FolderChooser chooser(main.tree, io);
    chooser.SetFolderID(2);
    EXPECT_EQ(chooser.FolderID(), 2);
    EXPECT_EQ(chooser.Items().SelectedKey(), "F:2");
    chooser.SetFolderID(3);
    EXPECT_EQ(chooser.FolderID(), 0);
    chooser.SetStyles(true);
    chooser.SetFolderID(3);
    EXPECT_EQ(chooser.Items().SelectedKey(), "G:3");
}

TEST_F(Folders, AreMadeUnderTheChosenOne) {
    FolderChooser chooser(main.tree, io);
    chooser.SetFolderID(1);
    EXPECT_TRUE(chooser.CreateFolder());
    EXPECT_EQ(chooser.FolderID(), 4);
    EXPECT_THAT(Texts(chooser), ElementsAre("My Recipe Folders", "Winter", "New Folder", "Old"));
    EXPECT_THAT(Select("SELECT PARENT_ID, NAME FROM FOLDERS WHERE ID = 4"), ElementsAre("1 New Folder"));
}

TEST_F(Folders, ARefusedFolderHasItsBox) {
    FolderChooser chooser(main.tree, io);
    main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'new folder', FALSE)");
    EXPECT_FALSE(chooser.CreateFolder());
    EXPECT_EQ(chooser.FolderID(), 0);
    EXPECT_THAT(Boxes(),
                ElementsAre("[Could not create new recipe folder] A folder with that name already exists"));
}

TEST_F(Folders, AreRenamedInPlace) {
    FolderChooser chooser(main.tree, io);
    EXPECT_FALSE(chooser.CanRename());
    EXPECT_FALSE(chooser.Rename("Mine"));
    Folder(0, "Summer");
    chooser.FillTheTree();
    chooser.SetFolderID(1);
    EXPECT_TRUE(chooser.Rename("Zenith"));
    EXPECT_THAT(Texts(chooser), ElementsAre("My Recipe Folders", "Summer", "Zenith", "Old"));
    EXPECT_TRUE(chooser.Rename("Autumn"));
    EXPECT_THAT(Texts(chooser), ElementsAre("My Recipe Folders", "Summer", "Autumn", "Old"));
    chooser.FillTheTree();
    EXPECT_EQ(chooser.FolderID(), 1);
    EXPECT_THAT(Texts(chooser), ElementsAre("My Recipe Folders", "Autumn", "Old", "Summer"));
    EXPECT_FALSE(chooser.Rename("summer"));
    EXPECT_THAT(Texts(chooser), ElementsAre("My Recipe Folders", "Autumn", "Old", "Summer"));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Could not rename recipe folder] A folder with that name already exists"));
}

TEST_F(Folders, LockedOnesDoNotChange) {
    FolderChooser chooser(main.tree, io);
    chooser.SetFolderID(1);
    chooser.SetLocked(true);
    EXPECT_FALSE(chooser.Choose("F:2"));
    EXPECT_FALSE(chooser.CreateFolder());
    EXPECT_FALSE(chooser.CanRename());
    EXPECT_FALSE(chooser.Rename("Autumn"));
    EXPECT_EQ(chooser.FolderID(), 1);
    EXPECT_THAT(Select("SELECT NAME FROM FOLDERS ORDER BY ID"), ElementsAre("Winter", "Old", "Dark"));
    chooser.SetLocked(false);
    EXPECT_TRUE(chooser.Choose("F:2"));
}

TEST_F(Folders, ADesignShowsASample) {
    FolderChooser chooser;
    EXPECT_THAT(Texts(chooser), ElementsAre("My Folders", "Folder A", "Folder B", "Folder C"));
    EXPECT_FALSE(chooser.CreateFolder());
    EXPECT_FALSE(chooser.CanRename());
}

TEST_F(Folders, TheDialogTakesTheChosenFolderOnOk) {
    ChooseFolderModel dialog(main.tree, io);
    EXPECT_EQ(dialog.FormName(), "frmChooseFolder");
    dialog.SetFolderID(1);
    EXPECT_TRUE(dialog.SetControl("FolderChooser1", "2"));
    EXPECT_FALSE(dialog.SetControl("FolderChooser1", "77"));
    EXPECT_FALSE(dialog.SetControl("txtName", "1"));
    EXPECT_EQ(dialog.Controls().front().text, "2");
    EXPECT_FALSE(dialog.Press("cmdNew"));
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_TRUE(dialog.Press("cmdOK"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_EQ(dialog.FolderID(), 2);
}

TEST_F(Folders, ACancelledDialogKeepsItsFolder) {
    ChooseFolderModel dialog(main.tree, io);
    dialog.SetStyleFolders(true);
    EXPECT_TRUE(dialog.StyleFolders());
    dialog.SetFolderID(3);
    dialog.SetControl("FolderChooser1", "0");
    dialog.Press("cmdCancel");
    EXPECT_TRUE(dialog.Cancelled());
    EXPECT_EQ(dialog.FolderID(), 3);
    EXPECT_FALSE(dialog.IsOpen());
}

}  // namespace
}  // namespace tw::test
