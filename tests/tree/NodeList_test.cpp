// Tests of the list of a folder's contents: showing, searching and renaming.
#include "tree/NodeList.h"

#include "ObjectsTest.h"

namespace tw::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class NodeLists : public Objects {
  protected:
    NodeLists() {
        Folder(0, "Winter");
        Folder(1, "Dark");
        Recipe("Stout", 2);
        Recipe("Ale");
        Recipe("mild");
        main.Execute("UPDATE RECIPES SET NOTES = 'roasted' WHERE NAME = 'Stout'");
    }
    Lines Shown(const char* column = "Name") {
        Lines lines;
        const auto place = static_cast<std::size_t>(list.Rows().ColumnOf(column));
        for (const ListRow& row : list.Rows().Rows()) lines.push_back(row.cells[place]);
        return lines;
    }

    // The captions of the columns in the order in which windows show them.
    Lines ShownColumns() const {
        Lines captions;
        for (const int column : list.Rows().ColumnsByPlace()) {
            const ListColumn& shown = list.Rows().Columns()[static_cast<std::size_t>(column)];
            if (!shown.hidden) captions.push_back(shown.Caption());
        }
        return captions;
    }

    const ObjectAccess access{*main.db, main.tree, io, outside.platform};
    ListLook look;
    NodeList list{access, look, false};
};

TEST_F(NodeLists, ShowsWhatAnEntryHoldsWithoutTheStyles) {
    EXPECT_THAT(Shown(), IsEmpty());
    list.Show("X:DB", false);
    EXPECT_THAT(Shown(), ElementsAre("All Recipes", "My Recipe Folders"));
    list.Show("F:0", false);
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
    list.Show("F:99", false);
    EXPECT_THAT(Shown(), IsEmpty());
    NodeList styles(access, look, true);
    styles.Show("X:DB", false);
    EXPECT_EQ(styles.Rows().Count(), 3);
}

TEST_F(NodeLists, IsFilledAgainOnlyWhenItMust) {
    list.Show("F:0", false);
    list.Rows().Clear();
    list.Show("F:0", false);
    EXPECT_THAT(Shown(), IsEmpty());
    list.Show("F:0", true);
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
}

TEST_F(NodeLists, SortsAsTheLookSaysWithFoldersFirst) {
    look.descending = true;
    list.Show("F:0", false);
    EXPECT_THAT(Shown(), ElementsAre("Winter", "mild", "Ale"));
    look.arrangeKey = 99;  // not a column: in the order of the tree
    list.Show("F:0", true);
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
}

TEST_F(NodeLists, TheRowsStayChosenWhenItIsFilledAgain) {
    list.Show("F:0", false);
    EXPECT_TRUE(list.ChooseByText("ALE\nR:3:3"));
    look.descending = true;
    list.Refill();
    EXPECT_THAT(list.ChosenKeys(), ElementsAre("R:3:3", "R:2:3"));
    EXPECT_EQ(list.SelectedKey(), "R:3:3");
    io.DeleteObject("R:3:3");
    list.Refill();
    EXPECT_THAT(list.ChosenKeys(), ElementsAre("R:2:3"));
}

TEST_F(NodeLists, AMissingNameChoosesNothing) {
    list.Show("F:0", false);
    list.ChooseKey("F:1");
    EXPECT_FALSE(list.ChooseByText("Ale\nPorter"));
    EXPECT_FALSE(list.ChooseKey("R:9:3"));
    EXPECT_THAT(list.ChosenKeys(), ElementsAre("F:1"));
}

TEST_F(NodeLists, FindsRecipesOfAllFoldersAndTellsWhereTheyLie) {
    Recipe("Lost", 77);
    main.Execute("UPDATE RECIPES SET NOTES = 'roasted' WHERE NAME = 'Lost'");
    list.Show("F:0", false);
    list.Find(" ROAST ");
    EXPECT_TRUE(list.IsFinding());
    EXPECT_THAT(Shown(), ElementsAre("Lost", "Stout"));
    EXPECT_THAT(Shown("Folder"), ElementsAre("  ", "My Recipe Folders / Winter / Dark"));
    EXPECT_EQ(list.Rows().Row(1).key, "R:1:0");
    EXPECT_THAT(ShownColumns(), Contains("Folder"));
    list.Find("roast porter");
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_EQ(list.Hint(), "No recipe holds \"roast porter\".");
    list.Find(" ");
    EXPECT_FALSE(list.IsFinding());
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
    EXPECT_THAT(ShownColumns(), Not(Contains("Folder")));
}

