// How files of other brewing programs reach the window that imports them, and how recipes leave for them.
#include <filesystem>
#include <fstream>

#include "exchange/ForeignFileReader.h"
#include "shell/CopyDialogs.h"
#include "shell/NameConflictModel.h"
#include "shell/ShellTest.h"
#include "tree/NodeKey.h"
#include "tree/ProgressModel.h"

namespace tw::test {
namespace {

class ShellDoctorTest : public ShellTest {
  protected:
    std::string Foreign(const std::string& name, const std::string& recipe) {
        const std::string path = folder.File(name);
        std::ofstream(path) << "<?xml version=\"1.0\"?><RECIPES><RECIPE><NAME>" << recipe
                            << "</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE><BATCH_SIZE>20</BATCH_SIZE>"
                               "</RECIPE></RECIPES>";
        return path;
    }
    std::string NoRecipes(const std::string& name) {
        const std::string path = folder.File(name);
        std::ofstream(path) << "a text, no recipes";
        return path;
    }
    // Presses a button of the next dialog, after filling its controls.
    void Answer(const char* form, const char* button,
                std::vector<std::pair<const char*, std::string>> fill = {}) {
        outside.dialogs.scripts.push_back([=](DialogModel& dialog) {
            EXPECT_EQ(dialog.FormName(), form);
            for (const auto& [control, text] : fill) EXPECT_TRUE(dialog.SetControl(control, text)) << control;
            EXPECT_TRUE(dialog.Press(button));
        });
    }
    // Picks all recipes in the next dialog, which must be that of the export, and continues.
    void PickAllFor(const std::string& format) {
        outside.dialogs.scripts.push_back([=](DialogModel& dialog) {
            EXPECT_EQ(dialog.FormName(), "frmExportOther");
            EXPECT_TRUE(dialog.SetControl("treeRecipes", kAllRecipesKey));
            EXPECT_TRUE(dialog.Press("cmdAdd"));
            EXPECT_TRUE(dialog.SetControl("cmbFormat", format));
            EXPECT_FALSE(dialog.SetControl("cmbFormat", "Word"));
            EXPECT_TRUE(dialog.Press("cmdNext"));
        });
    }
    // Closes the next dialog, which must be the window of the import, and keeps what it listed first.
    void ExpectWindow() {
        outside.dialogs.scripts.push_back([this](DialogModel& dialog) {
            EXPECT_EQ(dialog.FormName(), "frmImportDoctor");
            for (const DialogControl& control : dialog.Controls())
                if (control.name == "treeRecipes") listed.push_back(control.text);
            EXPECT_TRUE(dialog.Press("cmdCancel"));
        });
    }

