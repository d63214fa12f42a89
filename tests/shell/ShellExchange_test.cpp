// Tests of import and export through the shell: the files, the order of the dialogs, the messages.
#include <fstream>

#include "shell/ImportExportModel.h"
#include "shell/NameConflictModel.h"
#include "shell/ShellTest.h"
#include "store/ExchangeFile.h"
#include "store/Schema.h"
#include "tree/ProgressModel.h"
#include "tree/TWNodes.h"

namespace tw::test {
namespace {

class ShellExchangeTest : public ShellTest {
  protected:
    // The next dialog gets these entries and presses of these buttons.
    struct Step {
        std::vector<std::pair<std::string, std::string>> entries;
        Strings buttons;
    };
    void NextDialog(const Step& step) {
        outside.dialogs.scripts.emplace_back([step](DialogModel& dialog) {
            for (const auto& [control, text] : step.entries)
                EXPECT_TRUE(dialog.SetControl(control, text)) << control;
            for (const std::string& button : step.buttons) EXPECT_TRUE(dialog.Press(button)) << button;
        });
    }
    // Adds all recipes below the root of the tree, then goes on.
    void PickAll(const Step& more = {}) {
        Step step = more;
        step.entries.emplace_back("treeRecipes", "F:-1");
        step.buttons = {"cmdAdd", "cmdNext"};
        NextDialog(step);
    }
    void GiveFile(const std::string& path) { NextDialog({{{"FileName", path}}, {"cmdOK"}}); }
    void GiveFolder(int id) { NextDialog({{{"FolderChooser1", std::to_string(id)}}, {"cmdOK"}}); }
    // What the status bar has said since the last call.
    Strings News() {
        Strings news;
        for (const std::string& line : std::exchange(view.log, {}))
            if (line.starts_with("news: ")) news.push_back(line.substr(6));
        return news;
    }
    Strings TakeShown() { return std::exchange(outside.dialogs.shown, {}); }

    void MakeFile(const Strings& names) {
        for (const std::string& name : names) AddRecipeRow(*shell.DB(), name);
        shell.Opened()->files.ExportRecipes(file, false, names);
        shell.DB()->Execute("DELETE FROM RECIPES");
        TakeShown();
    }
    Strings NamesInFile() { return RecipeNames(*Database::OpenDatabase(file, false)); }
    static std::string NotRecognized(const std::string& path) {
        return "[Error] File not recognized.\r\n\"" + path + "\" is not valid Tunwright Recipe file";
    }

