// Tests of the open and save dialog in its three styles, on the store and the tree of a running program.
#include "shell/OpenSaveModel.h"

#include "shell/ShellTest.h"

namespace tw::test {
namespace {

using Style = OpenSaveModel::Style;

class OpenSaveTest : public ShellTest {
  protected:
    // Folders: F:1 Winter, which contains F:2 Dark and Stout. At the root: amber and Joe's Ale. Lost is in a
    // folder that does not exist.
    void SetUp() override {
        ShellTest::SetUp();
        shell.Opened()->data.objects.CreateRecipeFolder(0, "Winter", Asking::Quietly);
        shell.Opened()->data.objects.CreateRecipeFolder(1, "Dark", Asking::Quietly);
        Add("Stout", 1);
        Add("amber", 0);
        Add("Joe's Ale", 0);
        Add("Lost", 77);
    }
    void Add(const std::string& name, std::int64_t folder) {
        shell.DB()->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (" + SqlText(name) +
                            ", 0, " + std::to_string(folder) + ")");
        shell.Opened()->data.objects.AddRecipeNodesByName(name);
    }
    OpenSaveModel& Open(Style style, const OpenSaveFields& fields = {}) {
        model = std::make_unique<OpenSaveModel>(style, shell.Opened()->data.Access(), fields);
        return *model;
    }
    Strings Shown() {
        Strings names;
        for (const ListRow& row : model->List().Rows().Rows()) names.push_back(row.cells.front());
        return names;
    }
    Strings Chain() {
        Strings names;
        for (const OpenSaveModel::FolderEntry& folder : model->Folders()) names.push_back(folder.name);
        return names;
    }
    void Choose(const char* name) { ASSERT_TRUE(model->SetControl("lvNames", name)) << name; }
    void Press(const char* button) { ASSERT_TRUE(model->Press(button)) << button; }
    std::string Control(const std::string& name) {
        for (const DialogControl& control : model->Controls())
            if (control.name == name) return control.text;
        return "none";
    }
    Strings Boxes() { return outside.messages.TakeLog(); }

