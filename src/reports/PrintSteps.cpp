#include "reports/PrintSteps.h"

#include <algorithm>
#include <utility>

#include "values/Text.h"

namespace tw {
namespace {

constexpr double kFixedWidth = 0.6;
constexpr double kFixedHeight = 1.2;

void SetFont(TWPrinter& printer, const PrintFont& font) {
    printer.FontFamily(font.family);
    printer.FontSize(font.points);
    printer.FontBold(font.bold);
    printer.FontItalic(font.italic);
}

void PlayStep(const PrintStep& step, TWPrinter& printer) {
    switch (step.kind) {
        case PrintStep::Kind::Page:
            printer.NewPage();
            break;
        case PrintStep::Kind::Text:
            SetFont(printer, step.font);
            printer.TextOut(step.text, step.x1, step.y1);
            break;
        case PrintStep::Kind::Line:
            printer.MoveTo(step.x1, step.y1);
            printer.LineTo(step.x2, step.y2);
            break;
        case PrintStep::Kind::Box:
            printer.Box(step.x1, step.y1, step.x2, step.y2, step.color);
            break;
    }
}

}  // namespace

int PrintSteps::Pages() const {
    return static_cast<int>(std::ranges::count(steps, PrintStep::Kind::Page, &PrintStep::kind));
}

PrintSize FixedMeasure::SizeOf(const PrintFont& font, std::string_view text) const {
    const double em = font.points / kPointsPerInch;
    return {kFixedWidth * em * static_cast<double>(CodePointCount(text)), kFixedHeight * em};
}

StepRecorder::StepRecorder(PrintSize page, const TextMeasure& measure, PrintSteps& steps)
    : page_(page), measure_(measure), steps_(steps) {}

bool StepRecorder::StartDoc(const std::string& name) {
    steps_ = {name, page_, {}};
    return true;
}

bool StepRecorder::StartPage() {
    steps_.steps.push_back({PrintStep::Kind::Page});
    return true;
}

bool StepRecorder::AbortDoc() {
    steps_.steps.clear();
    return true;
}

bool StepRecorder::MakeFont(const PrintFont& font) {
    font_ = font;
    return true;
}

bool StepRecorder::MakeBrush(Rgb color) {
    brush_ = color;
    return true;
}

bool StepRecorder::TextSize(std::string_view text, PrintSize& size) {
    size = measure_.SizeOf(font_, text);
    return true;
}

bool StepRecorder::TextOut(std::string_view text, double x, double y) {
    if (!text.empty()) steps_.steps.push_back({PrintStep::Kind::Text, x, y, 0, 0, font_, std::string(text)});
    return true;
}

bool StepRecorder::MoveTo(double x, double y) {
    x_ = x;
    y_ = y;
    return true;
}

bool StepRecorder::LineTo(double x, double y) {
    steps_.steps.push_back({PrintStep::Kind::Line, x_, y_, x, y});
    return MoveTo(x, y);
}

bool StepRecorder::Rectangle(double x1, double y1, double x2, double y2) {
    steps_.steps.push_back({PrintStep::Kind::Box, x1, y1, x2, y2, {}, {}, brush_});
    return true;
}

void PlaySteps(const PrintSteps& steps, std::unique_ptr<PrinterDevice> device) {
    TWPrinter printer;
    RunPrintJob(printer, [&] {
        printer.BeginDoc(std::move(device), steps.title);
        // BeginDoc has begun the first page.
        for (std::size_t i = 1; i < steps.steps.size(); ++i) PlayStep(steps.steps[i], printer);
        printer.FinishDoc();
    });
}

}  // namespace tw
