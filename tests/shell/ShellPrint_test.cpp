#include <algorithm>
#include <filesystem>

#include "reports/NoPrinterModel.h"
#include "reports/PrintPreviewModel.h"
#include "reports/PrintWizardModel.h"
#include "shell/ShellTest.h"
#include "store/Schema.h"
#include "support/RecordingPrinter.h"
#include "values/Text.h"

namespace tw::test {
namespace {

using Result = PrinterAnswer::Result;

class ShellPrintTest : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        shell.Environment().printer = &printer;
        shell.Environment().saveFiles = &files;
    }
    void ExpectCommandsToWaitForTheJob() {
        InstanceService& outsideCommands = shell.Instance();
        outsideCommands.ParseDDECommand("[Import(/no/such/file)]");
        int waiting = 0;
        printer.whileShown = [&] {
            outsideCommands.TickDDE();
            waiting = outsideCommands.DDECommandCount();
        };
        shell.Opened()->paper.PrintActive(false);
        EXPECT_EQ(waiting, 1);
        outsideCommands.TickDDE();
        EXPECT_EQ(outsideCommands.DDECommandCount(), 0);
    }

    // Answers the window that is shown if there is no printer.
    void OnTheBoxPress(const std::string& button) {
        printer.result = Result::NoPrinter;
        outside.dialogs.scripts.emplace_back([button](DialogModel& dialog) {
            EXPECT_EQ(dialog.FormName(), "frmNoPrinter");
            EXPECT_TRUE(dialog.Press(button));
            EXPECT_FALSE(dialog.IsOpen());
        });
    }

    RecordingPrinter printer;
    RecordingSaveFile files;
};

TEST_F(ShellPrintTest, TheMenuAsksForThePrinterAndPrintsTheDocumentAsItStands) {
    NewNamed("Porter");
    EXPECT_TRUE(shell.RunMenu("mnuFilePrint"));
    EXPECT_EQ(printer.log, (Strings{"new", "hourglass", "pointer"}));
    EXPECT_EQ(printer.printed.title, "Porter");
    EXPECT_EQ(printer.printed.Pages(), 1);
    EXPECT_TRUE(outside.messages.log.empty());
}

TEST_F(ShellPrintTest, TheSecondDialogStartsOnTheSettingsOfTheFirst) {
    NewNamed("Porter");
    printer.result = Result::Cancelled;
    shell.RunMenu("mnuFilePrint");
    printer.result = Result::Chosen;
    shell.RunMenu("mnuFilePrint");
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(printer.log,
              (Strings{"new", "new", "hourglass", "pointer", "configured", "hourglass", "pointer"}));
}

TEST_F(ShellPrintTest, TheButtonGoesStraightToThePrinterUnlessTheSettingSaysNo) {
    NewNamed("Porter");
    EXPECT_TRUE(shell.PressButton(CommandId::FilePrint));
    shell.CurrentSettings().quickPrintFromToolbar = false;
    EXPECT_TRUE(shell.PressButton(CommandId::FilePrint));
    EXPECT_EQ(printer.log,
              (Strings{"new quick", "hourglass", "pointer", "configured", "hourglass", "pointer"}));
}

TEST_F(ShellPrintTest, CommandsOfOtherProgramsWaitMeanwhile) {
    NewNamed("Porter");
    for (const Result result : {Result::Chosen, Result::Cancelled, Result::Failed, Result::NoPrinter}) {
        printer.result = result;
        ExpectCommandsToWaitForTheJob();
    }
    printer.result = Result::Chosen;
    printer.fails = true;
    ExpectCommandsToWaitForTheJob();
}

TEST_F(ShellPrintTest, ACancelledDialogSaysNothing) {
    NewNamed("Porter");
    printer.result = Result::Cancelled;
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(printer.log, (Strings{"new"}));
    EXPECT_TRUE(outside.messages.log.empty());
}

TEST_F(ShellPrintTest, AFailureOfTheDialogIsTold) {
    NewNamed("Porter");
    printer.result = Result::Failed;
    printer.error = 4104;
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(outside.messages.log,
              (Strings{"[Print Error] An error occurred while gathering printer configuration! (4104)"}));
}

TEST_F(ShellPrintTest, AFailureOfTheJobIsToldAndTheJobDropped) {
    NewNamed("Porter");
    printer.fails = true;
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(outside.messages.log,
              (Strings{"[Error During Print Job] Error:\r\nPrinter Error Occurred (TextOut) (28)"}));
    EXPECT_EQ(printer.log.back(), "pointer");
    EXPECT_EQ(printer.printed.Pages(), 0);
}