    const ScratchFolder folder;
    Strings listed;
};

TEST_F(ShellDoctorTest, AFileOfAnotherProgramOpensTheWindowFromEverywhere) {
    const std::string path = Foreign("club.xml", "Mild");
    ExpectWindow();
    shell.Opened()->files.ImportFile(path);
    ExpectWindow();
    shell.Opened()->files.ImportFromPath(path);
    ExpectWindow();
    shell.Opened()->files.ImportFromPath("\"" + path + "\"");
    EXPECT_EQ(listed, Strings(3, "club.xml"));
    // The item of the program's own files takes it as well.
    Answer("CommonDialog", "cmdOK", {{"FileName", path}});
    ExpectWindow();
    EXPECT_TRUE(shell.RunMenu("mnuFileImport"));
    EXPECT_EQ(listed.size(), 4u);
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{});
    EXPECT_FALSE(shell.Opened()->files.IsRunning());
}

TEST_F(ShellDoctorTest, ItsMenuItemAsksForTheFileAndImports) {
    Answer("CommonDialog", "cmdOK", {{"FileName", Foreign("club.xml", "Mild")}});
    Answer("frmImportDoctor", "cmdImport", {{"cmbUnits", "Metric"}});
    EXPECT_TRUE(shell.RunMenu("mnuFileDoctor"));
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Mild"});
    EXPECT_EQ(view.log.back(), "news: Imported 1 recipe");
    EXPECT_NE(shell.Opened()->data.tree.Nodes("F:-1"), nullptr);
    EXPECT_EQ(shell.CurrentSettings().importUnits, 2);
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(ShellDoctorTest, CancellingTheFileDialogEndsIt) {
    EXPECT_TRUE(shell.RunMenu("mnuFileDoctor"));
    EXPECT_EQ(outside.dialogs.shown, Strings{"CommonDialog"});
}

TEST_F(ShellDoctorTest, FilesThatComeTogetherShareTheWindow) {
    const std::string other = NoRecipes("old.TWR");
    Answer("frmImportDoctor", "cmdImport");
    shell.Opened()->files.ImportFromPaths(
        {Foreign("a.xml", "Mild"), other, Foreign("b.xml", "Bitter"), folder.File("missing.xml")});
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmImportDoctor", "frmProgress"}));
    EXPECT_EQ(RecipeNames(*shell.DB()), (Strings{"Bitter", "Mild"}));
    EXPECT_EQ(outside.messages.log, Strings{"[Error] File not recognized.\r\n\"" + other +
                                            "\" is not valid Tunwright Recipe file"});
}

TEST_F(ShellDoctorTest, TheSameAnswerHoldsForAllTheRest) {
    const std::vector<std::string> files = {Foreign("a.xml", "Mild"), Foreign("b.xml", "MILD"),
                                            Foreign("c.xml", "mild")};
    Answer("frmImportDoctor", "cmdImport");
    Answer("frmNameConflict", "cmdRename", {{"txtNewName", "Old Mild"}, {"chkAll", "yes"}});
    shell.Opened()->files.ImportFromPaths(files);
    // One question for two names that exist.
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmImportDoctor", "frmProgress", "frmNameConflict"}));
    EXPECT_EQ(RecipeNames(*shell.DB()), (Strings{"Mild", "mild (2)", "Old Mild"}));
}

TEST_F(ShellDoctorTest, TheOtherMenuItemExportsForOtherPrograms) {
    NewSaved("Mild");
    NewSaved("Stout");
    PickAllFor("BeerJSON 1.0");
    Answer("CommonDialog", "cmdOK", {{"FileName", folder.File("club")}});
    // Neither recipe has a volume, which the format requires.
    Answer("frmExportFindings", "cmdOK");
    EXPECT_TRUE(shell.RunMenu("mnuFileExportOther"));
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmExportOther", "CommonDialog", "frmExportFindings"}));
    EXPECT_EQ(view.log.back(), "news: Exported 2 recipes to club.json");
    EXPECT_EQ(KindOfFile(folder.File("club.json")), FileKind::BeerJson);
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_FALSE(shell.Opened()->files.IsRunning());
}

TEST_F(ShellDoctorTest, AnExportAsksBeforeItReplacesAFile) {
    NewSaved("Mild");
    const std::string path = NoRecipes("club.xml");
    PickAllFor("BeerXML 1.0");
    Answer("CommonDialog", "cmdOK", {{"FileName", path}});
    outside.messages.answers = {tw::Answer::No};
    shell.RunMenu("mnuFileExportOther");
    EXPECT_EQ(outside.messages.log, Strings{"[Export for Other Programs] " + path +
                                            " already exists.\r\nDo you want to replace it? -> No"});
    EXPECT_EQ(KindOfFile(path), FileKind::Other);
}

TEST_F(ShellDoctorTest, AnExportThatCannotBeWrittenSaysWhy) {
    NewSaved("Mild");
    const std::string path = folder.File("none/club.xml");
    PickAllFor("BeerXML 1.0");
    Answer("CommonDialog", "cmdOK", {{"FileName", path}});
    shell.RunMenu("mnuFileExportOther");
    EXPECT_EQ(outside.messages.log,
              Strings{"[Error] '" + path + "' cannot be written: No such file or directory."});
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmExportOther", "CommonDialog"}));
}

// Cancels each progress as soon as it is shown.
class HastyDialogs final : public DialogPort {
  public:
    void ShowModal(DialogModel& dialog) override {
        auto* const progress = dynamic_cast<ProgressModel*>(&dialog);
        ASSERT_NE(progress, nullptr);
        progress->SetObserver([progress] { progress->CloseBox(); });
        dialog.FirstShown();
        progress->SetObserver({});
        ++cancelled;
    }
    int cancelled = 0;
};

TEST_F(ShellDoctorTest, AnExportOfManyRecipesCanBeCancelled) {
    HastyDialogs dialogs;
    Platform platform{outside.messages, dialogs, outside.settings, outside.clock, outside.clipboard};
    Shell other({platform});
    ASSERT_TRUE(other.PerformSplashScreenInit(":memory:"));
    Strings names;
    for (int i = 0; i <= ProgressModel::kWithoutWindow; ++i) {
        names.push_back("Mild " + std::to_string(i));
        AddRecipeRow(*other.DB(), names.back());
    }
    const std::string path = folder.File("club.xml");
    EXPECT_EQ(other.Opened()->doctor.Export(ExchangeFormat::BeerXml, path, names), std::nullopt);
    EXPECT_EQ(dialogs.cancelled, 1);
    EXPECT_FALSE(std::filesystem::exists(path));
    // Few need no window.
    names.pop_back();
    EXPECT_NE(other.Opened()->doctor.Export(ExchangeFormat::BeerXml, path, names), std::nullopt);
    EXPECT_EQ(dialogs.cancelled, 1);
    EXPECT_EQ(KindOfFile(path), FileKind::BeerXml);
}

TEST_F(ShellDoctorTest, OnlyThisImportOffersTheSameAnswer) {
    NameConflictModel plain("Mild", true, outside.messages);
    EXPECT_FALSE(plain.SetControl("chkAll", "yes"));
    for (const DialogControl& control : plain.Controls()) EXPECT_NE(control.name, "chkAll");
    NameConflictModel offering("Mild", true, outside.messages);
    offering.OfferAll();
    EXPECT_TRUE(offering.SetControl("chkAll", "yes"));
    offering.Press("cmdSkip");
    EXPECT_TRUE(offering.ForAll());
    EXPECT_EQ(offering.Result().response, ConflictResponse::Skip);
}

}  // namespace
}  // namespace tw::test
