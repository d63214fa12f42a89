// The printers of the system by Qt's printer dialog.
#pragma once

#include <memory>

#include "reports/PrinterPort.h"
#include "reports/qt/PaperPainter.h"

class QDialog;
class QPrinter;

namespace tw {

class QtPrinters final : public PrinterPort {
  public:
    // own is for a file that is chosen as the printer; it must outlive the port.
    explicit QtPrinters(const OwnFiles& own) : own_(own) {}
    // Raises the error of a file that was chosen as the printer and is not to be written.
    PrinterAnswer ShowPrinterDialog(bool configured, bool quick) override;
    void ShowHourglass(bool on) override;
    std::unique_ptr<PrinterDevice> MakePdf(const TargetFile& target, Paper paper) override;
    const TextMeasure& Measure() const override { return measure_; }
    Paper UsualPaper() const override;

  private:
    std::unique_ptr<PrinterDevice> DeviceOf(const std::shared_ptr<QPrinter>& printer) const;

    const OwnFiles& own_;
    PaperMeasure measure_;
    std::shared_ptr<QPrinter> record_;  // the printer of the last job with its settings
};

// Adds the button "Preview" to a printer dialog, which closes it with that result. False for a dialog that
// has no row of buttons of its own.
inline constexpr int kPreviewResult = 2;
bool AddPreviewButton(QDialog& dialog);

}  // namespace tw
