#include <fstream>

#include "shell/ShellTest.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

void MakeDatabase(const std::string& path, const Strings& recipes) {
    const auto database = Database::CreateDatabase(path, "");
    CreateSchema(*database);
    for (const std::string& name : recipes) AddRecipeRow(*database, name);
}

class ShellStartTest : public testing::Test {
  protected:
    bool Lit(Shell& shell, std::string_view item) { return shell.Bar().FindItem(item)->enabled; }
    bool Visible(Shell& shell, std::string_view item) { return shell.Bar().FindItem(item)->visible; }

    RecordingPlatform outside;
    RecordingView view;
};

TEST_F(ShellStartTest, ComesUpWithoutADocument) {
    Shell shell({outside.platform});
    EXPECT_EQ(shell.DB(), nullptr);
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    EXPECT_NE(shell.DB(), nullptr);
    EXPECT_TRUE(shell.Documents().All().empty());
    EXPECT_EQ(shell.Documents().Active(), nullptr);
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(ShellStartTest, TheDatabaseLiesInTheProgramsFolder) {
    EXPECT_EQ(Shell::DatabasePath("/opt/tunwright"), "/opt/tunwright/Tunwright.mdb");
    EXPECT_EQ(Shell::DatabasePath("/opt/tunwright/"), "/opt/tunwright/Tunwright.mdb");
    EXPECT_EQ(Shell::DatabasePath(""), "Tunwright.mdb");
}

TEST_F(ShellStartTest, AMissingDatabaseIsFatal) {
    const ScratchFolder folder;
    Shell shell({outside.platform});
    shell.SetView(&view);
    EXPECT_FALSE(shell.PerformSplashScreenInit(folder.File("Tunwright.mdb")));
    EXPECT_EQ(shell.DB(), nullptr);
    // The timer may tick while the message box is open.
    shell.SettingsNow().SetDoAutoSave(true);
    view.log.pop_back();
    shell.TickAutoSave();
    ASSERT_EQ(outside.messages.log.size(), 1u);
    const std::string& box = outside.messages.log[0];
    EXPECT_TRUE(box.starts_with("[Fatal Error] ")) << box;
    EXPECT_TRUE(box.ends_with("\r\nCould not open Tunwright database!")) << box;
    EXPECT_GT(box.size(), std::string("[Fatal Error] \r\nCould not open Tunwright database!").size());
    EXPECT_EQ(view.log, Strings{"close main window"});
    EXPECT_FALSE(std::filesystem::exists(folder.File("Tunwright.mdb")));
}

TEST_F(ShellStartTest, ATextFileIsFatal) {
    const ScratchFolder folder;
    std::ofstream(folder.File("Tunwright.mdb")) << std::string(2000, 'x');
    Shell shell({outside.platform});
    EXPECT_FALSE(shell.PerformSplashScreenInit(folder.File("Tunwright.mdb")));
    EXPECT_EQ(outside.messages.log.size(), 1u);
}

TEST_F(ShellStartTest, AWriteProtectedDatabaseIsToldOnceAndCanBeRead) {
    const ScratchFolder folder;
    const std::string path = folder.File("Tunwright.mdb");
    CreateSchema(*Database::CreateDatabase(path, ""));
    AddRecipeRow(*Database::OpenDatabase(path, false), "Stout");
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    Shell shell({outside.platform});
    shell.SetView(&view);
    shell.Environment().recoveryFolder = folder.File("unsaved");
    ASSERT_TRUE(shell.PerformSplashScreenInit(path));
    EXPECT_EQ(
        outside.messages.TakeLog(),
        Strings{"[Tunwright] The database of your recipes is write-protected:\r\n  " + path +
                "\r\nRecipes can be read and printed, but not saved.\r\nAllow writing to this file and to "
                "its folder, then start Tunwright again."});
    EXPECT_EQ(view.log.back(), "notice: Write-protected: recipes cannot be saved.");
    shell.Opened()->recipes.OpenByName("Stout");
    ASSERT_NE(shell.Documents().Active(), nullptr);
    RecipeDocument& stout = *shell.Documents().Active();
    stout.Fields().SetText(stout.Record().txtNotes, "kept all the same");
    shell.Unsaved().Keep();
    EXPECT_FALSE(shell.Opened()->saver.Save(stout));
    EXPECT_EQ(
        outside.messages.TakeLog(),
        Strings{"[Error] Error during save:\r\nThe database is write-protected: nothing can be saved in "
                "it. (8)"});
    EXPECT_TRUE(shell.Opened()->data.tree.NodeExists("R:1:0"));
    // Autosave does not repeat that message every few minutes.
    shell.CurrentSettings().doAutoSaveEvery = 1;
    shell.SettingsNow().SetDoAutoSave(true);
    shell.TickAutoSave();
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_EQ(outside.dialogs.shown, Strings{});
}

TEST_F(ShellStartTest, ADatabaseWithoutTheTablesIsFatal) {
    const ScratchFolder folder;
    { const auto empty = Database::CreateDatabase(folder.File("Tunwright.mdb"), ""); }
    Shell shell({outside.platform});
    EXPECT_FALSE(shell.PerformSplashScreenInit(folder.File("Tunwright.mdb")));
    EXPECT_EQ(outside.messages.log.size(), 1u);
}

TEST_F(ShellStartTest, AfterAFatalErrorNoCommandRunsAndTheSettingsAreWrittenBack) {
    outside.settings.Put("Settings", "BoilVol", "7 gal");
    outside.settings.Put("MRU", "File0", "Pale Ale");
    Shell shell({outside.platform});
    EXPECT_FALSE(shell.PerformSplashScreenInit("/nowhere/at/all/Tunwright.mdb"));
    EXPECT_FALSE(shell.RunMenu("mnuFileNew"));
    EXPECT_FALSE(shell.RunMenu("mnuFileOpen"));
    EXPECT_FALSE(shell.RunMenu("mnuFileMRU(0)"));
    EXPECT_TRUE(shell.RequestExit());
    shell.Unload(false);
    EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "Settings", "BoilVol"), "7 gal");
    EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "MRU", "File0"), "Pale Ale");
}

