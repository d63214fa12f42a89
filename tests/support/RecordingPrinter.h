// A printer for tests: its dialog answers as the test says, and printed pages are kept as drawing steps.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/SaveFilePort.h"
#include "reports/PrinterPort.h"

namespace tw::test {

class RecordingPrinter : public PrinterPort {
  public:
    PrinterAnswer ShowPrinterDialog(bool configured, bool quick) override {
        if (whileShown) whileShown();
        log.push_back(std::string(configured ? "configured" : "new") + (quick ? " quick" : ""));
        PrinterAnswer answer{result, error, nullptr};
        if (result == PrinterAnswer::Result::Chosen) answer.device = MakeDevice();
        return answer;
    }
    void ShowHourglass(bool on) override { log.emplace_back(on ? "hourglass" : "pointer"); }
    std::unique_ptr<PrinterDevice> MakePdf(const TargetFile& target, Paper paper) override {
        log.emplace_back("pdf " + target.Name() + " " +
                         std::string(kPaperNames[static_cast<std::size_t>(paper)]));
        return MakeDevice();
    }
    const TextMeasure& Measure() const override { return measure; }
    Paper UsualPaper() const override { return Paper::A4; }

    PrinterAnswer::Result result = PrinterAnswer::Result::Chosen;
    int error = 0;
    std::function<void()> whileShown;  // runs while the dialog is open
    bool fails = false;                // drawing the first text fails
    std::vector<std::string> log;
    PrintSteps printed;
    FixedMeasure measure;

  private:
    class FailingPaper final : public StepRecorder {
      public:
        using StepRecorder::StepRecorder;
        bool TextOut(std::string_view, double, double) override { return false; }
        int LastError() const override { return 28; }
    };
    std::unique_ptr<PrinterDevice> MakeDevice() {
        if (fails) return std::make_unique<FailingPaper>(kLetterPaper, measure, printed);
        return std::make_unique<StepRecorder>(kLetterPaper, measure, printed);
    }
};

class RecordingSaveFile : public SaveFilePort {
  public:
    std::optional<std::string> AskSaveFile(const SaveFileRequest& request) override {
        requests.push_back(request);
        return answer;
    }
    std::vector<SaveFileRequest> requests;
    std::optional<std::string> answer;
};

}  // namespace tw::test
