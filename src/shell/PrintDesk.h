// Paper: printing, its preview, PDF files, and the report wizard. Without a printer port all but the wizard
// do nothing.
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
    // outside is held while a print job runs. All must outlive the object.
    PrintDesk(const ShellEnvironment& environment, InstanceService& outside, OpenedDatabase& data,
              const DocumentManager& documents, SettingsStore& store, OwnFiles& own);

    // Prints the active document, nothing without one; quick takes the default printer without a dialog.
    // Every failure is shown. Where there is no printer it offers the preview and a PDF file.
    void PrintActive(bool quick);
    // Shows the pages of the active document; nothing without one.
    void PreviewActive();
    // The wizard that makes report files, as reportType names them. Its menu item is hidden: intended.
    void ShowReportWizard(int reportType);

  private:
    // What the dialog has come to; a printer that was chosen has the job by then.
    PrinterAnswer::Result PrintThroughDialog(bool quick);
    void PrintOn(std::unique_ptr<PrinterDevice> device);
    // Where there is no printer: from the preview, and from elsewhere.
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
    bool printerConfigured_ = false;  // a printer has been chosen in this run
};

}  // namespace tw
