// Tests of the help and the assistant from the main window.
#include "ShellTest.h"
#include "support/RecordingHelp.h"

namespace tw::test {
namespace {

class MinimizingView : public RecordingView {
  public:
    bool IsMinimized(const RecipeDocument&) const override { return minimized; }
    bool minimized = false;
};

class ShellHelp : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        MakeHelpDatabase(folder.Path(),
                         "INSERT INTO CONTEXT_HELP VALUES ('frmDocument', 'Tab1', 'general.html'),"
                         " ('frmDocument', 'Tab4', 'hops.html');"
                         "INSERT INTO HELP_CONTENTS VALUES (1, 'Welcome', 'home.html', -1);");
        files.files[folder.Path().string() + "/index_template.dat"] = "$START_PAGE";
        shell.Environment().help = &help;
        shell.SetView(&view);
    }
    void TearDown() override {
        shell.SetView(nullptr);
        shell.Environment().help = nullptr;
    }
    // Returns the page given to the browser, empty if there is none.
    std::string TakePage() {
        if (browser.opened.empty()) return {};
        const std::string file = std::exchange(browser.opened, {}).back();
        return file.ends_with("/index.html") ? "home" : files.files[file];
    }

    TemporaryFolder folder;
    RecordingBrowser browser;
    MemoryFiles files;
    Help help{folder.Path().string(), outside.messages, browser, files};
    MinimizingView view;
};

TEST_F(ShellHelp, IsAboutTheTabInFront) {
    shell.Opened()->recipes.Create("").Focus().SetTab(Tab::Hops);
    EXPECT_TRUE(shell.RunMenu("mnuHelpAuto"));
    EXPECT_EQ(TakePage(), "hops.html");
    shell.Documents().Active()->Focus().SetTab(Tab::General);
    EXPECT_TRUE(shell.RunMenu("mnuHelpAuto"));
    EXPECT_EQ(TakePage(), "general.html");
}

TEST_F(ShellHelp, IsTheHomePageWithoutADocumentOrWithAMinimisedOne) {
    EXPECT_TRUE(shell.RunMenu("mnuHelpAuto"));
    EXPECT_EQ(TakePage(), "home");
    shell.Opened()->recipes.Create("").Focus().SetTab(Tab::Hops);
    view.minimized = true;
    EXPECT_TRUE(shell.RunMenu("mnuHelpAuto"));
    EXPECT_EQ(TakePage(), "home");
}

TEST_F(ShellHelp, ATabWithoutAPageIsTold) {
    shell.Opened()->recipes.Create("").Focus().SetTab(Tab::Notes);
    shell.RunMenu("mnuHelpAuto");
    EXPECT_EQ(outside.messages.log, Strings{"[Error Loading Help Topic] Error: Topic Not Found"});
    EXPECT_EQ(TakePage(), "");
}

TEST_F(ShellHelp, AMissingDatabaseIsToldAndTheProgramGoesOn) {
    std::filesystem::remove(folder.Path() / "help.mdb");
    shell.Opened()->recipes.Create("");
    EXPECT_TRUE(shell.RunMenu("mnuHelpAuto"));
    shell.Helping().ShowContextHelp("frmAbout", "?");
    const std::string box = "[Error] Could not find file '" + help.DatabasePath() + "'. (14)";
    EXPECT_EQ(outside.messages.log, (Strings{box, box}));
}

TEST_F(ShellHelp, TheContentsComeUpAndShowPages) {
    outside.dialogs.scripts.emplace_back([](DialogModel& contents) { contents.Press("TreeView1"); });
    EXPECT_TRUE(shell.RunMenu("mnuHelpContents"));
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmHelpContents"});
    EXPECT_EQ(TakePage(), "home");
}

TEST_F(ShellHelp, WithoutPagesNothingIsShown) {
    shell.Environment().help = nullptr;
    shell.RunMenu("mnuHelpAuto");
    shell.RunMenu("mnuHelpContents");
    shell.Helping().ShowContextHelp("frmAbout", "?");
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_EQ(outside.dialogs.shown, Strings{});
}

TEST_F(ShellHelp, TheAssistantsLinkRunsOnceItsWindowIsClosed) {
    DialogModel* assistant = nullptr;
    outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
        assistant = &dialog;
        dialog.SetControl("chkShowAtStartup", "no");
        dialog.Press("lblNew");
        EXPECT_TRUE(shell.Documents().All().empty());
    });
    EXPECT_TRUE(shell.RunMenu("mnuToolsAssistant"));
    EXPECT_NE(assistant, nullptr);
    EXPECT_EQ(Captions(), Strings{"Untitled 1"});
    EXPECT_FALSE(shell.CurrentSettings().showAssistantAtStartup);
}

// With an empty database the menu item is disabled; the link shows the dialog anyway.
TEST_F(ShellHelp, TheAssistantsOpenLinkWorksOnAnEmptyDatabase) {
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) { dialog.Press("imgOpen"); });
    shell.RunMenu("mnuToolsAssistant");
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmAssistant", "frmOpenSave"}));
}

TEST_F(ShellHelp, NewsAreToldOnceToABrewerWhoKnewAnEarlierVersion) {
    shell.SettingsNow().Store("Settings", "GrainExtraction", "72%");
    view.log.clear();
    shell.ShowAssistantAtStartup();
    EXPECT_EQ(view.log, Strings{"news: This version has new ways to work: see Help, What's New."});
    view.log.clear();
    shell.ShowAssistantAtStartup();
    EXPECT_EQ(view.log, Strings{});
    EXPECT_TRUE(shell.RunMenu("mnuHelpNews"));
    EXPECT_EQ(TakePage(), "news.html");
}

TEST_F(ShellHelp, AFirstStartHasNoNews) {
    view.log.clear();
    shell.ShowAssistantAtStartup();
    EXPECT_EQ(view.log, Strings{});
}

TEST_F(ShellHelp, TheAssistantComesUpAtTheStartAsTheSettingSays) {
    // Not the first start, which asks about the brewhouse before.
    shell.SettingsNow().Store("Settings", "GrainExtraction", "72%");
    shell.ShowAssistantAtStartup();
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmAssistant"});
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dialog.Controls().front().text, "yes");
        dialog.SetControl("chkShowAtStartup", "no");
    });
    shell.ShowAssistantAtStartup();
    EXPECT_FALSE(shell.CurrentSettings().showAssistantAtStartup) << "the close box keeps the choice too";
    shell.ShowAssistantAtStartup();
    EXPECT_EQ(outside.dialogs.shown.size(), 2U);
}

}  // namespace
}  // namespace tw::test