TEST_F(NodeLists, WindowsShowFirstWhatABrewerLooksFor) {
    const Lines first = {"Name", "Style", "OG", "IBU", "Color", "Changed"};
    const Lines others = {"Size", "Type", "Created", "Batches",      "Batch Size",
                          "FG",   "ABV",  "CO2",     "Water Profile"};
    Lines all = first;
    all.insert(all.end(), others.begin(), others.end());
    EXPECT_EQ(ShownColumns(), all);
    list.Find("stout");
    all.insert(all.begin() + 1, "Folder");
    EXPECT_EQ(ShownColumns(), all);
    // The columns themselves, and their numbers in the menu, stay as they are.
    EXPECT_EQ(list.Rows().ColumnOf("Name"), 0);
    EXPECT_EQ(list.Rows().ColumnOf("Modified When"), 3);
    EXPECT_EQ(list.Rows().ColumnOf("Water Profile"), 13);
    EXPECT_EQ(list.Rows().ColumnOf("Folder"), 14);
    EXPECT_EQ(list.Rows().ColumnOf("Style"), 15);
}

TEST_F(NodeLists, ARecipeShowsItsStyleByWhichItIsSorted) {
    Style("Porter");
    Style("Bitter");
    io.MoveObject("R:2:0", "S:1:0");
    list.Show("F:0", false);
    EXPECT_THAT(Shown("Style"), ElementsAre("  ", "Porter", "  "));
    list.Find("a");
    list.Show("F:0", false);
    EXPECT_THAT(Shown("Style"), ElementsAre("  ", "Porter", "  "));
    look.arrangeKey = list.Rows().ColumnOf("Style");
    look.descending = true;
    list.Sort();
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
    look.descending = false;
    list.Sort();
    EXPECT_THAT(Shown(), ElementsAre("Winter", "mild", "Ale"));
}

TEST_F(NodeLists, ASearchSaysWhatItHasFoundAndWhere) {
    list.Show("F:2", false);
    EXPECT_EQ(list.FoundText(), "");
    list.Find(" roast ");
    EXPECT_EQ(list.FoundText(), "1 recipe in all folders contains \"roast\"");
    main.Execute("UPDATE RECIPES SET NOTES = 'roasted'");
    list.Find("roasted");
    EXPECT_EQ(list.FoundText(), "3 recipes in all folders contain \"roasted\"");
    list.Find("porter");
    EXPECT_EQ(list.FoundText(), "No recipe in any folder contains \"porter\"");
    list.Find("");
    EXPECT_EQ(list.FoundText(), "");
    EXPECT_THAT(Shown(), ElementsAre("Stout"));
}

TEST_F(NodeLists, ShowingAFolderEndsTheSearch) {
    list.Show("F:0", false);
    list.Find("stout");
    list.Show("F:0", false);
    EXPECT_FALSE(list.IsFinding());
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
}