    const ScratchFolder folder;
    const std::string file = folder.File("Ales.TWR");
};

TEST_F(ShellExchangeTest, TheMenuExportsThePickedRecipesIntoTheFileNamed) {
    NewSaved("Bock");
    NewSaved("Mild");
    PickAll();
    GiveFile(folder.File("Ales"));
    EXPECT_TRUE(shell.RunMenu("mnuFileExport"));
    EXPECT_EQ(TakeShown(), (Strings{"frmImportExport", "CommonDialog", "frmProgress"}));
    EXPECT_EQ(NamesInFile(), (Strings{"Bock", "Mild"}));
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(ShellExchangeTest, ExportAppendsOrReplacesAsTheBoxSays) {
    MakeFile({"Old"});
    NewSaved("Mild");
    PickAll();
    GiveFile(file);
    shell.RunMenu("mnuFileExport");
    EXPECT_EQ(NamesInFile(), (Strings{"Mild", "Old"}));
    // Replacing a file asks for confirmation first, in the file dialog.
    PickAll({{{"chkAppend", "no"}}, {}});
    GiveFile(file);
    outside.messages.answers = {Answer::Yes};
    shell.RunMenu("mnuFileExport");
    EXPECT_EQ(NamesInFile(), Strings{"Mild"});
    EXPECT_EQ(outside.messages.log,
              Strings{"[Export Recipes] " + file + " already exists.\r\nDo you want to replace it? -> Yes"});
}

TEST_F(ShellExchangeTest, CancelInEitherDialogOfAnExportEndsIt) {
    NewSaved("Bock");
    NextDialog({{}, {"cmdCancel"}});
    shell.RunMenu("mnuFileExport");
    EXPECT_EQ(TakeShown(), Strings{"frmImportExport"});
    PickAll();
    NextDialog({{}, {"cmdCancel"}});
    shell.RunMenu("mnuFileExport");
    EXPECT_EQ(TakeShown(), (Strings{"frmImportExport", "CommonDialog"}));
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ShellExchangeTest, TheMenuImportsThePickedRecipesIntoTheFolderChosen) {
    shell.Opened()->data.objects.CreateRecipeFolder(0, "Ales", Asking::Quietly);
    MakeFile({"Mild", "Bock"});
    GiveFile(folder.File("Ales"));
    PickAll();
    GiveFolder(1);
    EXPECT_TRUE(shell.RunMenu("mnuFileImport"));
    EXPECT_EQ(TakeShown(), (Strings{"CommonDialog", "frmImportExport", "frmChooseFolder", "frmProgress"}));
    EXPECT_EQ(RecipeNames(*shell.DB()), (Strings{"Bock", "Mild"}));
    TWNode& ales = *shell.Opened()->data.tree.Nodes("F:1");
    ASSERT_EQ(ales.Children().Count(), 2u);
    EXPECT_EQ(ales.Children().Item(0).Name(), "Bock");
}

TEST_F(ShellExchangeTest, CancelInAnyDialogOfAnImportEndsIt) {
    MakeFile({"Mild"});
    NextDialog({{}, {"cmdCancel"}});
    shell.RunMenu("mnuFileImport");
    EXPECT_EQ(TakeShown(), Strings{"CommonDialog"});
    NextDialog({{}, {"cmdCancel"}});
    shell.Opened()->files.ImportFile(file);
    EXPECT_EQ(TakeShown(), Strings{"frmImportExport"});
    PickAll();
    NextDialog({{}, {"cmdCancel"}});
    shell.Opened()->files.ImportFile(file);
    EXPECT_EQ(TakeShown(), (Strings{"frmImportExport", "frmChooseFolder"}));
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{});
}

TEST_F(ShellExchangeTest, ThePickerOfAnImportShowsTheTreeOfTheFile) {
    shell.DB()->Execute("INSERT INTO STYLES (ID, NAME) VALUES (1, 'Dry Stout')");
    AddRecipeRow(*shell.DB(), "Mild");
    shell.DB()->Execute("UPDATE RECIPES SET STYLE_ID = 1");
    shell.Opened()->files.ExportRecipes(file, false, {"Mild"});
    AddRecipeRow(*shell.DB(), "Only Here");
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        auto& model = dynamic_cast<ImportExportModel&>(dialog);
        TreeItems& items = model.Recipes().treeRecipes();
        EXPECT_EQ(items.Text(items.Find(kDatabaseKey)), "Import File");
        EXPECT_EQ(items.Find("F:0"), TreeItems::kNone);
        EXPECT_EQ(items.SelectedKey(), "F:-1");
        EXPECT_NE(items.Find("S:Dry Stout:1"), TreeItems::kNone);
        EXPECT_TRUE(model.Recipes().Add(kDatabaseKey));
        EXPECT_EQ(model.Recipes().Selection(), Strings{"Mild"});
    });
    shell.Opened()->files.ImportFile(file);
}

TEST_F(ShellExchangeTest, TheFirstImportLightsTheCommandsOfRecipes) {
    MakeFile({"Mild"});
    EXPECT_FALSE(Lit("mnuFileOpen"));
    EXPECT_FALSE(Lit("mnuFileExport"));
    view.log.clear();
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_TRUE(Lit("mnuFileOpen"));
    EXPECT_TRUE(Lit("mnuFileExport"));
    // The empty main window shows which commands are now enabled.
    EXPECT_EQ(view.log, (Strings{"activated none", "news: Imported 1 recipe"}));
}

