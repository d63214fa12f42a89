// The port to the printers of the system.
#pragma once

#include <memory>
#include <string>

#include "platform/TargetFile.h"
#include "reports/Paper.h"
#include "reports/PrintSteps.h"
#include "reports/PrinterDevice.h"

namespace tw {

// What came of the printer dialog.
struct PrinterAnswer {
    enum class Result { Chosen, Cancelled, Preview, NoPrinter, Failed };
    Result result = Result::Cancelled;
    int error = 0;                                    // of Failed: the platform's number
    std::unique_ptr<PrinterDevice> device = nullptr;  // of Chosen
};

class PrinterPort {
  public:
    virtual ~PrinterPort() = default;

    // Lets the brewer choose a printer, or takes the default one without a dialog when quick. The port keeps
    // what was chosen for as long as it lives; the dialog starts on that when configured.
    virtual PrinterAnswer ShowPrinterDialog(bool configured, bool quick) = 0;
    // The pointer tells that a job is running.
    virtual void ShowHourglass(bool /*on*/) {}

    // A device whose document becomes that PDF file when it ends; an older file stays until then.
    virtual std::unique_ptr<PrinterDevice> MakePdf(const TargetFile& target, Paper paper) = 0;
    // How large texts are on paper.
    virtual const TextMeasure& Measure() const = 0;
    // The paper that is usual where the brewer lives.
    virtual Paper UsualPaper() const = 0;
};

}  // namespace tw
