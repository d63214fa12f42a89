// Printing, its preview, and the report wizard.
#include <filesystem>
#include <string>
#include <utility>

#include "reports/NoPrinterModel.h"
#include "reports/PrintPreviewModel.h"
#include "reports/PrintWizardModel.h"
#include "reports/PrintedRecipe.h"
#include "shell/Shell.h"
#include "values/Text.h"

namespace tw {
namespace {

// For the time of a scope.
class Hourglass {
  public:
    explicit Hourglass(PrinterPort& printer) : printer_(printer) { printer_.ShowHourglass(true); }
    ~Hourglass() { printer_.ShowHourglass(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    PrinterPort& printer_;
};

// For the time of a scope tmrProcessDDE is off: no command that another program has sent runs in the middle
// of a job.
class OutsideCommandsPaused {
  public:
    explicit OutsideCommandsPaused(DDEService& commands) : commands_(commands) {
        commands_.SetTicking(false);
    }
    ~OutsideCommandsPaused() { commands_.SetTicking(true); }
    OutsideCommandsPaused(const OutsideCommandsPaused&) = delete;
    OutsideCommandsPaused& operator=(const OutsideCommandsPaused&) = delete;

  private:
    DDEService& commands_;
};

// Where PDF files were saved last; nothing is stored before the first one.
constexpr std::string_view kPrintSection = "Print", kPdfFolderKey = "PDFFolder";

// What fits the name of a file on every usual disk, its ending and the letters of a temporary one included.
constexpr std::size_t kLongestFileName = 200;

// A recipe's name as that of a file.
std::string PdfName(std::string_view recipe) {
    std::string name(Trim(recipe));
    for (char& c : name)
        if (static_cast<unsigned char>(c) < ' ' ||
            std::string_view("/\\:*?\"<>|").find(c) != std::string::npos)
            c = '-';
    std::size_t letters = CodePointCount(name);
    while (CodePointOffset(name, letters) > kLongestFileName) --letters;
    name.resize(CodePointOffset(name, letters));
    return (name.empty() ? "Recipe" : name) + ".pdf";
}

}  // namespace

void Shell::PrintActiveDocument(bool quick) {
    if (!active_ || !printer_) return;
    const PrinterAnswer::Result result = PrintThroughDialog(quick);
    if (result == PrinterAnswer::Result::Preview) PreviewActiveDocument();
    if (result == PrinterAnswer::Result::NoPrinter) OfferOtherPaper();
}

PrinterAnswer::Result Shell::PrintThroughDialog(bool quick) {
    const OutsideCommandsPaused pause(dde_);
    PrinterAnswer answer;
    try {
        answer = printer_->ShowPrinterDialog(printerConfigured_, quick);
        if (answer.result == PrinterAnswer::Result::Failed)
            throw Error("Show Printer Dialog", "Unknown Error", answer.error);
        if (answer.result == PrinterAnswer::Result::Chosen) {
            printerConfigured_ = true;
            PrintOn(std::move(answer.device));
        }
    } catch (const Error& error) {
        // A printer without an answer gives no reason; a file that was chosen as the printer does.
        const bool isFile = answer.result != PrinterAnswer::Result::Failed;
        platform_.messages.ShowMessageWithAdvice(
            "Print Error",
            "An error occurred while gathering printer configuration! (" + std::to_string(error.Number()) +
                ")",
            isFile ? FileAdvice(error) : std::string());
    }
    return answer.result;
}

void Shell::PrintOn(std::unique_ptr<PrinterDevice> device) {
    try {
        const Hourglass hourglass(*printer_);
        PrintRecipe(active_->Record(), std::move(device));
    } catch (const Error& error) {
        platform_.messages.ShowMessage("Error During Print Job", "Error:\r\n" + error.WithNumber());
    }
}

void Shell::PreviewActiveDocument() {
    if (!active_ || !printer_) return;
    const RecipeRecord& recipe = active_->Record();
    PrintPreviewModel preview(
        {[&](PrintSize area) { return LayOutRecipe(recipe, area, printer_->Measure()); },
         // The dialog's own way to the preview leads back to this one.
         [this] {
             if (PrintThroughDialog(false) == PrinterAnswer::Result::NoPrinter) OfferPdf();
         },
         [this](const PrintSteps& steps, Paper paper) { SaveAsPdf(steps, paper); }},
        printer_->UsualPaper());
    platform_.dialogs.ShowModal(preview);
}

void Shell::OfferPdf() {
    const Answer answer = platform_.messages.Ask(
        "Print",
        "There is no printer on this computer.\r\nDo you want to save the recipe as a PDF file instead?",
        Question::YesNo);
    if (answer == Answer::Yes) SaveActiveAsPdf();
}

void Shell::OfferOtherPaper() {
    NoPrinterModel offer;
    platform_.dialogs.ShowModal(offer);
    if (offer.Chosen() == NoPrinterModel::Choice::Preview) PreviewActiveDocument();
    if (offer.Chosen() == NoPrinterModel::Choice::Pdf) SaveActiveAsPdf();
}

void Shell::SaveActiveAsPdf() {
    const Paper paper = printer_->UsualPaper();
    SaveAsPdf(LayOutRecipe(active_->Record(), PrintableArea(paper), printer_->Measure()), paper);
}

void Shell::SaveAsPdf(const PrintSteps& steps, Paper paper) {
    if (!saveFiles_) return;
    const auto path =
        saveFiles_->AskSaveFile({"Save as PDF", "pdf", "PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*||",
                                 PdfName(steps.title), store_.GetSetting(kPrintSection, kPdfFolderKey, "")});
    if (!path) return;
    try {
        const Hourglass hourglass(*printer_);
        PlaySteps(steps, printer_->MakePdf(TargetFile(*path, own_), paper));
        store_.SaveSetting(kPrintSection, kPdfFolderKey, std::filesystem::path(*path).parent_path().string(),
                           false);
    } catch (const Error& error) {
        platform_.messages.ShowMessageWithAdvice("Error", "Could not create PDF file \"" + *path + "\"",
                                                 FileAdvice(error));
    }
}

void Shell::ShowReportWizard() {
    PrintWizardModel wizard(
        {*database_, *tree_, store_, platform_.messages, platform_.dialogs, saveFiles_, own_},
        settings_.reportType);
    platform_.dialogs.ShowModal(wizard);
}

}  // namespace tw
