#include "tree/ExplorerModel.h"

#include "ObjectsTest.h"
#include "support/OtherNames.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Page = ExplorerModel::Page;

class Explorer : public Objects {
  protected:
    // Folders: F:1 Winter, which contains F:2 Dark; style folder G:3 British. Styles: 1 Stout (in British), 2
    // Bock. Recipes: 1 Badger (in Dark, of style Stout), 2 Ale, 3 mild.
    Explorer() {
        Folder(0, "Winter");
        Folder(1, "Dark");
        StyleFolder(0, "British");
        Style("Stout", 3);
        Style("Bock");
        Recipe("Badger", 2, 1);
        Recipe("Ale");
        Recipe("mild");
        listener.log.clear();
        model = std::make_unique<ExplorerModel>(
            ObjectAccess{*main.db, main.tree, io, outside.platform},
            ExplorerModel::Hooks{[this](const std::string& name) { opened.push_back(name); },
                                 [this](const std::string& name, std::int64_t folder) {
                                     edited.push_back(name + " " + std::to_string(folder));
                                     return edit ? edit() : std::nullopt;
                                 }});
    }
    ListTable& Rows(Page page) { return model->List(page).Rows(); }
    Lines Shown() {
        Lines names;
        for (const ListRow& row : Rows(model->Shown()).Rows()) names.push_back(row.cells.front());
        return names;
    }
    // Returns the tree of the page shown, as far as it is filled: "KEY NAME", indented by two blanks a level.
    Lines TreeShown() {
        Lines lines;
        AddTree(model->Tree(model->Shown()), TreeItems::kNone, "", lines);
        return lines;
    }
    void Choose(const std::string& names) { ASSERT_TRUE(model->SetControl("lvNames", names)) << names; }
    void Press(const std::string& button) { ASSERT_TRUE(model->Press(button)) << button; }
    Lines Lit() {
        Lines lit;
        for (const char* command : {"mnuOpen", "mnuDelete", "mnuRename", "mnuNewFolder", "mnuNewStyle",
                                    "mnuRenameFolder", "mnuDeleteFolder", "mnuLineUp"})
            if (model->IsEnabled(command)) lit.emplace_back(command);
        return lit;
    }
    void FailOn(const std::string& beginning) {
        main.db->SetStatementHook([beginning](std::string_view sql) {
            if (sql.starts_with(beginning)) throw Error("Test", "the disk is on fire", 7);
        });
    }

    Lines opened, edited;
    std::function<std::optional<std::string>()> edit;
    std::unique_ptr<ExplorerModel> model;

  private:
    static void AddTree(const TreeItems& items, int above, const std::string& indent, Lines& lines) {
        for (const int item : items.Children(above)) {
            lines.push_back(indent + items.Key(item) + " " + std::string(items.Text(item)));
            AddTree(items, item, indent + "  ", lines);
        }
    }
};

TEST_F(Explorer, TheTreeOfStylesKnowsTheirCodes) {
    AddOtherNames(*main.db);
    AddFacts(*main.db, CatalogueKind::Style, "Stout", "15B", "Beer 2021");
    model->Settle();
    model->Show(Page::Styles);
    TreeItems& tree = model->Tree(Page::Styles);
    EXPECT_EQ(tree.Text(tree.Find("S:1:1")), "Stout");
    EXPECT_EQ(tree.Code(tree.Find("S:1:1")), "15B");
    EXPECT_EQ(tree.Code(tree.Find("S:2:1")), "");
    // A renamed style is the brewer's own and has no code.
    ASSERT_TRUE(io.RenameObject("S:1:1", "My Stout"));
    model->Settle();
    EXPECT_EQ(tree.Code(tree.Find("S:1:1")), "");
}