TEST_F(ShellExchangeTest, WithoutNamesAllRecipesOfTheFileComeIn) {
    MakeFile({"Mild", "Bock", "Dry's \"Stout\""});
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(RecipeNames(*shell.DB()), (Strings{"Bock", "Dry's \"Stout\"", "Mild"}));
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(ShellExchangeTest, ATakenNameIsAskedAboutWithTheWordOfTheWay) {
    NewSaved("Mild");
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    TakeShown();
    Strings words;
    for (int i = 0; i < 2; ++i)
        outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
            words.push_back(dialog.Controls().at(3).text);
            dialog.Press("cmdSkip");
        });
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(words, (Strings{"Do not export this recipe", "Do not import this recipe"}));
    EXPECT_EQ(TakeShown(), (Strings{"frmProgress", "frmNameConflict", "frmProgress", "frmNameConflict"}));
}

TEST_F(ShellExchangeTest, ClosingTheQuestionAboutANameStopsTheRun) {
    MakeFile({"Bock", "Mild"});
    AddRecipeRow(*shell.DB(), "Bock");
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Bock"});
}

TEST_F(ShellExchangeTest, AnUnknownStyleIsTold) {
    shell.DB()->Execute("INSERT INTO STYLES (ID, NAME) VALUES (1, 'Dry Stout')");
    AddRecipeRow(*shell.DB(), "Mild");
    shell.DB()->Execute("UPDATE RECIPES SET STYLE_ID = 1");
    shell.Opened()->files.ExportRecipes(file, false, {"Mild"});
    shell.DB()->Execute("DELETE FROM STYLES");
    shell.DB()->Execute("DELETE FROM RECIPES");
    TakeShown();
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dialog.Controls().at(0).text, "Effected Recipe\tUnrecognized Style\nMild\tDry Stout\n");
        EXPECT_TRUE(dialog.Press("cmdOK"));
    });
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(TakeShown(), (Strings{"frmProgress", "frmStylesNotImported"}));
}

TEST_F(ShellExchangeTest, AnOpenRecipeThatIsOverwrittenStaysAsItWas) {
    RecipeDocument& document = NewSaved("Mild");
    shell.Opened()->files.ExportRecipes(file, false, {"Mild"});
    document.Fields().SetText(document.Record().txtName, "Mild");
    document.Fields().SetText(document.Record().txtNotes, "typed since");
    NextDialog({{}, {"cmdOverwrite"}});
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(document.Record().txtNotes.Text(), "typed since");
    EXPECT_EQ(Captions(), Strings{"Mild"});
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Mild"});
}

TEST_F(ShellExchangeTest, TheStatusBarSaysHowManyRecipesCame) {
    MakeFile({"Bock", "Mild", "Stout"});
    EXPECT_EQ(News(), Strings{"Exported 3 recipes to Ales.TWR"});
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(News(), Strings{"Imported 3 recipes"});
    NextDialog({{}, {"cmdSkip"}});
    NextDialog({{}, {"cmdOverwrite"}});
    shell.Opened()->files.ExportRecipes(file, true, {"Bock", "Mild"});
    EXPECT_EQ(News(), Strings{"Exported 1 recipe to Ales.TWR"});
    PickAll();
    GiveFolder(0);
    for (const char* answer : {"cmdOverwrite", "cmdOverwrite", "cmdAbort"}) NextDialog({{}, {answer}});
    shell.Opened()->files.ImportFromPath("\"" + file + "\"");
    EXPECT_EQ(News(), Strings{"Imported 2 recipes"});
}

TEST_F(ShellExchangeTest, NothingIsSaidOfRecipesThatDidNotCome) {
    MakeFile({"Mild"});
    AddRecipeRow(*shell.DB(), "Mild");
    News();
    NextDialog({{}, {"cmdSkip"}});
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    NextDialog({{}, {"cmdAbort"}});
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    NextDialog({{}, {"cmdCancel"}});
    shell.Opened()->files.ImportFile(file);
    shell.Opened()->files.ExportRecipes(folder.File("none/Ales.TWR"), true, {"Mild"});
    EXPECT_EQ(outside.messages.TakeLog().size(), 1u);
    EXPECT_EQ(News(), Strings{});
}

TEST_F(ShellExchangeTest, TheQuestionAboutANameProposesAFreeOne) {
    NewSaved("Mild");
    NewSaved("Mild (2)");
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
        const auto& conflict = dynamic_cast<NameConflictModel&>(dialog);
        EXPECT_EQ(conflict.Proposal(), "Mild (3)");
        EXPECT_EQ(conflict.NewName(), "Mild");
    });
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
        EXPECT_EQ(dynamic_cast<NameConflictModel&>(dialog).Proposal(), "Mild (2)");
    });
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
}

