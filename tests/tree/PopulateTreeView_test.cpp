#include <gtest/gtest.h>

#include "TreeTest.h"

namespace tw::test {
namespace {

class PopulateTreeView : public testing::Test {
  protected:
    PopulateTreeView() {
        main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'Winter', FALSE)");
        main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (1, 'Dark', FALSE)");
        main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'British', TRUE)");
        main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', 3)");
        main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Badger', 1, 2)");
        main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Mild', 0, 0)");
        main.Load();
    }
    // Returns "PARENT> KEY" of each entry, without name and icons.
    Lines Keys() const {
        Lines keys;
        for (const std::string& line : view.lines)
            keys.push_back(line.substr(0, line.find(' ', line.find("> ") + 2)));
        return keys;
    }

    MainTree main;
    RecordingView view;
};

TEST_F(PopulateTreeView, ForTheRecipeTreeShowsEverything) {
    EXPECT_EQ(view.KeyOf(main.tree.PopulateTreeViewForRecipeTree(view)), "X:DB");
    EXPECT_EQ(view.lines, (Lines{
                              "clear",
                              "none> X:DB Recipe Database [database, database]",
                              "X:DB> F:-1 All Recipes [sysfolder closed, sysfolder open]",
                              "F:-1> R:1:0 Badger [document, document]",
                              "F:-1> R:2:0 Mild [document, document]",
                              "X:DB> X:STYLE By Style [sysfolder closed, sysfolder open]",
                              "X:STYLE> G:-1 All Styles [sysfolder closed, sysfolder open]",
                              "G:-1> S:0:0 (None) [style closed, style open]",
                              "S:0:0> R:2:1 Mild [document, document]",
                              "G:-1> S:1:0 Stout [style closed, style open]",
                              "S:1:0> R:1:1 Badger [document, document]",
                              "X:STYLE> G:0 My Style Folders [sysfolder closed, sysfolder open]",
                              "G:0> G:3 British [folder closed, folder open]",
                              "G:3> S:1:1 Stout [style closed, style open]",
                              "S:1:1> R:1:2 Badger [document, document]",
                              "G:0> S:0:1 (None) [style closed, style open]",
                              "S:0:1> R:2:2 Mild [document, document]",
                              "X:DB> F:0 My Recipe Folders [sysfolder closed, sysfolder open]",
                              "F:0> F:1 Winter [folder closed, folder open]",
                              "F:1> F:2 Dark [folder closed, folder open]",
                              "F:2> R:1:3 Badger [document, document]",
                              "F:0> R:2:3 Mild [document, document]",
                          }));
}

TEST_F(PopulateTreeView, ForTheExplorerStopsAtTheStyles) {
    EXPECT_EQ(view.KeyOf(main.tree.PopulateTreeViewForRecipeExplorer(view)), "X:DB");
    EXPECT_EQ(Keys(), (Lines{"clear", "none> X:DB", "X:DB> F:-1", "X:DB> X:STYLE", "X:STYLE> G:-1",
                             "G:-1> S:0:0", "G:-1> S:1:0", "X:STYLE> G:0", "G:0> G:3", "G:3> S:1:1",
                             "G:0> S:0:1", "X:DB> F:0", "F:0> F:1", "F:1> F:2"}));
}

TEST_F(PopulateTreeView, ForTheStyleListShowsStyleFoldersAtTheTop) {
    EXPECT_EQ(view.KeyOf(main.tree.PopulateTreeViewForStyleList(view)), "G:-1");
    EXPECT_EQ(Keys(), (Lines{"clear", "none> G:-1", "none> G:0", "G:0> G:3"}));
}

TEST_F(PopulateTreeView, WithFoldersShowsTheirRootAndFoldersAlone) {
    EXPECT_EQ(view.KeyOf(main.tree.PopulateTreeViewWithRecipeFolders(view)), "F:0");
    EXPECT_EQ(Keys(), (Lines{"clear", "none> F:0", "F:0> F:1", "F:1> F:2"}));
    EXPECT_EQ(view.KeyOf(main.tree.PopulateTreeViewWithStyleFolders(view)), "G:0");
    EXPECT_EQ(Keys(), (Lines{"clear", "none> G:0", "G:0> G:3"}));
}

TEST_F(PopulateTreeView, LeavesOutNoStyleWhereStylesAreAskedFor) {
    main.tree.PopulateTreeView(view, TreePart::Styles, true, true, true);
    EXPECT_EQ(Keys(), (Lines{"clear", "none> X:STYLE", "X:STYLE> G:-1", "G:-1> S:1:0", "S:1:0> R:1:1",
                             "X:STYLE> G:0", "G:0> G:3", "G:3> S:1:1", "S:1:1> R:1:2"}));
    main.tree.PopulateTreeView(view, TreePart::StyleFolders, false, true, false);
    EXPECT_EQ(Keys(), (Lines{"clear", "none> G:3", "G:3> S:1:1"}));
}

TEST_F(PopulateTreeView, LeavesOutByStyleWithAllBelowIt) {
    main.tree.PopulateTreeView(view, TreePart::WithoutStyles, false, true, true);
    EXPECT_EQ(Keys(), (Lines{"clear", "none> F:-1", "F:-1> R:1:0", "F:-1> R:2:0", "none> F:0", "F:0> F:1",
                             "F:1> F:2", "F:2> R:1:3", "F:0> R:2:3"}));
}

// A style that is left out takes its recipes with it.
TEST_F(PopulateTreeView, PassesOverStylesWithTheirRecipes) {
    main.tree.PopulateTreeView(view, TreePart::Everything, false, false, true);
    EXPECT_EQ(Keys(), (Lines{"clear", "none> F:-1", "F:-1> R:1:0", "F:-1> R:2:0", "none> X:STYLE",
                             "X:STYLE> G:-1", "X:STYLE> G:0", "G:0> G:3", "none> F:0", "F:0> F:1", "F:1> F:2",
                             "F:2> R:1:3", "F:0> R:2:3"}));
}

TEST_F(PopulateTreeView, ShowsTheClosedIconForAnOpenOneThatIsEmpty) {
    main.tree.Nodes("F:1")->SetIconOpen("");
    main.tree.PopulateTreeViewWithRecipeFolders(view);
    EXPECT_EQ(view.lines[2], "F:0> F:1 Winter [folder closed, folder closed]");
}

TEST_F(PopulateTreeView, LeavesTheWidgetEmptyWithoutTheStartKey) {
    main.tree.Clear();
    view.lines = {"old"};
    EXPECT_EQ(main.tree.PopulateTreeViewForRecipeTree(view), TreeViewItem::Top);
    EXPECT_EQ(view.lines, (Lines{"clear"}));
}

TEST_F(PopulateTreeView, HandsBackNothingWhenNothingWasAdded) {
    TWTree tree;
    tree.AddItem("Recipe Database", "X:DB", "database", "database");
    EXPECT_EQ(tree.PopulateTreeView(view, TreePart::Everything, false, true, true), TreeViewItem::Top);
    EXPECT_EQ(view.lines, (Lines{"clear"}));
}

}  // namespace
}  // namespace tw::test
