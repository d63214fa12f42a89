// Tests of the windows for finding recipes, as the shell opens them.
#include "shell/ShellTest.h"
#include "tree/ExplorerModel.h"

namespace tw::test {
namespace {

class Browsing : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        shell.Opened()->data.objects.CreateRecipeFolder(0, "Winter", Asking::Quietly);
    }
    // The next dialog gets these entries and a press of the button.
    void AnswerWith(const std::vector<DialogControl>& controls, const std::string& button) {
        outside.dialogs.scripts.emplace_back([controls, button](DialogModel& dialog) {
            for (const DialogControl& control : controls)
                EXPECT_TRUE(dialog.SetControl(control.name, control.text)) << control.name;
            EXPECT_TRUE(dialog.Press(button));
        });
    }
    Strings Boxes() { return outside.messages.TakeLog(); }
};

TEST_F(Browsing, DeletingGoesWithTheRecipes) {
    EXPECT_FALSE(shell.RunMenu("mnuFileDelete"));
    RecipeDocument& ale = NewSaved("Ale");
    NewSaved("Mild");
    EXPECT_TRUE(Lit("mnuFileDelete"));
    AnswerWith({{"txtName", "ale"}}, "cmdOK");
    outside.messages.answers = {Answer::Yes};
    EXPECT_TRUE(shell.RunMenu("mnuFileDelete"));
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Mild"});
    EXPECT_TRUE(ale.Changed());
    EXPECT_EQ(ale.FolderID(), -1);
    EXPECT_EQ(Boxes(), Strings{"[Confirm Delete] Are you sure want to delete the recipe 'ale'? -> Yes"});
    AnswerWith({{"txtName", "Mild"}}, "cmdOK");
    outside.messages.answers = {Answer::Yes};
    EXPECT_TRUE(shell.RunMenu("mnuFileDelete"));
    EXPECT_FALSE(Lit("mnuFileDelete"));
    EXPECT_FALSE(Lit("mnuFileOpen"));
    EXPECT_FALSE(Button("Open").enabled);
}

TEST_F(Browsing, ACancelledDeletionDeletesNothing) {
    NewSaved("Ale");
    EXPECT_TRUE(shell.RunMenu("mnuFileDelete"));
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Ale"});
    EXPECT_EQ(shell.BrowseFields().nodeKey, "F:0");
}

TEST_F(Browsing, FolderAndViewAreKeptFromOneUseToTheNext) {
    NewSaved("Ale");
    EXPECT_EQ(shell.BrowseFields().look, ListLook());
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        for (const char* command : {"mnuDetails", "mnuArrangeBy(3)", "mnuArrangeBy(3)"})
            dialog.Press(command);
        dialog.SetControl("icmbFolder", "F:1");
        dialog.SetControl("txtName", "Ale");
        dialog.Press("cmdOK");
    });
    EXPECT_TRUE(shell.RunMenu("mnuFileOpen"));
    EXPECT_EQ(shell.BrowseFields().nodeKey, "F:1");
    EXPECT_EQ(shell.BrowseFields().look, (ListLook{ListViewType::Details, 3, true}));
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dialog.Controls()[0].text, "Winter");
        dialog.SetControl("icmbFolder", "F:-1");
        dialog.Press("mnuList");
    });
    EXPECT_TRUE(shell.RunMenu("mnuFileOpen"));  // cancelled: nothing is remembered
    EXPECT_EQ(shell.BrowseFields().nodeKey, "F:1");
    EXPECT_EQ(shell.BrowseFields().look.viewType, ListViewType::Details);
}

TEST_F(Browsing, SavingKeepsFolderAndViewToo) {
    RecipeDocument& document = NewNamed("Ale");
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        dialog.SetControl("FolderID", "1");
        dialog.Press("cmdDetails");
        dialog.Press("cmdOK");
    });
    EXPECT_TRUE(shell.Opened()->saver.SaveAs(document));
    EXPECT_EQ(document.FolderID(), 1);
    EXPECT_EQ(shell.BrowseFields().nodeKey, "F:1");
    EXPECT_EQ(shell.BrowseFields().look.viewType, ListViewType::Details);
    EXPECT_FALSE(shell.Opened()->saver.SaveAs(document));  // cancelled
    EXPECT_EQ(shell.BrowseFields().nodeKey, "F:1");
}