// The first recipe enables Print even while no document is open; Print then finds nothing to print.
TEST_F(ShellPrintTest, WithoutADocumentThereIsNothingToPrint) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    shell.States().CheckEnableDelete();
    EXPECT_TRUE(shell.RunMenu("mnuFilePrint"));
    shell.Opened()->paper.PreviewActive();
    EXPECT_TRUE(printer.log.empty());
    EXPECT_TRUE(outside.dialogs.shown.empty());
}

TEST_F(ShellPrintTest, WithoutAPrinterThePreviewAndAPdfFileAreOffered) {
    NewNamed("Porter");
    OnTheBoxPress("cmdCancel");
    EXPECT_TRUE(shell.RunMenu("mnuFilePrint"));
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmNoPrinter"}));
    EXPECT_TRUE(files.requests.empty());
    OnTheBoxPress("cmdPreview");
    EXPECT_TRUE(shell.RunMenu("mnuFilePrint"));
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmNoPrinter", "frmNoPrinter", "frmPrintPreview"}));
    OnTheBoxPress("cmdPDF");
    files.answer = "/tmp/Porter.pdf";
    printer.log.clear();
    EXPECT_TRUE(shell.PressButton(CommandId::FilePrint));
    EXPECT_EQ(printer.log, (Strings{"new quick", "hourglass", "pdf /tmp/Porter.pdf A4", "pointer"}));
    EXPECT_EQ(printer.printed.title, "Porter");
    EXPECT_TRUE(outside.messages.log.empty());
}

TEST(NoPrinterModel, ClosingItAndUnknownButtonsChooseNothing) {
    NoPrinterModel box;
    EXPECT_FALSE(box.Press("cmdPrint"));
    EXPECT_TRUE(box.IsOpen());
    box.CloseBox();
    EXPECT_FALSE(box.IsOpen());
    EXPECT_EQ(box.Chosen(), NoPrinterModel::Choice::Cancel);
}

// In the preview, there is no need to offer the preview.
TEST_F(ShellPrintTest, WithoutAPrinterThePreviewOffersAPdfFileAlone) {
    NewNamed("Porter");
    printer.result = Result::NoPrinter;
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) { EXPECT_TRUE(dialog.Press("cmdPrint")); });
    EXPECT_TRUE(shell.RunMenu("mnuFilePreview"));
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintPreview"}));
    EXPECT_EQ(
        outside.messages.log,
        (Strings{"[Print] There is no printer on this computer.\r\nDo you want to save the recipe as a PDF "
                 "file instead? -> No"}));
}

// The program's database is a file, which a PDF file must not replace.
TEST(ShellPrint, ThePdfFileNeverTakesThePlaceOfTheDatabase) {
    const ScratchFolder folder;
    const std::string path = folder.File("Tunwright.mdb");
    CreateSchema(*Database::CreateDatabase(path, ""));
    std::filesystem::create_symlink(path, folder.File("link.pdf"));
    RecordingPlatform outside;
    RecordingPrinter printer;
    RecordingSaveFile files;
    Shell shell({outside.platform});
    shell.Environment().printer = &printer;
    shell.Environment().saveFiles = &files;
    ASSERT_TRUE(shell.PerformSplashScreenInit(path));
    shell.Opened()->recipes.Create("");
    printer.result = Result::NoPrinter;
    for (const char* name : {"Tunwright.mdb", "Tunwright.mdb-journal", "link.pdf"}) {
        files.answer = folder.File(name);
        outside.dialogs.scripts = {[](DialogModel& dialog) { EXPECT_TRUE(dialog.Press("cmdPDF")); }};
        shell.Opened()->paper.PrintActive(false);
        EXPECT_EQ(outside.messages.TakeLog(),
                  Strings{"[Error] Could not create PDF file \"" + folder.File(name) + "\""});
        EXPECT_TRUE(outside.messages.advice.ends_with(" Please choose another name."));
    }
    EXPECT_TRUE(std::ranges::none_of(printer.log, [](const auto& line) { return line.starts_with("pdf"); }));
}