TEST_F(NodeLists, ASearchFollowsTheDatabase) {
    list.Find("stout");
    io.MoveObject("R:1:0", "F:1");
    list.Refill();
    EXPECT_THAT(Shown("Folder"), ElementsAre("My Recipe Folders / Winter"));
    io.DeleteObject("R:1:0");
    list.Refill();
    EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(NodeLists, ANameIsEditedInItsPlace) {
    list.Show("F:0", false);
    EXPECT_FALSE(list.BeginEdit(ListTable::kNoRow));
    ASSERT_TRUE(list.BeginEdit(1));
    EXPECT_EQ(list.EditedRow(), 1);
    EXPECT_TRUE(list.EndEdit("Zwickel"));
    EXPECT_EQ(list.EditedRow(), ListTable::kNoRow);
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Zwickel", "mild"));
    EXPECT_EQ(main.tree.Nodes("R:2:0")->Name(), "Zwickel");
    EXPECT_THAT(Notices(), ElementsAre("renamed Ale to Zwickel"));
}

TEST_F(NodeLists, ARefusedNameLeavesTheOldOne) {
    list.Show("F:0", false);
    list.BeginEdit(1);
    EXPECT_FALSE(list.EndEdit("MILD"));
    EXPECT_THAT(Boxes(), ElementsAre("[Could not rename recipe] A recipe with that name already exists"));
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
    EXPECT_FALSE(list.EndEdit("Other"));  // no edit is active
    list.BeginEdit(1);
    list.CancelEdit();
    EXPECT_FALSE(list.EndEdit("Other"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(NodeLists, ANameLeftAsItWasIsNoRename) {
    list.Show("F:0", false);
    list.BeginEdit(1);
    EXPECT_TRUE(list.EndEdit("Ale"));
    EXPECT_THAT(Notices(), IsEmpty());
}

TEST_F(NodeLists, SystemFoldersCannotBeRenamed) {
    list.Show("X:DB", false);
    EXPECT_FALSE(list.BeginEdit(0));
    EXPECT_FALSE(list.BeginEdit(1));
}

TEST_F(NodeLists, ANewFolderStandsBehindTheOthersWithItsNameToEdit) {
    list.Show("F:0", false);
    list.AddFolder(io.CreateFolderObject("F:0", ""));
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild", "New Folder"));
    EXPECT_THAT(Shown("Size"), ElementsAre("1", "  ", "  ", "0"));
    EXPECT_EQ(Shown("Type").back(), "Recipe Folder");
    EXPECT_EQ(Shown("Created When").back(), "03/09/2024  02:05 PM");
    EXPECT_EQ(Shown("Modified When").back(), "03/09/2024  02:05 PM");
    EXPECT_EQ(list.EditedRow(), 3);
    EXPECT_EQ(list.SelectedKey(), "F:3");
}

TEST_F(NodeLists, AnEmptyListTellsWhatToDo) {
    list.Show("F:0", false);
    EXPECT_EQ(list.Hint(), "");
    list.AddFolder(io.CreateFolderObject("F:0", "Empty"));
    list.Show("F:3", false);
    EXPECT_EQ(list.Hint(), "This folder is empty.");
    for (const char* key : {"R:1:0", "R:2:0", "R:3:0"}) io.DeleteObject(key);
    EXPECT_EQ(list.Hint().substr(0, 25), "There is no recipe yet. C");
    list.OmitAdvice();
    EXPECT_EQ(list.Hint(), "This folder is empty.");
}

TEST_F(NodeLists, AStyleWithoutRecipesIsNoFolder) {
    Style("Stout");
    NodeList styles(access, look, true);
    for (const char* key : {"S:1:0", "S:1:1"}) {
        styles.Show(key, false);
        EXPECT_EQ(styles.Hint(), "No recipe has this style yet.");
    }
    for (const char* key : {"R:1:0", "R:2:0", "R:3:0"}) io.DeleteObject(key);
    styles.Show("S:0:1", false);
    EXPECT_EQ(styles.Hint(), "There is no recipe without a style.");
}

TEST(ListLook, TakesTheCommandsOfViewAndArrange) {
    ListLook look;
    int changes = 0;
    FormButtons buttons;
    buttons.Add(LookButtons(look, [&changes] { ++changes; }));
    EXPECT_EQ(look.viewType, ListViewType::List);
    EXPECT_TRUE(buttons.Press("mnuDetails"));
    EXPECT_EQ(look.viewType, ListViewType::Details);
    EXPECT_TRUE(buttons.Press("mnuLargeIcons"));
    EXPECT_EQ(look.viewType, ListViewType::LargeIcons);
    EXPECT_TRUE(buttons.Press("mnuArrangeBy(2)"));
    EXPECT_EQ(look.arrangeKey, 2);
    EXPECT_FALSE(look.descending);
    EXPECT_TRUE(buttons.Press("mnuArrangeBy(2)"));
    EXPECT_TRUE(look.descending);
    EXPECT_TRUE(buttons.Press("mnuArrangeBy(3)"));
    EXPECT_FALSE(look.descending);
    EXPECT_EQ(changes, 5);
    for (const char* command :
         {"mnuView", "mnuArrangeBy", "mnuArrangeBy(-1)", "mnuArrangeBy()", "mnuArrangeBy(16)", ""})
        EXPECT_FALSE(buttons.Press(command)) << command;
    EXPECT_EQ(changes, 5);
    EXPECT_FALSE(TakeLookCommand(look, PopupCommand::LineUp));
}

}  // namespace
}  // namespace tw::test