TEST_F(ShellStartTest, ASecondShellCannotShareTheFile) {
    const ScratchFolder folder;
    MakeDatabase(folder.File("Tunwright.mdb"), {});
    Shell first({outside.platform});
    ASSERT_TRUE(first.PerformSplashScreenInit(folder.File("Tunwright.mdb")));
    Shell second({outside.platform});
    EXPECT_FALSE(second.PerformSplashScreenInit(folder.File("Tunwright.mdb")));
    first.Unload(false);
    Shell third({outside.platform});
    EXPECT_TRUE(third.PerformSplashScreenInit(folder.File("Tunwright.mdb")));
}

TEST_F(ShellStartTest, AnEmptyDatabaseKeepsTheRecipeCommandsOff) {
    Shell shell({outside.platform});
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    for (const char* item : {"mnuFileOpen", "mnuFileDelete", "mnuFilePrint", "mnuFileExport"}) {
        EXPECT_FALSE(shell.Bar().FindItem(item)->enabled) << item;
        EXPECT_FALSE(Lit(shell, item)) << item;
    }
    EXPECT_FALSE(shell.Bar().FindButton("Open")->enabled);
    EXPECT_TRUE(Lit(shell, "mnuFileNew"));
}

TEST_F(ShellStartTest, WithRecipesPrintStaysOffAtTheStart) {
    const ScratchFolder folder;
    MakeDatabase(folder.File("Tunwright.mdb"), {"Pale Ale"});
    Shell shell({outside.platform});
    ASSERT_TRUE(shell.PerformSplashScreenInit(folder.File("Tunwright.mdb")));
    EXPECT_TRUE(Lit(shell, "mnuFileOpen"));
    EXPECT_TRUE(shell.Bar().FindItem("mnuFileDelete")->enabled);
    EXPECT_TRUE(shell.Bar().FindItem("mnuFileExport")->enabled);
    EXPECT_FALSE(shell.Bar().FindItem("mnuFilePrint")->enabled);
}

TEST_F(ShellStartTest, TheWindowsSettingsComeFirst) {
    outside.settings.Put("Settings", "MainWidth", "9000");
    outside.settings.Put("Settings", "HopForm", "2");
    Shell shell({outside.platform});
    shell.LoadWindowSettings();
    EXPECT_EQ(shell.CurrentSettings().mainWidth, 9000);
    EXPECT_EQ(shell.CurrentSettings().hopForm, 0);
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    EXPECT_EQ(shell.CurrentSettings().hopForm, 2);
}