TEST_F(ShellPrintTest, TheNameOfAPdfFileIsTheRecipesWithoutWhatAFileCannotHave) {
    NewNamed(" Half/Half: \"50\" ");
    OnTheBoxPress("cmdPDF");
    shell.RunMenu("mnuFilePrint");
    ASSERT_EQ(files.requests.size(), 1u);
    EXPECT_EQ(files.requests[0].name, "Half-Half- -50-.pdf");
    EXPECT_EQ(files.requests[0].extension, "pdf");
    NewNamed("");
    OnTheBoxPress("cmdPDF");
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(files.requests[1].name, "Recipe.pdf");
    // File names have at most 255 bytes; no letter may be cut in two.
    NewNamed("x" + ReplaceAll(std::string(150, 'o'), "o", "\u00f6"));
    OnTheBoxPress("cmdPDF");
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(files.requests[2].name, "x" + ReplaceAll(std::string(99, 'o'), "o", "\u00f6") + ".pdf");
}

TEST_F(ShellPrintTest, APdfFileGoesToTheDocumentsAtFirstAndThenWhereTheLastOneWent) {
    NewNamed("Porter");
    const auto save = [&](const std::optional<std::string>& path) {
        files.answer = path;
        OnTheBoxPress("cmdPDF");
        shell.RunMenu("mnuFilePrint");
        return files.requests.back().folder;
    };
    // An empty folder means the documents folder.
    EXPECT_EQ(save(std::nullopt), "");
    EXPECT_EQ(save("/home/ann/Brewing Log/Porter.pdf"), "");
    EXPECT_EQ(save(std::nullopt), "/home/ann/Brewing Log");
    EXPECT_EQ(shell.Store().GetSetting("Print", "PDFFolder", "none"), "/home/ann/Brewing Log");
    // The folder of a file that could not be written is not remembered.
    printer.fails = true;
    EXPECT_EQ(save("/full/Porter.pdf"), "/home/ann/Brewing Log");
    EXPECT_EQ(save(std::nullopt), "/home/ann/Brewing Log");
}

TEST_F(ShellPrintTest, ThePreviewShowsSavesAndPrints) {
    NewNamed("Porter");
    files.answer = "/full/Porter.pdf";
    outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
        auto& preview = dynamic_cast<PrintPreviewModel&>(dialog);
        EXPECT_EQ(preview.Steps().title, "Porter");
        EXPECT_TRUE(dialog.SetControl("cmbPaper", "Letter"));
        EXPECT_TRUE(dialog.Press("cmdPDF"));
        printer.fails = true;
        EXPECT_TRUE(dialog.Press("cmdPDF"));
        printer.fails = false;
        EXPECT_TRUE(dialog.Press("cmdPrint"));
    });
    shell.Opened()->paper.PreviewActive();
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintPreview"}));
    EXPECT_EQ(outside.messages.log, (Strings{"[Error] Could not create PDF file \"/full/Porter.pdf\""}));
    EXPECT_EQ(printer.log.front(), "hourglass");
    EXPECT_EQ(printer.log.at(1), "pdf /full/Porter.pdf Letter");
    EXPECT_EQ(printer.log.at(6), "new");
}

TEST_F(ShellPrintTest, ThePrinterDialogLeadsToThePreview) {
    NewNamed("Porter");
    printer.result = Result::Preview;
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintPreview"}));
}

TEST_F(ShellPrintTest, FromThePreviewThePrinterDialogLeadsBackToIt) {
    NewNamed("Porter");
    printer.result = Result::Preview;
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_TRUE(dialog.Press("cmdPrint"));
        EXPECT_TRUE(dialog.IsOpen());
    });
    shell.Opened()->paper.PreviewActive();
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintPreview"}));
    EXPECT_EQ(printer.log, (Strings{"new"}));
}

TEST_F(ShellPrintTest, WithoutAPortNothingIsPrinted) {
    NewNamed("Porter");
    shell.Environment().printer = nullptr;
    EXPECT_TRUE(shell.RunMenu("mnuFilePrint"));
    shell.Opened()->paper.PreviewActive();
    EXPECT_TRUE(outside.dialogs.shown.empty());
}

TEST_F(ShellPrintTest, TheWizardStaysBehindItsHiddenItem) {
    EXPECT_FALSE(shell.RunMenu("mnuFileReport"));
    EXPECT_TRUE(outside.dialogs.shown.empty());
    shell.CurrentSettings().reportType = 1;
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dynamic_cast<PrintWizardModel&>(dialog).Type(), ReportType::Html);
    });
    shell.Opened()->paper.ShowReportWizard(shell.CurrentSettings().reportType);
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintWizard"}));
}

}  // namespace
}  // namespace tw::test
