// Drawn pages as plain data: what the console prints, the preview shows and a PDF file is made from.
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
    double x1 = 0, y1 = 0;  // of a text its top left corner
    double x2 = 0, y2 = 0;  // of a text unused
    PrintFont font = {};
    std::string text = {};
    Rgb color{0, 0, 0};  // of a box
    bool operator==(const PrintStep&) const = default;
};

// Each page begins with a step Page.
struct PrintSteps {
    std::string title;  // the document's name
    PrintSize page;
    std::vector<PrintStep> steps;
    int Pages() const;
    bool operator==(const PrintSteps&) const = default;
};

// How large texts are without a device at hand.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    virtual PrintSize SizeOf(const PrintFont& font, std::string_view text) const = 0;
};

// Every character 0.6 of the font's size wide, every line 1.2 of it high.
class FixedMeasure final : public TextMeasure {
  public:
    PrintSize SizeOf(const PrintFont& font, std::string_view text) const override;
};

// A device that writes down what is drawn on it, empty texts left out. Never fails.
class StepRecorder : public PrinterDevice {
  public:
    // Both must outlive the device. steps is begun anew when a document starts.
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

// Draws the recorded pages on another device, as one document. Raises what TWPrinter raises; the document is
// killed then.
void PlaySteps(const PrintSteps& steps, std::unique_ptr<PrinterDevice> device);

}  // namespace tw
