#include "reports/PrintPreviewModel.h"
#include "reports/PrintWizardModel.h"
#include "shell/ShellTest.h"
#include "support/RecordingPrinter.h"

namespace tw::test {
namespace {

using Result = PrinterAnswer::Result;

class ShellPrintTest : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        shell.SetPrinter(&printer);
        shell.SetSaveFiles(&files);
    }
    void ExpectCommandsToWaitForTheJob() {
        DDEService& outsideCommands = shell.DDE();
        outsideCommands.ParseDDECommand("[Import(/no/such/file)]");
        int waiting = 0;
        printer.whileShown = [&] {
            outsideCommands.TickDDE();
            waiting = outsideCommands.DDECommandCount();
        };
        shell.PrintActiveDocument(false);
        EXPECT_EQ(waiting, 1);
        outsideCommands.TickDDE();
        EXPECT_EQ(outsideCommands.DDECommandCount(), 0);
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
    EXPECT_TRUE(shell.PressButton("Print"));
    shell.CurrentSettings().quickPrintFromToolbar = false;
    EXPECT_TRUE(shell.PressButton("Print"));
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

// Intended: a first recipe lights Print while no document is open; it finds nothing to print then.
TEST_F(ShellPrintTest, WithoutADocumentThereIsNothingToPrint) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    shell.CheckEnableDelete();
    EXPECT_TRUE(shell.RunMenu("mnuFilePrint"));
    shell.PreviewActiveDocument();
    EXPECT_TRUE(printer.log.empty());
    EXPECT_TRUE(outside.dialogs.shown.empty());
}

TEST_F(ShellPrintTest, WithoutAPrinterAPdfFileIsOffered) {
    NewNamed("Porter");
    printer.result = Result::NoPrinter;
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(
        outside.messages.TakeLog(),
        (Strings{"[Print] There is no printer on this computer.\r\nDo you want to save the recipe as a PDF "
                 "file instead? -> No"}));
    EXPECT_TRUE(files.requests.empty());
    outside.messages.answers = {Answer::Yes};
    files.answer = "/tmp/Porter.pdf";
    printer.log.clear();
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(printer.log, (Strings{"new", "hourglass", "pdf /tmp/Porter.pdf A4", "pointer"}));
    EXPECT_EQ(printer.printed.title, "Porter");
}

TEST_F(ShellPrintTest, TheNameOfAPdfFileIsTheRecipesWithoutWhatAFileCannotHave) {
    NewNamed(" Half/Half: \"50\" ");
    outside.messages.answers = {Answer::Yes};
    printer.result = Result::NoPrinter;
    shell.RunMenu("mnuFilePrint");
    ASSERT_EQ(files.requests.size(), 1u);
    EXPECT_EQ(files.requests[0].name, "Half-Half- -50-.pdf");
    EXPECT_EQ(files.requests[0].extension, "pdf");
    NewNamed("");
    outside.messages.answers = {Answer::Yes};
    shell.RunMenu("mnuFilePrint");
    EXPECT_EQ(files.requests[1].name, "Recipe.pdf");
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
    shell.PreviewActiveDocument();
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
    shell.PreviewActiveDocument();
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintPreview"}));
    EXPECT_EQ(printer.log, (Strings{"new"}));
}

TEST_F(ShellPrintTest, WithoutAPortNothingIsPrinted) {
    NewNamed("Porter");
    shell.SetPrinter(nullptr);
    EXPECT_TRUE(shell.RunMenu("mnuFilePrint"));
    shell.PreviewActiveDocument();
    EXPECT_TRUE(outside.dialogs.shown.empty());
}

TEST_F(ShellPrintTest, TheWizardStaysBehindItsHiddenItem) {
    EXPECT_FALSE(shell.RunMenu("mnuFileReport"));
    EXPECT_TRUE(outside.dialogs.shown.empty());
    shell.CurrentSettings().reportType = 1;
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dynamic_cast<PrintWizardModel&>(dialog).Type(), ReportType::Html);
    });
    shell.ShowReportWizard();
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintWizard"}));
}

}  // namespace
}  // namespace tw::test