TEST_F(ShellExchangeTest, AMissingRecipeAsksWhetherToGoOn) {
    MakeFile({"Mild"});
    outside.messages.answers = {Answer::Ok};
    shell.Opened()->files.ImportRecipes(file, 0, Strings{"Nothing", "Mild"});
    EXPECT_EQ(outside.messages.log,
              Strings{"[Error] Recipe 'Nothing' does not exist in Import File ! -> OK"});
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Mild"});
}

TEST_F(ShellExchangeTest, AFileThatIsNoneIsToldAndLeftAlone) {
    NewSaved("Mild");
    std::ofstream(file) << "a text";
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    EXPECT_EQ(outside.messages.TakeLog(), (Strings{NotRecognized(file), NotRecognized(file)}));
    std::string text;
    std::getline(std::ifstream(file), text);
    EXPECT_EQ(text, "a text");
    // Here replacing the file was requested.
    shell.Opened()->files.ExportRecipes(file, false, {"Mild"});
    EXPECT_EQ(NamesInFile(), Strings{"Mild"});
}

TEST_F(ShellExchangeTest, AFileThatIsCutShortIsNotRecognized) {
    MakeFile({"Mild"});
    std::filesystem::resize_file(file, std::filesystem::file_size(file) / 2);
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(outside.messages.log, Strings{NotRecognized(file)});
}

TEST_F(ShellExchangeTest, ADatabaseWithoutTheTablesGivesTheStoresError) {
    Database::CreateDatabase(file, "");
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Error] no such table: RECIPES"});
    NewSaved("Mild");
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Error] no such table: RECIPES"});
}

// Reading the view would never end.
TEST_F(ShellExchangeTest, AFileWithAViewInATablesPlaceIsNotRecognized) {
    MakeFile({"Mild"});
    Database::OpenDatabase(file, false)
        ->ExecuteNative(
            "DROP TABLE RECIPES; CREATE VIEW RECIPES AS WITH RECURSIVE N(I) AS (SELECT 1 UNION ALL SELECT I "
            "+ 1 "
            "FROM N) SELECT I AS ID, 'Ale' AS NAME, '' AS STYLE_NAME FROM N");
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    EXPECT_EQ(outside.messages.log, (Strings{NotRecognized(file), NotRecognized(file)}));
}

TEST_F(ShellExchangeTest, AnErrorInTheMiddleKeepsWhatCameBeforeAndShowsIt) {
    MakeFile({"Bock", "Mild"});
    Database::OpenDatabase(file, false)->ExecuteNative("DROP TABLE RECIPE_LOG");
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(outside.messages.log, Strings{"[Error] no such table: RECIPE_LOG"});
    ASSERT_EQ(RecipeNames(*shell.DB()), Strings{"Bock"});
    const std::string id = shell.DB()->OpenRecordset("SELECT ID FROM RECIPES").Fields(0).Text();
    EXPECT_TRUE(shell.Opened()->data.tree.NodeExists("R:" + id + ":3"));
    EXPECT_TRUE(Lit("mnuFileOpen"));
}

TEST_F(ShellExchangeTest, ARecoveryOfTheReplacedFileDoesNotReachTheNewOne) {
    NewSaved("Mild");
    MakeFile({"Old"});
    NewSaved("Mild");
    std::ofstream(file + "-journal") << "what an interrupted run has left";
    shell.Opened()->files.ExportRecipes(file, false, {"Mild"});
    EXPECT_EQ(NamesInFile(), Strings{"Mild"});
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(ShellExchangeTest, AFileThatCannotBeWrittenIsTold) {
    NewSaved("Mild");
    shell.Opened()->files.ExportRecipes(folder.File("none/Ales.TWR"), true, {"Mild"});
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Error] '" + folder.File("none/Ales.TWR") +
                                                  "' cannot be opened: unable to open database file."});
    shell.Opened()->files.ExportRecipes(folder.File(""), false, {"Mild"});
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Error] '" + folder.File("") + "' is a folder."});
    MakeFile({"Old"});
    NewSaved("Mild");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Error] '" + file + "' is write-protected."});
    EXPECT_EQ(NamesInFile(), Strings{"Old"});
}

