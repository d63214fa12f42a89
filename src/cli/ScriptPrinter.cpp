#include "cli/ScriptPrinter.h"

#include <cmath>

#include "cli/ScriptFormat.h"
#include "cli/ScriptReader.h"
#include "values/NumberText.h"

namespace tw {
namespace {

// Returns value with at most four decimals.
std::string Inches(double value) {
    constexpr double kScale = 1e4;
    return NumberText(std::round(value * kScale) / kScale);
}

std::string Places(const PrintStep& step) {
    return Inches(step.x1) + " " + Inches(step.y1) + " " + Inches(step.x2) + " " + Inches(step.y2);
}

std::string TextStep(const PrintStep& step) {
    const PrintFont& font = step.font;
    std::string style = font.bold ? "bold" : font.italic ? "" : "plain";
    if (font.italic) style += "italic";
    const bool quoted = font.family.find(' ') != std::string::npos;
    const std::string family = quoted ? "\"" + font.family + "\"" : font.family;
    return "text " + Inches(step.x1) + " " + Inches(step.y1) + " " + std::to_string(font.points) + " " +
           style + " " + family + " " + EscapeText(step.text);
}

std::string StepLine(const PrintStep& step) {
    switch (step.kind) {
        case PrintStep::Kind::Text:
            return TextStep(step);
        case PrintStep::Kind::Line:
            return "line " + Places(step);
        case PrintStep::Kind::Box:
            return "box " + Places(step) + " " + ColorText(step.color);
        case PrintStep::Kind::Page:
            break;
    }
    return "page";
}

class ScriptPaper final : public StepRecorder {
  public:
    ScriptPaper(const TextMeasure& measure, ScriptOutput& out)
        : StepRecorder(kLetterPaper, measure, steps_), out_(out) {}

    bool EndDoc() override {
        for (const PrintStep& step : steps_.steps) out_.Line(StepLine(step));
        return true;
    }

  private:
    PrintSteps steps_;
    ScriptOutput& out_;
};

}  // namespace

PrinterAnswer ScriptPrinter::ShowPrinterDialog(bool, bool) {
    return {PrinterAnswer::Result::Chosen, 0, MakeDevice()};
}

std::unique_ptr<PrinterDevice> ScriptPrinter::MakePdf(const TargetFile&, Paper) {
    return MakeDevice();
}

std::unique_ptr<PrinterDevice> ScriptPrinter::MakeDevice() {
    return std::make_unique<ScriptPaper>(measure_, out_);
}

}  // namespace tw
