// The printer of a script: what goes to it is printed as drawing steps, on letter paper.
#pragma once

#include <string>

#include "cli/ScriptPlatform.h"
#include "reports/PrinterPort.h"

namespace tw {

class ScriptPrinter final : public PrinterPort {
  public:
    explicit ScriptPrinter(ScriptOutput& out) : out_(out) {}

    // Takes this printer without a word.
    PrinterAnswer ShowPrinterDialog(bool configured, bool quick) override;
    // A PDF file is printed like everything else.
    std::unique_ptr<PrinterDevice> MakePdf(const TargetFile& target, Paper paper) override;
    const TextMeasure& Measure() const override { return measure_; }
    Paper UsualPaper() const override { return Paper::Letter; }
    // Prints its steps, a line each, when its document ends.
    std::unique_ptr<PrinterDevice> MakeDevice();

  private:
    ScriptOutput& out_;
    FixedMeasure measure_;
};

}  // namespace tw