TEST_F(Explorer, StartsOnTheRootsOfBothPagesWithTheRecipes) {
    EXPECT_EQ(model->Shown(), Page::Recipes);
    EXPECT_EQ(model->Tree(Page::Recipes).SelectedKey(), "F:0");
    EXPECT_EQ(model->Tree(Page::Styles).SelectedKey(), "G:0");
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
    EXPECT_THAT(TreeShown(), ElementsAre("X:DB Recipe Database", "  F:-1 All Recipes",
                                         "  F:0 My Recipe Folders", "    F:1 Winter", "      F:2 Dark"));
    model->Show(Page::Styles);
    EXPECT_THAT(Shown(), ElementsAre("British", "(None)", "Bock"));
    EXPECT_THAT(TreeShown(),
                ElementsAre("X:STYLE By Style", "  G:-1 All Styles", "    S:0:0 (None)", "    S:2:0 Bock",
                            "    S:1:0 Stout", "  G:0 My Style Folders", "    G:3 British",
                            "      S:1:1 Stout", "    S:0:1 (None)", "    S:2:1 Bock"));
}

TEST_F(Explorer, AnEmptyDatabaseShowsItsFolders) {
    MainTree empty;
    empty.tree.InitFromDatabase();
    ExplorerModel explorer({*empty.db, empty.tree, io, outside.platform}, {});
    EXPECT_EQ(explorer.NodeKey(), "F:0");
    EXPECT_EQ(explorer.List(Page::Recipes).Hint().substr(0, 24), "There is no recipe yet. ");
    TWTree nothing(empty.db.get());
    ExplorerModel bare({*empty.db, nothing, io, outside.platform}, {});
    EXPECT_EQ(bare.NodeKey(), "");
    for (const char* command : {"mnuOpen", "mnuDelete", "mnuNewFolder", "mnuNewStyle", "mnuDeleteFolder"})
        EXPECT_TRUE(bare.Press(command)) << command;
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Explorer, AChosenEntryFillsTheListOnce) {
    EXPECT_TRUE(model->ChooseNode("F:2"));
    EXPECT_THAT(Shown(), ElementsAre("Badger"));
    Rows(Page::Recipes).Clear();
    EXPECT_TRUE(model->ChooseNode("F:2"));
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_FALSE(model->ChooseNode("G:0"));
    EXPECT_EQ(model->NodeKey(), "F:2");
}

TEST_F(Explorer, OpenEntersFoldersAndOpensRecipes) {
    Choose("Winter");
    Press("mnuOpen");
    EXPECT_EQ(model->NodeKey(), "F:1");
    EXPECT_THAT(Shown(), ElementsAre("Dark"));
    model->ChooseNode("F:0");
    Choose("mild");
    Press("mnuOpen");
    EXPECT_THAT(opened, ElementsAre("mild"));
    EXPECT_TRUE(model->IsOpen());
    EXPECT_EQ(model->Status(), "'mild' is open in the main window.");
    Choose("Ale");
    EXPECT_EQ(model->Status(), "3 objects");
}

TEST_F(Explorer, TheStatusSaysThatASearchLooksIntoAllFolders) {
    model->ChooseNode("F:1");
    model->Find("badger");
    EXPECT_EQ(model->Status(), "1 recipe in all folders contains \"badger\"");
    model->Find("");
    EXPECT_EQ(model->Status(), "1 object");
    EXPECT_THAT(Shown(), ElementsAre("Dark"));
}

TEST_F(Explorer, ARenamedRecipeIsOpenedUnderItsStoredName) {
    Choose("mild");
    Press("mnuRename");
    model->SetControl("txtLabel", " Dark Mild ");
    Press("mnuOpen");
    EXPECT_THAT(opened, ElementsAre("Dark Mild"));
}

TEST_F(Explorer, SystemFoldersAreEnteredFromTheList) {
    model->ChooseNode("X:DB");
    Choose("All Recipes");
    EXPECT_THAT(Lit(), ElementsAre("mnuOpen"));
    Press("mnuOpen");
    EXPECT_EQ(model->NodeKey(), "F:-1");
    EXPECT_THAT(Shown(), ElementsAre("Ale", "Badger", "mild"));
}

TEST_F(Explorer, CommandsAreLitByTheKeys) {
    EXPECT_THAT(Lit(), ElementsAre("mnuNewFolder"));
    Choose("Ale");
    EXPECT_THAT(Lit(), ElementsAre("mnuOpen", "mnuDelete", "mnuRename", "mnuNewFolder"));
    Choose("Ale\nmild");
    EXPECT_THAT(Lit(), ElementsAre("mnuOpen", "mnuDelete", "mnuNewFolder"));
    model->ChooseNode("F:1");
    EXPECT_THAT(Lit(), ElementsAre("mnuNewFolder", "mnuRenameFolder", "mnuDeleteFolder"));
    model->ChooseNode("F:-1");
    EXPECT_THAT(Lit(), IsEmpty());
    Press("mnuLargeIcons");
    EXPECT_THAT(Lit(), ElementsAre("mnuLineUp"));
}