TEST_F(Browsing, ADeletedFolderIsNotTheOneToStartIn) {
    NewSaved("Ale");
    shell.Opened()->data.objects.CreateRecipeFolder(1, "Dark", Asking::Quietly);
    AnswerWith({{"icmbFolder", "F:2"}, {"txtName", "Ale"}}, "cmdOK");
    shell.RunMenu("mnuFileOpen");
    EXPECT_EQ(shell.BrowseFields().nodeKey, "F:2");
    shell.Opened()->data.objects.DeleteObject("F:1");
    EXPECT_EQ(shell.BrowseFields().nodeKey, "F:0");
}

TEST_F(Browsing, TheExplorerOpensRecipesAndStays) {
    EXPECT_TRUE(shell.Opened()->saver.Close(NewSaved("Ale")));
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dialog.FormName(), "frmExplorer");
        EXPECT_TRUE(dialog.SetControl("lvNames", "Ale"));
        EXPECT_TRUE(dialog.Press("mnuOpen"));
        EXPECT_TRUE(dialog.IsOpen());
    });
    EXPECT_TRUE(shell.PressButton(CommandId::ToolsExplorer));
    EXPECT_EQ(Captions(), Strings{"Ale"});
}

TEST_F(Browsing, TheExplorerKeepsItsViewButNoFolder) {
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        dialog.SetControl("treeFolders", "F:1");
        dialog.Press("mnuSmallIcons");
    });
    EXPECT_TRUE(shell.RunMenu("mnuToolsExplorer"));
    EXPECT_EQ(shell.BrowseFields().look.viewType, ListViewType::SmallIcons);
    EXPECT_EQ(shell.BrowseFields().nodeKey, "F:0");
}

TEST_F(Browsing, WhatTheExplorerDeletesDarkensTheCommands) {
    RecipeDocument& ale = NewSaved("Ale");
    AnswerWith({{"lvNames", "Ale"}}, "mnuDelete");
    outside.messages.answers = {Answer::Yes};
    EXPECT_TRUE(shell.RunMenu("mnuToolsExplorer"));
    EXPECT_TRUE(ale.Changed());
    EXPECT_FALSE(Lit("mnuFileOpen"));
    EXPECT_TRUE(Lit("mnuToolsExplorer"));
}

TEST_F(Browsing, AnAutosaveMeanwhileGivesTheRowsTheirNewKeys) {
    RecipeDocument& ale = NewSaved("Ale");
    outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
        dialog.SetControl("lvNames", "Ale");
        EXPECT_TRUE(shell.Opened()->saver.Save(ale, Asking::Quietly));  // R:2:3 from now on
        dialog.Press("mnuRename");
        EXPECT_TRUE(dialog.SetControl("txtLabel", "Bitter"));
        EXPECT_TRUE(shell.Opened()->saver.Save(ale, Asking::Quietly));
        EXPECT_EQ(dialog.Controls()[3].text, "Bitter");
        dialog.Press("mnuDelete");
    });
    outside.messages.answers = {Answer::Yes};
    EXPECT_TRUE(shell.RunMenu("mnuToolsExplorer"));
    EXPECT_EQ(Boxes(), Strings{"[Confirm Delete] Are you sure you want to delete 'Bitter'? -> Yes"});
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{});
}

TEST_F(Browsing, ANewStyleIsMadeInTheStyleEditor) {
    AnswerWith({{"optStyles", "yes"}}, "mnuNewStyle");
    AnswerWith({{"Text1", "Gose"}}, "cmdOK");
    EXPECT_TRUE(shell.RunMenu("mnuToolsExplorer"));
    const Recordset gose = shell.DB()->OpenRecordset("SELECT FOLDER_ID FROM STYLES WHERE NAME = 'Gose'");
    ASSERT_FALSE(gose.AtEnd());
    EXPECT_EQ(gose.Fields(0).Integer(), 0);
}

TEST_F(Browsing, AnErrorInTheExplorerIsShown) {
    NewSaved("Ale");
    outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
        dialog.SetControl("lvNames", "Ale");
        shell.DB()->SetStatementHook([](std::string_view sql) {
            if (sql.starts_with("DELETE")) throw Error("Database", "disk gone", 10);
        });
        outside.messages.answers = {Answer::Yes};
        dialog.Press("mnuDelete");
    });
    EXPECT_TRUE(shell.RunMenu("mnuToolsExplorer"));
    shell.DB()->SetStatementHook(nullptr);
    EXPECT_EQ(Boxes().back(), "[Error] disk gone (10)");
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Ale"});
}

}  // namespace
}  // namespace tw::test
