// The port for the printers of the system.
#pragma once

#include <memory>
#include <string>

#include "platform/TargetFile.h"
#include "reports/Paper.h"
#include "reports/PrintSteps.h"
#include "reports/PrinterDevice.h"

namespace tw {

// The result of the printer dialog.
struct PrinterAnswer {
    enum class Result { Chosen, Cancelled, Preview, NoPrinter, Failed };
    Result result = Result::Cancelled;
    int error = 0;                                    // for Failed: the platform's error number
    std::unique_ptr<PrinterDevice> device = nullptr;  // for Chosen
};

class PrinterPort {
  public:
    virtual ~PrinterPort() = default;

    // Lets the brewer choose a printer, or chooses the default printer without a dialog if quick. The port
    // remembers the chosen printer; the dialog starts with it if configured.
    virtual PrinterAnswer ShowPrinterDialog(bool configured, bool quick) = 0;
    // Shows the busy cursor while a job is running.
    virtual void ShowHourglass(bool /*on*/) {}

    // Returns a device whose document becomes the PDF file target when it ends; an older file stays
    // until then.
    virtual std::unique_ptr<PrinterDevice> MakePdf(const TargetFile& target, Paper paper) = 0;
    // Measures texts as they are printed.
    virtual const TextMeasure& Measure() const = 0;
    // Returns the paper that is common where the brewer lives.
    virtual Paper UsualPaper() const = 0;
};

}  // namespace tw