TEST_F(ShellStartTest, TheAppendFlagIsRestoredAndStored) {
    outside.settings.Put("Settings", "AppendRows", "1");
    Shell shell({outside.platform});
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    EXPECT_TRUE(shell.Bar().FindItem("mnuEditAppendFlag")->checked);
    shell.SettingsNow().SetAppendRows(false);
    shell.Unload(false);
    EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "Settings", "AppendRows"), "0");
}

TEST_F(ShellStartTest, TheLowerSeparatorFollowsTheListAtTheStartAlone) {
    {
        Shell shell({outside.platform});
        ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
        EXPECT_FALSE(Visible(shell, "mnuFileBar7"));
        shell.Recent().Add("Pale Ale");
        EXPECT_TRUE(Visible(shell, "mnuFileBar5"));
        EXPECT_FALSE(Visible(shell, "mnuFileBar7"));
        shell.Unload(false);
    }
    Shell next({outside.platform});
    ASSERT_TRUE(next.PerformSplashScreenInit(":memory:"));
    EXPECT_TRUE(Visible(next, "mnuFileBar7"));
    EXPECT_EQ(next.Recent().Captions(), Strings{"&1 Pale Ale"});
    next.Opened()->notices.NotifyRecipeDeleted("Pale Ale");
    EXPECT_FALSE(Visible(next, "mnuFileBar5"));
    EXPECT_TRUE(Visible(next, "mnuFileBar7"));
}

TEST_F(ShellStartTest, ShutDownWritesGeometryThenSettingsThenTheRecentList) {
    Shell shell({outside.platform});
    shell.LoadWindowSettings();
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    shell.Recent().Add("Pale Ale");
    Settings& s = shell.CurrentSettings();
    s.gridReadOnlyBg = 65535, s.gridTotalBg = 65280, s.gridReadOnlyFg = 1, s.gridTotalFg = 1;
    ASSERT_TRUE(shell.RequestExit());
    shell.Unload(true);
    const Strings& written = outside.settings.written;
    ASSERT_EQ(written.size(), 4u + 25u + 1u);
    EXPECT_EQ(written[0], "MainLeft=1000");
    EXPECT_EQ(written[3], "MainHeight=6500");
    EXPECT_EQ(written[4], "ChildState=0");
    EXPECT_EQ(written[28], "GridTotalFg=1");
    EXPECT_EQ(written[29], "File0=Pale Ale");
    EXPECT_EQ(shell.DB(), nullptr);
}

TEST_F(ShellStartTest, AMinimisedWindowKeepsThePreviousGeometry) {
    outside.settings.Put("Settings", "MainLeft", "77");
    Shell shell({outside.platform});
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    shell.CurrentSettings().mainLeft = -32000;
    shell.Unload(false);
    EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "Settings", "MainLeft"), "77");
}

TEST_F(ShellStartTest, AStoredSettingActsAtOnce) {
    Shell shell({outside.platform});
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    shell.SettingsNow().Store("Settings", "BoilVol", "7 gal");
    shell.SettingsNow().Store("Settings", "AppendRows", "1");
    shell.SettingsNow().Store("MRU", "BoilVol", "8 gal");
    EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "Settings", "BoilVol"), "7 gal");
    EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "MRU", "BoilVol"), "8 gal");
    EXPECT_EQ(shell.SettingsNow().Defaults().boilVol, "7 gal");
    EXPECT_TRUE(shell.SettingsNow().AppendRows());
    EXPECT_EQ(shell.Opened()->recipes.Create("").Record().txtBoilVol.Text(), "7 gal");
}

TEST_F(ShellStartTest, AChoiceThatDoesNotExistCountsAsTheFirst) {
    for (const char* key : {"HopForm", "IBUMethod"}) outside.settings.Put("Settings", key, "3");
    outside.settings.Put("Settings", "Packaging", "-1");
    Shell shell({outside.platform});
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    EXPECT_EQ(shell.SettingsNow().Defaults().hopForm, 0);
    EXPECT_EQ(shell.SettingsNow().Defaults().ibuMethod, 0);
    EXPECT_EQ(shell.SettingsNow().Defaults().packaging, 0);
    EXPECT_EQ(shell.CurrentSettings().hopForm, 3);
}

}  // namespace
}  // namespace tw::test
