// Drawn pages as plain data: printed by the console, shown by the preview and written to PDF files.
// All lengths are inches.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "reports/PrinterDevice.h"
#include "reports/TWPrinter.h"

namespace tw {

struct PrintStep {
    enum class Kind { Page, Text, Line, Box };
    Kind kind = Kind::Page;
    double x1 = 0, y1 = 0;  // the top left corner of a text
    double x2 = 0, y2 = 0;  // unused for a text
    PrintFont font = {};
    std::string text = {};
    Rgb color{0, 0, 0};  // of a box
    bool operator==(const PrintStep&) const = default;
};

// The steps of a document. Each page begins with a step of kind Page.
struct PrintSteps {
    std::string title;  // the name of the document
    PrintSize page;
    std::vector<PrintStep> steps;
    int Pages() const;
    bool operator==(const PrintSteps&) const = default;
};

// Measures texts when there is no device.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    virtual PrintSize SizeOf(const PrintFont& font, std::string_view text) const = 0;
};

// Measures every character as 0.6 times the font size wide and every line as 1.2 times the font size high.
class FixedMeasure final : public TextMeasure {
  public:
    PrintSize SizeOf(const PrintFont& font, std::string_view text) const override;
};

// A device that records what is drawn on it, except empty texts. Never fails.
class StepRecorder : public PrinterDevice {
  public:
    // measure and steps must outlive the device. steps is cleared when a document starts.
    StepRecorder(PrintSize page, const TextMeasure& measure, PrintSteps& steps);

    bool StartDoc(const std::string& name) override;
    bool StartPage() override;
    bool EndPage() override { return true; }
    bool EndDoc() override { return true; }
    bool AbortDoc() override;
    bool Close() override { return true; }
    int LastError() const override { return 0; }
    PrintSize PageSize() const override { return page_; }
    bool SetTextColor(Rgb) override { return true; }
    bool MakeFont(const PrintFont& font) override;
    bool MakeBrush(Rgb color) override;
    bool MakePen(Rgb) override { return true; }
    bool SelectObjects() override { return true; }
    bool TextSize(std::string_view text, PrintSize& size) override;
    bool TextOut(std::string_view text, double x, double y) override;
    bool MoveTo(double x, double y) override;
    bool LineTo(double x, double y) override;
    bool Rectangle(double x1, double y1, double x2, double y2) override;

  private:
    PrintSize page_;
    const TextMeasure& measure_;
    PrintSteps& steps_;
    PrintFont font_;
    Rgb brush_{0, 0, 0};
    double x_ = 0, y_ = 0;
};

// Draws the recorded pages on device, as one document. Raises the errors of TWPrinter, after killing
// the document.
void PlaySteps(const PrintSteps& steps, std::unique_ptr<PrinterDevice> device);

}  // namespace tw
