// The printer for scripts: prints its pages as drawing steps, on letter paper.
#pragma once

#include <string>

#include "cli/ScriptPlatform.h"
#include "reports/PrinterPort.h"

namespace tw {

class ScriptPrinter final : public PrinterPort {
  public:
    explicit ScriptPrinter(ScriptOutput& out) : out_(out) {}

    // Chooses this printer without showing a dialog.
    PrinterAnswer ShowPrinterDialog(bool configured, bool quick) override;
    // A PDF file is printed as drawing steps too.
    std::unique_ptr<PrinterDevice> MakePdf(const TargetFile& target, Paper paper) override;
    const TextMeasure& Measure() const override { return measure_; }
    Paper UsualPaper() const override { return Paper::Letter; }
    // Returns a device that prints its steps, one a line, when its document ends.
    std::unique_ptr<PrinterDevice> MakeDevice();

  private:
    ScriptOutput& out_;
    FixedMeasure measure_;
};

}  // namespace tw
