// A device that logs every call and fails the one that a test names.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "reports/PrinterDevice.h"

namespace tw::test {

using Strings = std::vector<std::string>;

class PaperLog final : public PrinterDevice {
  public:
    explicit PaperLog(Strings& log, std::string failing = {}) : log_(log), failing_(std::move(failing)) {}
    ~PaperLog() override { log_.emplace_back("gone"); }

    bool StartDoc(const std::string& name) override { return Note("StartDoc", name); }
    bool StartPage() override { return Note("StartPage"); }
    bool EndPage() override { return Note("EndPage"); }
    bool EndDoc() override { return Note("EndDoc"); }
    bool AbortDoc() override { return Note("AbortDoc"); }
    bool Close() override { return Note("DeleteDC"); }
    int LastError() const override { return 5; }
    PrintSize PageSize() const override { return kLetterPaper; }
    bool SetTextColor(Rgb color) override { return Note("SetTextColor", ColorName(color)); }
    bool MakeFont(const PrintFont& font) override {
        return Note("CreateFont", font.family + " " + std::to_string(font.points) +
                                      (font.bold ? " bold" : "") + (font.italic ? " italic" : ""));
    }
    bool MakeBrush(Rgb color) override { return Note("CreateSolidBrush", ColorName(color)); }
    bool MakePen(Rgb color) override { return Note("CreatePen", ColorName(color)); }
    bool SelectObjects() override { return Note("SelectObject"); }
    bool TextSize(std::string_view text, PrintSize& size) override {
        size = {static_cast<double>(text.size()), 1};
        return Note("GetTextExtentPoint32");
    }
    bool TextOut(std::string_view text, double, double) override {
        return Note("TextOut", std::string(text));
    }
    bool MoveTo(double, double) override { return Note("MoveToEx"); }
    bool LineTo(double, double) override { return Note("LineTo"); }
    bool Rectangle(double, double, double, double) override { return Note("Rectangle"); }

  private:
    static std::string ColorName(Rgb color) {
        return std::to_string(color.red) + "," + std::to_string(color.green) + "," +
               std::to_string(color.blue);
    }
    bool Note(const std::string& call, const std::string& what = {}) {
        log_.push_back(what.empty() ? call : call + " " + what);
        return call != failing_;
    }

    Strings& log_;
    std::string failing_;
};

}  // namespace tw::test