TEST_F(Explorer, NoneCannotBeOpenedRenamedMovedOrDeleted) {
    model->Show(Page::Styles);
    Choose("(None)");
    EXPECT_THAT(Lit(), ElementsAre("mnuNewFolder", "mnuNewStyle"));
    for (const char* command : {"mnuOpen", "mnuDelete", "mnuRename"}) Press(command);
    EXPECT_EQ(model->List(Page::Styles).EditedRow(), ListTable::kNoRow);
    EXPECT_FALSE(model->CanDrop({"S:0:1"}, "G:3"));
    model->ChooseNode("S:0:1");
    for (const char* command : {"mnuDeleteFolder", "mnuRenameFolder"}) Press(command);
    EXPECT_EQ(model->EditedNode(), TreeItems::kNone);
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(edited, IsEmpty());
}

TEST_F(Explorer, WithoutAStyleEditorItsCommandsAreDark) {
    ExplorerModel explorer({*main.db, main.tree, io, outside.platform}, {});
    explorer.Show(Page::Styles);
    explorer.SetControl("lvNames", "Bock");
    EXPECT_FALSE(explorer.IsEnabled("mnuOpen"));
    EXPECT_FALSE(explorer.IsEnabled("mnuNewStyle"));
    EXPECT_TRUE(explorer.Press("mnuNewStyle"));
    EXPECT_TRUE(explorer.IsEnabled("mnuDelete"));
}

TEST_F(Explorer, AStyleIsOpenedInItsEditor) {
    model->Show(Page::Styles);
    Choose("Bock");
    edit = [this]() -> std::optional<std::string> {
        io.RenameStyle(2, "Doppelbock", Asking::Quietly);
        return "Doppelbock";
    };
    Press("mnuOpen");
    EXPECT_THAT(edited, ElementsAre("Bock 0"));
    EXPECT_THAT(Shown(), ElementsAre("British", "(None)", "Doppelbock"));
    EXPECT_EQ(model->List(Page::Styles).SelectedKey(), "S:2:1");
}

TEST_F(Explorer, ANewStyleGoesIntoTheChosenFolderAndIsChosen) {
    model->Show(Page::Styles);
    model->ChooseNode("G:3");
    edit = [this]() -> std::optional<std::string> {
        Style("Porter", 3);
        return "Porter";
    };
    Press("mnuNewStyle");
    EXPECT_THAT(edited, ElementsAre(" 3"));
    EXPECT_EQ(model->List(Page::Styles).SelectedKey(), "S:3:1");
    EXPECT_NE(model->Tree(Page::Styles).Find("S:3:0"), TreeItems::kNone);
    edit = nullptr;  // cancelled
    model->ChooseNode("G:0");
    Press("mnuNewStyle");
    EXPECT_EQ(edited.back(), " 0");
    model->ChooseNode("G:-1");
    EXPECT_FALSE(model->IsEnabled("mnuNewStyle"));
    model->ChooseNode("S:2:1");
    EXPECT_FALSE(model->IsEnabled("mnuNewStyle"));
}

TEST_F(Explorer, ANewFolderIsChosenInTheTreeWithItsNameToEdit) {
    model->ChooseNode("F:1");
    Press("mnuNewFolder");
    EXPECT_EQ(model->NodeKey(), "F:4");
    EXPECT_EQ(model->EditedNode(), model->Tree(Page::Recipes).Find("F:4"));
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_TRUE(model->SetControl("txtLabel", "Amber"));
    EXPECT_EQ(main.tree.Nodes("F:4")->Name(), "Amber");
    EXPECT_EQ(model->NodeKey(), "F:4");
    EXPECT_FALSE(model->SetControl("txtLabel", "Again"));
    model->Show(Page::Styles);
    Press("mnuNewFolder");
    EXPECT_EQ(model->NodeKey(), "G:5");
}

