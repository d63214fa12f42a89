// Printing, print preview, PDF files, and the report wizard. Without a printer port, only the wizard works.
#pragma once

#include <memory>

#include "platform/OwnFiles.h"
#include "platform/SettingsStore.h"
#include "reports/PrinterPort.h"
#include "shell/DocumentManager.h"
#include "shell/InstanceService.h"
#include "shell/OpenedDatabase.h"
#include "shell/ShellEnvironment.h"

namespace tw {

class PrintDesk {
  public:
    // Commands from outside wait while the printer dialog is open and during a print job. All arguments must
    // outlive the object.
    PrintDesk(const ShellEnvironment& environment, InstanceService& outside, OpenedDatabase& data,
              const DocumentManager& documents, SettingsStore& store, OwnFiles& own);

    // Prints the active document, if there is one; quick uses the default printer without a dialog. Shows
    // every error. If there is no printer, offers the preview and a PDF file instead.
    void PrintActive(bool quick);
    // Shows the pages of the active document, if there is one.
    void PreviewActive();
    // Shows the wizard that creates report files, with that report type selected. Its menu item is hidden, so
    // that the wizard is not offered to the brewer.
    void ShowReportWizard(int reportType);

  private:
    // Returns the result of the dialog; by then, a chosen printer has received the job.
    PrinterAnswer::Result PrintThroughDialog(bool quick);
    void PrintOn(std::unique_ptr<PrinterDevice> device);
    // Offer alternatives if there is no printer: OfferPdf from the preview, OfferOtherPaper from elsewhere.
    void OfferPdf();
    void OfferOtherPaper();
    void SaveActiveAsPdf();
    void SaveAsPdf(const PrintSteps& steps, Paper paper);
    PrinterPort& Printer() { return *environment_.printer; }

    const ShellEnvironment& environment_;
    Platform& platform_;
    InstanceService& outside_;
    OpenedDatabase& data_;
    const DocumentManager& documents_;
    SettingsStore& store_;
    OwnFiles& own_;
    bool printerConfigured_ = false;  // true once a printer has been chosen in this run
};

}  // namespace tw