TEST_F(ShellExchangeTest, ANewFileThatFailsLeavesTheOlderOneAndNothingBeside) {
    MakeFile({"Old"});
    NewSaved("Bock");
    NewSaved("Mild");
    shell.DB()->ExecuteNative("DROP TABLE RECIPE_LOG");
    shell.Opened()->files.ExportRecipes(file, false, {"Bock", "Mild"});
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Error] no such table: RECIPE_LOG"});
    EXPECT_EQ(NamesInFile(), Strings{"Old"});
    const std::string other = folder.File("Other.TWR");
    shell.Opened()->files.ExportRecipes(other, false, {"Bock"});
    EXPECT_FALSE(std::filesystem::exists(other));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.File("")), {}), 1);
}

TEST_F(ShellExchangeTest, WhatWasAddedBeforeAnErrorStaysInTheOlderFile) {
    MakeFile({"Old"});
    Database::OpenDatabase(file, false)->ExecuteNative("DROP TABLE RECIPE_LOG");
    for (const char* name : {"Bock", "Mild", "Porter"}) NewSaved(name);
    shell.DB()->ExecuteNative(
        "INSERT INTO RECIPE_LOG (RECIPE_ID, ROW_ID) SELECT ID, 0 FROM RECIPES WHERE NAME = 'Mild'");
    shell.Opened()->files.ExportRecipes(file, true, {"Bock", "Mild", "Porter"});
    EXPECT_EQ(outside.messages.log, Strings{"[Error] no such table: RECIPE_LOG"});
    // Even the part of the recipe that failed.
    EXPECT_EQ(NamesInFile(), (Strings{"Bock", "Mild", "Old"}));
}

TEST_F(ShellExchangeTest, AFileThatAnotherProgramWritesIsNotReplacedUnderIt) {
    MakeFile({"Old"});
    NewSaved("Mild");
    const auto other = Database::OpenDatabase(file, false);
    other->ExecuteNative("PRAGMA journal_mode=DELETE; BEGIN EXCLUSIVE; DELETE FROM RECIPES");
    shell.Opened()->files.ExportRecipes(file, false, {"Mild"});
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Error] '" + file + "' is in use by another program."});
    other->ExecuteNative("ROLLBACK");
    EXPECT_EQ(RecipeNames(*other), Strings{"Old"});
}

TEST_F(ShellExchangeTest, AnExportKeepsTheModeOfTheFileAndALinkToIt) {
    MakeFile({"Old"});
    NewSaved("Mild");
    std::filesystem::permissions(file, static_cast<std::filesystem::perms>(0640));
    const std::string link = folder.File("Link.TWR");
    std::filesystem::create_symlink(file, link);
    for (const bool append : {true, false}) {
        shell.Opened()->files.ExportRecipes(link, append, {"Mild"});
        EXPECT_EQ(outside.messages.log, Strings{});
        EXPECT_TRUE(std::filesystem::is_symlink(link));
        EXPECT_EQ(std::filesystem::status(file).permissions(), static_cast<std::filesystem::perms>(0640));
        EXPECT_EQ(NamesInFile(), append ? (Strings{"Mild", "Old"}) : Strings{"Mild"});
    }
}

TEST_F(ShellExchangeTest, AFileWithALogOfItsOwnIsAddedToWhole) {
    MakeFile({"Old"});
    // Another program keeps the file open, with its changes in a write-ahead log.
    Database::OpenDatabase(file, false)->ExecuteNative("PRAGMA journal_mode=WAL");
    NewSaved("Mild");
    shell.Opened()->files.ExportRecipes(file, true, {"Mild"});
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_EQ(NamesInFile(), (Strings{"Mild", "Old"}));
}

TEST_F(ShellExchangeTest, AWriteProtectedFileCanBeImported) {
    MakeFile({"Mild"});
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Mild"});
}

