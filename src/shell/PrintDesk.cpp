#include "shell/PrintDesk.h"

#include <filesystem>
#include <string>
#include <utility>

#include "platform/ScopeGuard.h"
#include "reports/NoPrinterModel.h"
#include "reports/PrintPreviewModel.h"
#include "reports/PrintWizardModel.h"
#include "reports/PrintedRecipe.h"
#include "values/Text.h"

namespace tw {
namespace {

// Shows the hourglass until the end of a scope.
auto Hourglass(PrinterPort& printer) {
    printer.ShowHourglass(true);
    return ScopeGuard([&printer] { printer.ShowHourglass(false); });
}

// Stops tmrProcessDDE until the end of a scope, so that no command from another program runs during a job.
auto PauseOutsideCommands(InstanceService& commands) {
    commands.SetTicking(false);
    return ScopeGuard([&commands] { commands.SetTicking(true); });
}

// The folder of the PDF file saved last; not stored before the first one.
constexpr std::string_view kPrintSection = "Print", kPdfFolderKey = "PDFFolder";

// File names of up to this many bytes, with the extension and the suffix of a temporary file added, are valid
// on all common file systems.
constexpr std::size_t kLongestFileName = 200;

// Converts a recipe's name to the name of a file.
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

PrintDesk::PrintDesk(const ShellEnvironment& environment, InstanceService& outside, OpenedDatabase& data,
                     const DocumentManager& documents, SettingsStore& store, OwnFiles& own)
    : environment_(environment),
      platform_(environment.platform),
      outside_(outside),
      data_(data),
      documents_(documents),
      store_(store),
      own_(own) {}

void PrintDesk::PrintActive(bool quick) {
    if (documents_.Active() == nullptr || environment_.printer == nullptr) return;
    const PrinterAnswer::Result result = PrintThroughDialog(quick);
    if (result == PrinterAnswer::Result::Preview) PreviewActive();
    if (result == PrinterAnswer::Result::NoPrinter) OfferOtherPaper();
}

PrinterAnswer::Result PrintDesk::PrintThroughDialog(bool quick) {
    const auto pause = PauseOutsideCommands(outside_);
    PrinterAnswer answer;
    try {
        answer = Printer().ShowPrinterDialog(printerConfigured_, quick);
        if (answer.result == PrinterAnswer::Result::Failed)
            throw Error("Show Printer Dialog", "Unknown Error", answer.error);
        if (answer.result == PrinterAnswer::Result::Chosen) {
            printerConfigured_ = true;
            PrintOn(std::move(answer.device));
        }
    } catch (const Error& error) {
        // If the printer does not answer, no reason is known; if a file was chosen as the printer, there
        // is one.
        const bool isFile = answer.result != PrinterAnswer::Result::Failed;
        platform_.messages.ShowMessageWithAdvice(
            "Print Error",
            "An error occurred while gathering printer configuration! (" + std::to_string(error.Number()) +
                ")",
            isFile ? FileAdvice(error) : std::string());
    }
    return answer.result;
}

void PrintDesk::PrintOn(std::unique_ptr<PrinterDevice> device) {
    try {
        const auto hourglass = Hourglass(Printer());
        PrintRecipe(documents_.Active()->Record(), std::move(device));
    } catch (const Error& error) {
        platform_.messages.ShowMessage("Error During Print Job", "Error:\r\n" + error.WithNumber());
    }
}

void PrintDesk::PreviewActive() {
    if (documents_.Active() == nullptr || environment_.printer == nullptr) return;
    const RecipeRecord& recipe = documents_.Active()->Record();
    PrintPreviewModel preview(
        {[&](PrintSize area) { return LayOutRecipe(recipe, area, Printer().Measure()); },
         // The printer dialog can lead to a preview: that is this one, which is still open.
         [this] {
             if (PrintThroughDialog(false) == PrinterAnswer::Result::NoPrinter) OfferPdf();
         },
         [this](const PrintSteps& steps, Paper paper) { SaveAsPdf(steps, paper); }},
        Printer().UsualPaper());
    platform_.dialogs.ShowModal(preview);
}

void PrintDesk::OfferPdf() {
    const Answer answer = platform_.messages.Ask(
        "Print",
        "There is no printer on this computer.\r\nDo you want to save the recipe as a PDF file instead?",
        Question::YesNo);
    if (answer == Answer::Yes) SaveActiveAsPdf();
}

void PrintDesk::OfferOtherPaper() {
    NoPrinterModel offer;
    platform_.dialogs.ShowModal(offer);
    if (offer.Chosen() == NoPrinterModel::Choice::Preview) PreviewActive();
    if (offer.Chosen() == NoPrinterModel::Choice::Pdf) SaveActiveAsPdf();
}

void PrintDesk::SaveActiveAsPdf() {
    const Paper paper = Printer().UsualPaper();
    SaveAsPdf(LayOutRecipe(documents_.Active()->Record(), PrintableArea(paper), Printer().Measure()), paper);
}

void PrintDesk::SaveAsPdf(const PrintSteps& steps, Paper paper) {
    SaveFilePort* const files = environment_.saveFiles;
    if (files == nullptr) return;
    const auto path =
        files->AskSaveFile({"Save as PDF", "pdf", "PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*||",
                            PdfName(steps.title), store_.GetSetting(kPrintSection, kPdfFolderKey, "")});
    if (!path) return;
    try {
        const auto hourglass = Hourglass(Printer());
        PlaySteps(steps, Printer().MakePdf(TargetFile(*path, own_), paper));
        store_.SaveSetting(kPrintSection, kPdfFolderKey, std::filesystem::path(*path).parent_path().string(),
                           false);
    } catch (const Error& error) {
        platform_.messages.ShowMessageWithAdvice("Error", "Could not create PDF file \"" + *path + "\"",
                                                 FileAdvice(error));
    }
}

void PrintDesk::ShowReportWizard(int reportType) {
    PrintWizardModel wizard({*data_.database, data_.tree, store_, platform_.messages, platform_.dialogs,
                             environment_.saveFiles, own_},
                            reportType);
    platform_.dialogs.ShowModal(wizard);
}

}  // namespace tw