TEST_F(Explorer, ARefusedNameInTheTreeIsTakenBack) {
    Folder(0, "Summer");
    model->Settle();
    model->ChooseNode("F:4");
    Press("mnuRenameFolder");
    EXPECT_TRUE(model->SetControl("txtLabel", "winter"));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Could not rename recipe folder] A folder with that name already exists"));
    EXPECT_EQ(model->Tree(Page::Recipes).Text(model->Tree(Page::Recipes).Find("F:4")), "Summer");
    Press("mnuRenameFolder");
    EXPECT_TRUE(model->RenameNode("Summer"));  // unchanged
    Press("mnuRenameFolder");
    model->CancelEdit();
    EXPECT_FALSE(model->RenameNode("Spring"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Explorer, ARenamedFolderGoesToItsPlaceInTreeAndList) {
    Choose("Winter");
    Press("mnuRename");
    EXPECT_TRUE(model->SetControl("txtLabel", "Zenith"));
    Folder(0, "Beta");
    model->Settle();
    EXPECT_THAT(Shown(), ElementsAre("Beta", "Zenith", "Ale", "mild"));
    EXPECT_EQ(TreeShown()[3], "    F:4 Beta");
    EXPECT_EQ(model->List(Page::Recipes).SelectedKey(), "F:1");
}

TEST_F(Explorer, DeletingOneAsksByItsName) {
    Choose("Ale");
    Press("mnuDelete");
    EXPECT_THAT(Boxes(), ElementsAre("[Confirm Delete] Are you sure you want to delete 'Ale'? -> No"));
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
    outside.messages.answers = {Answer::Yes};
    Press("mnuDelete");
    EXPECT_THAT(Boxes(), ElementsAre("[Confirm Delete] Are you sure you want to delete 'Ale'? -> Yes"));
    EXPECT_THAT(Shown(), ElementsAre("Winter", "mild"));
    EXPECT_THAT(Notices(), ElementsAre("deleted Ale", "deletion ended"));
}

TEST_F(Explorer, DeletingSeveralAsksByTheirNumberAndPassesOverWhatStays) {
    model->Show(Page::Styles);
    Choose("British\n(None)\nBock");
    outside.messages.answers = {Answer::Yes};
    Press("mnuDelete");
    EXPECT_THAT(Boxes(),
                ElementsAre("[Confirm Delete] Are you sure you want to delete the selected 3 items? -> Yes"));
    EXPECT_THAT(Shown(), ElementsAre("(None)"));
    EXPECT_THAT(Select("SELECT STYLE_ID FROM RECIPES WHERE NAME = 'Badger'"), ElementsAre("0"));
}

TEST_F(Explorer, ADeletedFolderTakesItsRecipesAlong) {
    Choose("Winter");
    outside.messages.answers = {Answer::Yes};
    Press("mnuDelete");
    EXPECT_THAT(Select("SELECT NAME FROM RECIPES ORDER BY NAME"), ElementsAre("Ale", "mild"));
    EXPECT_EQ(model->Tree(Page::Recipes).Find("F:2"), TreeItems::kNone);
    model->Show(Page::Styles);
    model->ChooseNode("S:1:1");
    EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(Explorer, ADeletedEntryOfTheTreeLeadsToTheOneAbove) {
    model->ChooseNode("F:2");
    Press("mnuDeleteFolder");
    EXPECT_EQ(model->NodeKey(), "F:2");
    outside.messages.answers = {Answer::Yes};
    Press("mnuDeleteFolder");
    EXPECT_THAT(Boxes(), ElementsAre("[Confirm Delete] Are you sure you want to delete 'Dark'? -> No",
                                     "[Confirm Delete] Are you sure you want to delete 'Dark'? -> Yes"));
    EXPECT_EQ(model->NodeKey(), "F:1");
    EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(Explorer, AFailedDeletionRaisesAndShowsWhatIsLeft) {
    Choose("Ale\nmild");
    outside.messages.answers = {Answer::Yes};
    FailOn("DELETE FROM RECIPE_LOG WHERE RECIPE_ID = 3");
    EXPECT_THROW(model->Press("mnuDelete"), Error);
    main.db->SetStatementHook(nullptr);
    EXPECT_THAT(Shown(), ElementsAre("Winter"));
    EXPECT_TRUE(model->IsOpen());
}

TEST_F(Explorer, ManyAreDeletedBehindAProgressWindow) {
    std::string names;
    for (int i = 0; i < 12; ++i) {
        Recipe("Brew " + std::to_string(i), 1);
        names += (i ? "\n" : "") + ("Brew " + std::to_string(i));
    }
    model->ChooseNode("F:1");
    Choose(names);
    EXPECT_EQ(model->Status(), "12 of 13 objects chosen");
    outside.messages.answers = {Answer::Yes};
    Press("mnuDelete");
    EXPECT_THAT(outside.dialogs.shown, ElementsAre("frmProgress"));
    EXPECT_THAT(Shown(), ElementsAre("Dark"));
}

TEST_F(Explorer, RowsAreDroppedOnAFolder) {
    const Lines keys = {"R:2:3", "R:3:3"};
    EXPECT_TRUE(model->CanDrop(keys, "F:2"));
    EXPECT_FALSE(model->CanDrop(keys, "F:-1"));
    EXPECT_FALSE(model->CanDrop(keys, "X:DB"));
    EXPECT_FALSE(model->CanDrop({"R:2:3", "F:1"}, "F:1"));  // all of them have to fit
    EXPECT_FALSE(model->CanDrop({}, "F:1"));
    model->Drop(keys, "F:-1");
    model->Drop(keys, "F:1");
    EXPECT_THAT(Shown(), ElementsAre("Winter"));
    EXPECT_THAT(Tree("F:1"), ElementsAre("F:2 Dark", "  R:1:3 Badger", "R:2:3 Ale", "R:3:3 mild"));
    EXPECT_TRUE(model->Tree(Page::Recipes).IsExpanded(model->Tree(Page::Recipes).Find("F:1")));
    EXPECT_EQ(model->NodeKey(), "F:0");
}

// Autosave runs while several recipes are moved or deleted, and gives a recipe a new key.
TEST_F(Explorer, ARecipeThatIsSavedInTheMiddleOfARunIsNotPassedOver) {
    const auto save = [this] {
        if (listener.log.back() != "moved Ale 1") return;
        io.DeleteRecipeByName("mild");
        Recipe("mild");
    };
    listener.look = save;
    model->Drop({"R:2:3", "R:3:3"}, "F:1");
    listener.look = nullptr;
    EXPECT_THAT(Tree("F:1"), ElementsAre("F:2 Dark", "  R:1:3 Badger", "R:2:3 Ale", "R:4:3 mild"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Explorer, ADropStopsAtAClashOfNamesWithTheEarlierRowsMoved) {
    Folder(0, "Dark");    // F:4 clashes with F:2 in Winter
    Folder(0, "Amber");   // F:5
    Folder(0, "Zenith");  // F:6
    model->Settle();
    model->Drop({"F:5", "F:4", "F:6"}, "F:1");
    EXPECT_THAT(Boxes(),
                ElementsAre("[Could not move recipe folder] The destination folder already contains a "
                            "folder with that name"));
    EXPECT_EQ(main.tree.Nodes("F:5")->Parent()->Key(), "F:1");
    EXPECT_THAT(Shown(), ElementsAre("Dark", "Winter", "Zenith", "Ale", "mild"));
}

TEST_F(Explorer, AFolderIsNotMovedIntoItself) {
    model->Drop({"F:1"}, "F:2");
    EXPECT_THAT(Boxes(), ElementsAre("[Could not move folder] The destination folder is a sub-folder of the "
                                     "source folder"));
    EXPECT_FALSE(model->CanDrop({"F:1"}, "F:1"));
}

TEST_F(Explorer, ARecipeDroppedOnAStyleKeepsItsFolder) {
    model->Show(Page::Styles);
    model->ChooseNode("S:1:1");
    EXPECT_THAT(Shown(), ElementsAre("Badger"));
    model->Drop({"R:1:2"}, "S:2:0");
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_THAT(Select("SELECT STYLE_ID, FOLDER_ID FROM RECIPES WHERE ID = 1"), ElementsAre("2 2"));
    model->Drop({"R:1:1"}, "S:0:0");
    EXPECT_THAT(Select("SELECT STYLE_ID FROM RECIPES WHERE ID = 1"), ElementsAre("0"));
    EXPECT_THAT(Notices(), ElementsAre("new style Badger 2", "new style Badger 0"));
}

TEST_F(Explorer, AStyleIsMovedToAFolder) {
    model->Show(Page::Styles);
    EXPECT_FALSE(model->CanDrop({"S:2:1"}, "G:-1"));
    model->Drop({"S:2:1"}, "G:3");
    EXPECT_THAT(Shown(), ElementsAre("British", "(None)"));
    EXPECT_EQ(main.tree.Nodes("S:2:1")->Parent()->Key(), "G:3");
}

TEST_F(Explorer, BothListsAreShownAndSortedAlike) {
    ListLook look;
    look.descending = true;
    model->SetLook(look);
    EXPECT_THAT(Shown(), ElementsAre("Winter", "mild", "Ale"));
    Press("mnuDetails");
    Press("mnuArrangeBy(0)");
    EXPECT_EQ(model->Look(), (ListLook{ListViewType::Details, 0, false}));
    model->Show(Page::Styles);
    Press("mnuArrangeBy(0)");
    EXPECT_THAT(Shown(), ElementsAre("British", "Bock", "(None)"));
    model->Show(Page::Recipes);
    EXPECT_THAT(Shown(), ElementsAre("Winter", "mild", "Ale"));
}

TEST_F(Explorer, FoundRecipesAreOpenedMovedAndDeletedLikeOthers) {
    model->Find("badger");
    EXPECT_THAT(Shown(), ElementsAre("Badger"));
    Choose("Badger");
    Press("mnuOpen");
    EXPECT_THAT(opened, ElementsAre("Badger"));
    model->Drop({"R:1:0"}, "F:1");
    EXPECT_THAT(Shown(), ElementsAre("Badger"));
    EXPECT_EQ(main.tree.Nodes("R:1:3")->Parent()->Key(), "F:1");
    Press("mnuRename");
    EXPECT_TRUE(model->SetControl("txtLabel", "Badgers"));
    EXPECT_THAT(Shown(), ElementsAre("Badgers"));
    outside.messages.answers = {Answer::Yes};
    Press("mnuDelete");
    EXPECT_THAT(Shown(), IsEmpty());
    model->Find("");
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
}

TEST_F(Explorer, ClearingTheSearchShowsTheFolderThatIsChosenByThen) {
    model->ChooseNode("F:2");
    model->Find("ale");
    outside.messages.answers = {Answer::Yes};
    Press("mnuDeleteFolder");
    model->Find("");
    EXPECT_EQ(model->NodeKey(), "F:1");
    EXPECT_THAT(Shown(), IsEmpty());
    model->Find("ale");
    model->ChooseNode("F:0");
    EXPECT_THAT(Shown(), ElementsAre("Winter", "Ale", "mild"));
}

TEST_F(Explorer, IsDrivenByItsControls) {
    EXPECT_FALSE(model->SetControl("optStyles", "no"));
    EXPECT_TRUE(model->SetControl("optStyles", "yes"));
    EXPECT_TRUE(model->SetControl("treeFolders", "G:-1"));
    EXPECT_TRUE(model->SetControl("lvNames", "bock\nstout"));
    const std::vector<DialogControl> controls = model->Controls();
    ASSERT_EQ(controls.size(), 4u);
    EXPECT_EQ(controls[0].name + controls[0].text, "optRecipesno");
    EXPECT_EQ(controls[1].name + controls[1].text, "optStylesyes");
    EXPECT_EQ(controls[2].name + controls[2].text, "treeFoldersG:-1");
    EXPECT_EQ(controls[3].name + controls[3].text, "lvNamesBock\nStout");
    EXPECT_TRUE(model->SetControl("txtFind", "ale"));
    EXPECT_EQ(model->Shown(), Page::Recipes);
    EXPECT_FALSE(model->SetControl("lvNames", "Nobody"));
    EXPECT_FALSE(model->SetControl("txtLabel", "x"));
    EXPECT_FALSE(model->SetControl("lblNothing", "x"));
    EXPECT_FALSE(model->Press("cmdNothing"));
    Press("cmdClose");
    EXPECT_FALSE(model->IsOpen());
}

}  // namespace
}  // namespace tw::test