TEST_F(ShellExchangeTest, AutosaveWaitsWhileRecipesAreCopied) {
    RecipeDocument& document = NewSaved("Mild");
    shell.SettingsNow().SetDoAutoSave(true);
    shell.CurrentSettings().doAutoSaveEvery = 1;
    shell.Opened()->files.ExportRecipes(file, false, {"Mild"});
    document.Fields().SetText(document.Record().txtNotes, "typed since");
    outside.dialogs.scripts.emplace_back([&](DialogModel&) { shell.TickAutoSave(); });
    shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    EXPECT_TRUE(document.Changed());
    shell.TickAutoSave();
    EXPECT_FALSE(document.Changed());
}

TEST_F(ShellExchangeTest, OneImportDoesNotStartWithinAnother) {
    MakeFile({"Mild"});
    outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
        shell.Opened()->files.ImportFromPath(file);
        dialog.CloseBox();
    });
    shell.Opened()->files.ImportFile(file);
    EXPECT_EQ(TakeShown(), Strings{"frmImportExport"});
}

// Presses Cancel in the progress window as soon as it shows something.
class HastyDialogs : public DialogPort {
  public:
    void ShowModal(DialogModel& dialog) override {
        auto* progress = dynamic_cast<ProgressModel*>(&dialog);
        ASSERT_NE(progress, nullptr);
        progress->SetObserver([&] {
            if (progress->Total() == 0) return;
            shownFirst.push_back(progress->Name());
            progress->Press("cmdCancel");
        });
        dialog.FirstShown();
        progress->SetObserver({});
    }
    Strings shownFirst;
};

TEST(ShellExchange, CancelIsHeardWhileTheFileIsBeingRead) {
    const ScratchFolder folder;
    const std::string file = folder.File("Ales.TWR");
    {
        const auto other = Database::CreateDatabase(file, "");
        CreateExchangeTables(*CreateMainDatabaseInMemory(), *other);
        // Enough for the progress of reading the names to be shown.
        other->ExecuteNative(
            "WITH RECURSIVE N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 2000) INSERT INTO "
            "RECIPES "
            "(NAME) SELECT 'Ale ' || I FROM N");
    }
    RecordingPlatform outside;
    HastyDialogs dialogs;
    Platform platform{outside.messages, dialogs, outside.settings, outside.clock, outside.clipboard};
    Shell shell({platform});
    ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    shell.Opened()->files.ImportRecipes(file, 0, Strings{"Ale 1", "Ale 2"});
    // Stopped before the first recipe was shown, and without an error.
    EXPECT_EQ(dialogs.shownFirst.front(), "");
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{});
    EXPECT_EQ(outside.messages.log, Strings{});
}

// The program's database is a file, which an export must not replace.
TEST(ShellExchange, TheDatabaseItselfIsNeverReplacedOrTakenForARecipeFile) {
    const ScratchFolder folder;
    const std::string path = folder.File("Tunwright.mdb");
    CreateSchema(*Database::CreateDatabase(path, ""));
    std::filesystem::create_symlink(path, folder.File("link.TWR"));
    RecordingPlatform outside;
    Shell shell({outside.platform});
    ASSERT_TRUE(shell.PerformSplashScreenInit(path));
    // The hard link is created after the start, which refuses a database with a second name.
    std::filesystem::create_hard_link(path, folder.File("hard.TWR"));
    AddRecipeRow(*shell.DB(), "Mild");
    for (const char* name : {"Tunwright.mdb", "link.TWR", "hard.TWR"}) {
        const std::string target = folder.File(name);
        shell.Opened()->files.ExportRecipes(target, false, {"Mild"});
        EXPECT_EQ(outside.messages.TakeLog(),
                  Strings{"[Error] '" + target + "' is the database of the recipes themselves."});
        shell.Opened()->files.ExportRecipes(target, true, {"Mild"});
        shell.Opened()->files.ImportRecipes(target, 0, std::nullopt);
        const std::string refused =
            "[Error] File not recognized.\r\n\"" + target + "\" is not valid Tunwright Recipe file";
        EXPECT_EQ(outside.messages.TakeLog(), (Strings{refused, refused}));
        EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Mild"});
    }
}

}  // namespace
}  // namespace tw::test