    std::unique_ptr<OpenSaveModel> model;
};

TEST_F(OpenSaveTest, EachStyleHasItsCaptions) {
    EXPECT_EQ(Open(Style::Open).Caption() + Open(Style::Open).OkCaption(), "Open Recipe&Open");
    EXPECT_EQ(Open(Style::Delete).Caption() + Open(Style::Delete).OkCaption(), "Delete Recipe&Delete");
    EXPECT_EQ(Open(Style::Save).Caption() + Open(Style::Save).OkCaption(), "Save Recipe&Save");
    model->SetRecipe("Porter", 0);
    EXPECT_EQ(model->Caption(), "Save 'Porter' As...");
    model->SetRecipe("  ", 0);
    EXPECT_EQ(model->Caption(), "Save Recipe");
}

TEST_F(OpenSaveTest, OpenStartsInTheFolderShownLast) {
    EXPECT_EQ(Open(Style::Open).NodeKey(), "F:0");
    EXPECT_EQ(Shown(), (Strings{"Winter", "amber", "Joe's Ale"}));
    EXPECT_EQ(Open(Style::Open, {"F:1", {}}).NodeKey(), "F:1");
    EXPECT_EQ(Open(Style::Open, {"", {}}).NodeKey(), "F:-1");
    EXPECT_EQ(Shown(), (Strings{"amber", "Joe's Ale", "Lost", "Stout"}));
    EXPECT_EQ(Open(Style::Open, {"F:99", {}}).NodeKey(), "F:-1");
    EXPECT_EQ(Open(Style::Open, {"G:0", {}}).NodeKey(), "F:-1");
}

TEST_F(OpenSaveTest, DeleteStartsInAllRecipes) {
    EXPECT_EQ(Open(Style::Delete, {"F:1", {}}).NodeKey(), "F:-1");
}

TEST_F(OpenSaveTest, SaveStartsWithTheRecipesNameAndFolder) {
    Open(Style::Save, {"F:-1", {}}).SetRecipe("Porter", 2);
    EXPECT_EQ(model->NodeKey(), "F:2");
    EXPECT_EQ(Control("txtName"), "Porter");
    EXPECT_EQ(Control("FolderID"), "2");
    model->SetRecipe("Porter", -1);
    EXPECT_EQ(model->FolderID(), 0);
    model->SetRecipe("Porter", 77);
    EXPECT_EQ(model->FolderID(), 0);
}

TEST_F(OpenSaveTest, OpenTakesAStoredName) {
    Open(Style::Open);
    EXPECT_TRUE(model->Cancelled());
    EXPECT_TRUE(model->SetControl("txtName", " Joe's Ale "));
    Press("cmdOK");
    EXPECT_FALSE(model->IsOpen());
    EXPECT_FALSE(model->Cancelled());
    EXPECT_EQ(model->BeerName(), "Joe's Ale");
}

TEST_F(OpenSaveTest, ARecipeOfAnotherFolderIsFoundByItsName) {
    Open(Style::Open);
    model->SetControl("txtName", "stout");
    Press("cmdOK");
    EXPECT_EQ(model->BeerName(), "stout");
}

TEST_F(OpenSaveTest, AnUnknownNameIsRefusedAndTheDialogStays) {
    for (const Style style : {Style::Open, Style::Delete}) {
        Open(style).SetControl("txtName", "Ann's Ale");
        Press("cmdOK");
        EXPECT_EQ(Boxes(), Strings{"[Recipe not found] No recipe named 'Ann's Ale' exists."});
        EXPECT_TRUE(model->IsOpen());
        EXPECT_TRUE(model->Cancelled());
    }
}

TEST_F(OpenSaveTest, CancelAndTheCloseBoxGiveNoName) {
    for (const bool closeBox : {false, true}) {
        Open(Style::Open).SetControl("txtName", "Stout");
        closeBox ? model->CloseBox() : Press("cmdCancel");
        EXPECT_FALSE(model->IsOpen());
        EXPECT_TRUE(model->Cancelled());
        EXPECT_EQ(model->BeerName(), "");
    }
}

TEST_F(OpenSaveTest, DeleteAsksFirst) {
    Open(Style::Delete).SetControl("txtName", "Joe's Ale");
    const std::string question = "[Confirm Delete] Are you sure want to delete the recipe 'Joe's Ale'? -> ";
    Press("cmdOK");
    EXPECT_TRUE(model->IsOpen());
    outside.messages.answers = {Answer::Yes};
    Press("cmdOK");
    EXPECT_FALSE(model->IsOpen());
    EXPECT_EQ(model->BeerName(), "Joe's Ale");
    EXPECT_EQ(Boxes(), (Strings{question + "No", question + "Yes"}));
    EXPECT_EQ(RecipeNames(*shell.DB()).size(), 4u);  // overwriting is the caller's task
}

TEST_F(OpenSaveTest, SavingTakesTheCurrentFolder) {
    Open(Style::Save).SetRecipe("Porter", 0);
    EXPECT_TRUE(model->EnterFolder("F:2"));
    Press("cmdOK");
    EXPECT_FALSE(model->Cancelled());
    EXPECT_EQ(model->FolderID(), 2);
    EXPECT_EQ(model->BeerName(), "Porter");
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(OpenSaveTest, SavingIntoAllRecipesIsRefused) {
    Open(Style::Save).SetRecipe("Porter", 0);
    for (const char* key : {"F:-1", "X:DB"}) {
        EXPECT_TRUE(model->EnterFolder(key));
        Press("cmdOK");
        EXPECT_EQ(Boxes(), Strings{"[Select Recipe Folder] Please select a folder for this recipe."});
        EXPECT_TRUE(model->IsOpen());
    }
    model->EnterFolder("F:0");
    Press("cmdOK");
    EXPECT_FALSE(model->IsOpen());
    EXPECT_EQ(model->FolderID(), 0);
}

TEST_F(OpenSaveTest, SavingRefusesABlankName) {
    Open(Style::Save).SetControl("txtName", "  ");
    Press("cmdOK");
    EXPECT_TRUE(model->IsOpen());
    EXPECT_EQ(Boxes(), Strings{"beep"});
}

TEST_F(OpenSaveTest, SavingAsksBeforeItOverwritesARecipeOfAnyFolder) {
    Open(Style::Save).SetRecipe(" STOUT ", 2);
    const std::string question =
        "[Overwrite existing recipe?] A recipe named 'STOUT' already exists.\r\nOverwrite it? -> ";
    Press("cmdOK");
    EXPECT_TRUE(model->IsOpen());
    outside.messages.answers = {Answer::Yes};
    Press("cmdOK");
    EXPECT_FALSE(model->IsOpen());
    EXPECT_EQ(model->BeerName(), "STOUT");
    EXPECT_EQ(Boxes(), (Strings{question + "No", question + "Yes"}));
}

TEST_F(OpenSaveTest, AChosenFolderIsEnteredByOkUntilANameIsTyped) {
    Open(Style::Save).SetRecipe("Porter", 0);
    Choose("Winter");
    Press("cmdOK");
    EXPECT_TRUE(model->IsOpen());
    EXPECT_EQ(model->NodeKey(), "F:1");
    EXPECT_EQ(Control("txtName"), "Porter");
    Choose("Dark");
    model->SetControl("txtName", "Baltic");
    Press("cmdOK");
    EXPECT_FALSE(model->IsOpen());
    EXPECT_EQ(model->FolderID(), 1);
    EXPECT_EQ(model->BeerName(), "Baltic");
}

TEST_F(OpenSaveTest, AChosenRecipeGivesItsName) {
    Open(Style::Open);
    Choose("amber");
    EXPECT_EQ(Control("txtName"), "amber");
    EXPECT_EQ(Control("lvNames"), "amber");
    EXPECT_EQ(Control("icmbFolder"), "My Recipe Folders");
    EXPECT_EQ(Control("FolderID"), "none");
    Choose("Winter");
    EXPECT_EQ(Control("txtName"), "amber");
}

TEST_F(OpenSaveTest, ADoubleClickEntersAFolderAndTakesARecipe) {
    Open(Style::Open);
    Choose("Winter");
    model->OpenRow();
    EXPECT_EQ(model->NodeKey(), "F:1");
    model->OpenRow();  // nothing is selected
    EXPECT_TRUE(model->IsOpen());
    Choose("Stout");
    model->SetControl("txtName", "something else");
    model->OpenRow();
    EXPECT_FALSE(model->IsOpen());
    EXPECT_EQ(model->BeerName(), "Stout");
}

TEST_F(OpenSaveTest, TheFoldersLeadFromTheDatabaseDownWithoutTheStyles) {
    Open(Style::Open, {"F:2", {}});
    EXPECT_EQ(Chain(), (Strings{"Recipe Database", "My Recipe Folders", "Winter", "Dark"}));
    EXPECT_TRUE(model->SetControl("icmbFolder", "recipe database"));
    EXPECT_EQ(Shown(), (Strings{"All Recipes", "My Recipe Folders"}));
    EXPECT_EQ(Chain(), Strings{"Recipe Database"});
    for (const char* key : {"X:STYLE", "G:0", "R:1:3", "F:99", ""})
        EXPECT_FALSE(model->EnterFolder(key)) << key;
}

TEST_F(OpenSaveTest, UpLeadsToTheFolderAboveAndBackToTheOneBefore) {
    Open(Style::Open, {"F:2", {}});
    EXPECT_FALSE(model->IsEnabled("cmdBack"));
    Press("cmdBack");
    for (const char* key : {"F:1", "F:0", "X:DB"}) {
        EXPECT_TRUE(model->IsEnabled("cmdUp"));
        Press("cmdUp");
        EXPECT_EQ(model->NodeKey(), key);
    }
    EXPECT_FALSE(model->IsEnabled("cmdUp"));
    Press("cmdUp");
    EXPECT_EQ(model->NodeKey(), "X:DB");
    for (const char* key : {"F:0", "F:1", "F:2"}) {
        Press("cmdBack");
        EXPECT_EQ(model->NodeKey(), key);
    }
    EXPECT_FALSE(model->IsEnabled("cmdBack"));
}

TEST_F(OpenSaveTest, BackPassesOverAFolderThatIsGone) {
    Open(Style::Open);
    for (const char* key : {"F:2", "F:-1"}) model->EnterFolder(key);
    shell.Opened()->data.objects.DeleteObject("F:2");
    Press("cmdBack");
    EXPECT_EQ(model->NodeKey(), "F:0");
    model->EnterFolder("F:0");  // it is shown already
    EXPECT_FALSE(model->IsEnabled("cmdBack"));
}

TEST_F(OpenSaveTest, ANewFolderIsNamedInItsPlaceAndEntered) {
    Open(Style::Save).SetRecipe("Porter", 0);
    Press("cmdNewFolder");
    EXPECT_EQ(Shown(), (Strings{"Winter", "amber", "Joe's Ale", "New Folder"}));
    EXPECT_TRUE(model->SetControl("txtLabel", "Summer"));
    EXPECT_EQ(Shown().back(), "Summer");
    EXPECT_EQ(model->NodeKey(), "F:0");
    EXPECT_FALSE(model->SetControl("txtLabel", "again"));
    Press("cmdOK");
    EXPECT_EQ(model->NodeKey(), "F:3");
    Press("cmdOK");
    EXPECT_EQ(model->FolderID(), 3);
}

TEST_F(OpenSaveTest, FoldersAreMadeOnlyWhereThereCanBeSome) {
    Open(Style::Open);
    for (const char* key : {"F:-1", "X:DB"}) {
        model->EnterFolder(key);
        for (const char* command : {"cmdNewFolder", "mnuNewFolder"}) {
            EXPECT_FALSE(model->IsEnabled(command));
            Press(command);
        }
    }
    EXPECT_EQ(Boxes(), Strings{});
    model->EnterFolder("F:2");
    EXPECT_TRUE(model->IsEnabled("mnuNewFolder"));
    Press("mnuNewFolder");
    EXPECT_EQ(Shown(), Strings{"New Folder"});
}

TEST_F(OpenSaveTest, ARefusedNewNameIsTakenBack) {
    Open(Style::Open);
    EXPECT_FALSE(model->IsEnabled("mnuRename"));
    Choose("amber");
    EXPECT_TRUE(model->IsEnabled("mnuRename"));
    Press("mnuRename");
    EXPECT_TRUE(model->SetControl("txtLabel", "stout"));
    EXPECT_EQ(Boxes(), Strings{"[Could not rename recipe] A recipe with that name already exists"});
    EXPECT_EQ(Shown(), (Strings{"Winter", "amber", "Joe's Ale"}));
    EXPECT_EQ(Control("txtName"), "amber");
}

TEST_F(OpenSaveTest, ARenamedRecipeIsTheOneThatIsTaken) {
    Open(Style::Open);
    Choose("amber");
    Press("mnuRename");
    model->SetControl("txtLabel", "Amber Ale");
    Press("cmdOK");
    EXPECT_EQ(model->BeerName(), "Amber Ale");
}

TEST_F(OpenSaveTest, ARenamedFolderKeepsTheDialogWhereItIs) {
    Open(Style::Open, {"F:0", {}});
    Choose("Winter");
    Press("mnuRename");
    model->SetControl("txtLabel", "Zima");
    EXPECT_EQ(model->NodeKey(), "F:0");
    EXPECT_EQ(Shown().front(), "Zima");
    model->EnterFolder("X:DB");
    Choose("All Recipes");
    Press("mnuRename");
    EXPECT_EQ(model->List().EditedRow(), ListTable::kNoRow);
}

TEST_F(OpenSaveTest, ARowDroppedOnAFolderLeavesTheList) {
    Open(Style::Open);
    EXPECT_TRUE(model->CanDrop({"R:2:3"}, "F:1"));
    EXPECT_FALSE(model->CanDrop({"R:2:3"}, "R:3:3"));
    EXPECT_FALSE(model->CanDrop({"R:2:3"}, "S:0:0"));  // not a row of a folder
    EXPECT_FALSE(model->CanDrop({"R:2:3"}, "F:-1"));
    EXPECT_FALSE(model->CanDrop({"F:1"}, "F:1"));
    EXPECT_FALSE(model->CanDrop({}, "F:1"));
    model->Drop({"R:2:3"}, "F:1");
    EXPECT_EQ(Shown(), (Strings{"Winter", "Joe's Ale"}));
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("R:2:3")->Parent()->Key(), "F:1");
    model->Drop({"R:3:3"}, "R:2:3");
    EXPECT_EQ(Shown(), (Strings{"Winter", "Joe's Ale"}));
}

TEST_F(OpenSaveTest, ARefusedDropLeavesTheRow) {
    shell.Opened()->data.objects.CreateRecipeFolder(0, "Dark", Asking::Quietly);  // as one in Winter
    Open(Style::Open);
    model->Drop({"F:3"}, "F:1");
    EXPECT_EQ(Boxes(), Strings{"[Could not move recipe folder] The destination folder already contains a "
                               "folder with that name"});
    EXPECT_EQ(Shown(), (Strings{"Dark", "Winter", "amber", "Joe's Ale"}));
}

TEST_F(OpenSaveTest, TheViewIsChosenByButtonsAndMenu) {
    OpenSaveFields fields;
    EXPECT_EQ(fields.look.viewType, ListViewType::List);
    Open(Style::Open, fields);
    EXPECT_FALSE(model->IsEnabled("mnuLineUp"));
    Press("cmdDetails");
    EXPECT_EQ(model->Look().viewType, ListViewType::Details);
    Press("cmdList");
    EXPECT_EQ(model->Look().viewType, ListViewType::List);
    Press("mnuSmallIcons");
    EXPECT_TRUE(model->IsEnabled("mnuLineUp"));
    Press("mnuLineUp");
    Press("mnuArrangeBy(0)");
    EXPECT_EQ(Shown(), (Strings{"Winter", "Joe's Ale", "amber"}));
    EXPECT_EQ(model->Fields().look, (ListLook{ListViewType::SmallIcons, 0, true}));
}

TEST_F(OpenSaveTest, TheSearchShowsRecipesOfAllFolders) {
    Open(Style::Open, {"F:2", {}});
    EXPECT_TRUE(model->SetControl("txtFind", "sto"));
    EXPECT_EQ(Shown(), Strings{"Stout"});
    Choose("Stout");
    Press("cmdOK");
    EXPECT_EQ(model->BeerName(), "Stout");
    EXPECT_EQ(model->NodeKey(), "F:2");
}

TEST_F(OpenSaveTest, FolderIdGoesToThatFolder) {
    Open(Style::Save);
    for (const char* text : {"", "x", "1.5", " 1", "99", "99999999999999999999"})
        EXPECT_FALSE(model->SetControl("FolderID", text)) << text;
    EXPECT_TRUE(model->SetControl("FolderID", "1"));
    EXPECT_EQ(model->NodeKey(), "F:1");
    EXPECT_TRUE(model->SetControl("FolderID", "-1"));
    EXPECT_EQ(model->NodeKey(), "F:-1");
}

TEST_F(OpenSaveTest, UnknownControlsAndButtonsAreRefused) {
    Open(Style::Open);
    EXPECT_FALSE(model->SetControl("lblName", "x"));
    EXPECT_FALSE(model->SetControl("lvNames", "Nobody"));
    EXPECT_FALSE(model->SetControl("icmbFolder", "Nowhere"));
    EXPECT_FALSE(model->SetControl("txtLabel", "x"));
    EXPECT_FALSE(model->Press("cmdNope"));
    EXPECT_TRUE(model->IsOpen());
}

}  // namespace
}  // namespace tw::test
