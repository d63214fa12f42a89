// The printers of the system, chosen in Qt's printer dialog.
#pragma once

#include <memory>

#include "reports/PrinterPort.h"
#include "reports/qt/PaperPainter.h"

class QDialog;
class QPrinter;

namespace tw {

class QtPrinters final : public PrinterPort {
  public:
    // own: the program's own files, which may not be chosen as the file of a PDF printer.
    // Must outlive the port.
    explicit QtPrinters(const OwnFiles& own) : own_(own) {}
    // Raises Error if the brewer chose a PDF file as the printer and that file must not be written.
    PrinterAnswer ShowPrinterDialog(bool configured, bool quick) override;
    void ShowHourglass(bool on) override;
    std::unique_ptr<PrinterDevice> MakePdf(const TargetFile& target, Paper paper) override;
    const TextMeasure& Measure() const override { return measure_; }
    Paper UsualPaper() const override;

  private:
    std::unique_ptr<PrinterDevice> DeviceOf(const std::shared_ptr<QPrinter>& printer) const;

    const OwnFiles& own_;
    PaperMeasure measure_;
    std::shared_ptr<QPrinter> record_;  // the printer of the last job, with its settings
};

// Adds the button "Preview" to a printer dialog; pressing it closes the dialog with kPreviewResult. Returns
// false if the dialog has no QDialogButtonBox.
inline constexpr int kPreviewResult = 2;
bool AddPreviewButton(QDialog& dialog);

}  // namespace tw
