// Tests of the windows of the catalogue as the shell shows them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/Shell.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

class ShellSetup : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:")); }
    void Next(std::function<void(DialogModel&)> work) {
        outside.dialogs.scripts.emplace_back(std::move(work));
    }
    // True if the active document's list of styles contains the name.
    bool Offers(const std::string& name) {
        for (const auto& entry : shell.Documents().Active()->Record().cmbStyle.Entries())
            if (entry.text == name) return true;
        return false;
    }

    RecordingPlatform outside;
    Shell shell{{outside.platform}};
};

TEST_F(ShellSetup, AStyleIsMadeInAFolderForOthers) {
    shell.Opened()->recipes.Create("");
    const std::int64_t dark = shell.Opened()->data.objects.CreateStyleFolder(0, "Dark", Asking::Quietly);
    Next([](DialogModel& editor) {
        EXPECT_EQ(editor.FormName(), "frmStyle");
        editor.SetControl("Text1", " Stout ");
        editor.Press("cmdOK");
    });
    EXPECT_EQ(shell.Opened()->catalogue.EditStyle("", dark), "Stout");
    EXPECT_TRUE(shell.Opened()->data.tree.NodeExists("S:1:1"));
    EXPECT_TRUE(Offers("Stout"));
}

TEST_F(ShellSetup, AnEditedStyleGivesItsNameAndACancelledOneNothing) {
    shell.Opened()->recipes.Create("");
    shell.DB()->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', 0)");
    shell.Opened()->data.objects.AddStyleNodesByName("Stout");
    Next([](DialogModel& editor) {
        EXPECT_EQ(editor.Controls().front().text, "Stout");
        editor.SetControl("Text1", "Dry Stout");
        editor.Press("cmdOK");
    });
    EXPECT_EQ(shell.Opened()->catalogue.EditStyle("stout", 0), "Dry Stout");
    EXPECT_TRUE(Offers("Dry Stout"));
    EXPECT_FALSE(Offers("Stout"));
    Next([](DialogModel& editor) { editor.Press("cmdCancel"); });
    EXPECT_EQ(shell.Opened()->catalogue.EditStyle("Dry Stout", 0), std::nullopt);
}

// This does not depend on how the editor's window is closed afterwards.
TEST_F(ShellSetup, AnAppliedStyleIsInTheListsAtOnce) {
    shell.Opened()->recipes.Create("");
    Next([&](DialogModel& editor) {
        editor.SetControl("Text1", "Stout");
        editor.Press("cmdApply");
        EXPECT_TRUE(Offers("Stout"));
        editor.SetControl("Text1", "Dry Stout");
        editor.Press("cmdApply");
        EXPECT_TRUE(Offers("Dry Stout"));
        EXPECT_FALSE(Offers("Stout"));
        shell.Documents().Active()->Style().ChangeStyle("Dry Stout");
        editor.SetControl("gridInfo(0,0)", "1.040");
        editor.Press("cmdApply");
        EXPECT_EQ(shell.Documents().Active()->Record().lblOGStyle.Text(), ">= 1.040");
        editor.Press("cmdCancel");
    });
    shell.Opened()->catalogue.EditStyle("", 0);
}

TEST_F(ShellSetup, TheDocumentsFollowWhenDatabaseSetupCloses) {
    shell.Opened()->recipes.Create("");
    Next([&](DialogModel& setup) {
        shell.DB()->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', 0)");
        EXPECT_FALSE(Offers("Stout"));
        setup.Press("cmdClose");
    });
    EXPECT_TRUE(shell.RunMenu("mnuToolsDataSetup"));
    EXPECT_TRUE(Offers("Stout"));
}

TEST_F(ShellSetup, TheRangesBesideTheFiguresFollowTheStyleWithoutAChange) {
    shell.DB()->Execute("INSERT INTO STYLES (NAME, FOLDER_ID, IBU_LO) VALUES ('Stout', 0, 20)");
    RecipeDocument& document = shell.Opened()->recipes.Create("");
    ASSERT_TRUE(document.Style().ChangeStyle("Stout"));
    bool saved = false;
    saved = document.Storage().SaveUnder("Mine", 0, Asking::Quietly);
    ASSERT_TRUE(saved);
    Next([](DialogModel& editor) {
        editor.SetControl("gridInfo(4,1)", "40");
        editor.Press("cmdOK");
    });
    shell.Opened()->catalogue.EditStyle("Stout", 0);
    EXPECT_EQ(document.Record().lblIBUStyle.Text(), "20 - 40");
    EXPECT_FALSE(document.Changed());
}

TEST_F(ShellSetup, AnErrorInDatabaseSetupIsShownAndTheDocumentsFollow) {
    shell.Opened()->recipes.Create("");
    Next([&](DialogModel&) {
        shell.DB()->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', 0)");
        throw Error("Database", "The disk is full.", 13);
    });
    EXPECT_TRUE(shell.PressButton(CommandId::ToolsDataSetup));
    EXPECT_THAT(outside.messages.log, testing::ElementsAre("[Error] The disk is full. (13)"));
    EXPECT_TRUE(Offers("Stout"));
}

}  // namespace
}  // namespace tw::test
