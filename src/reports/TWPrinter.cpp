#include "reports/TWPrinter.h"

#include <utility>

#include "platform/Error.h"

namespace tw {
namespace {

constexpr std::string_view kSource = "TWPrinter";
constexpr int kInvalidHandle = 6;
constexpr Rgb kBlack{0, 0, 0};

[[noreturn]] void RaisePrinterError(std::string_view apiName, int number) {
    std::string description = "Printer Error Occurred";
    if (!apiName.empty()) description.append(" (").append(apiName).append(")");
    throw Error(std::string(kSource), description, number);
}

}  // namespace

TWPrinter::~TWPrinter() {
    if (device_) device_->Close();
}

PrinterDevice& TWPrinter::Device() {
    if (!device_) RaisePrinterError("", kInvalidHandle);
    return *device_;
}

void TWPrinter::CheckResult(bool result, std::string_view apiName) {
    if (!result) RaisePrinterError(apiName, device_->LastError());
}

void TWPrinter::Close() {
    if (!device_) return;
    const std::unique_ptr<PrinterDevice> device = std::move(device_);
    if (!device->Close()) RaisePrinterError("DeleteDC", device->LastError());
}

PrintSize TWPrinter::BeginDoc(std::unique_ptr<PrinterDevice> device, const std::string& name) {
    Close();
    device_ = std::move(device);
    CheckResult(Device().StartDoc(name), "StartDoc");
    CheckResult(device_->StartPage(), "StartPage");
    font_ = PrintFont();
    fontDirty_ = true;
    objectsMade_ = false;
    color_ = kBlack;
    CheckResult(device_->SetTextColor(kBlack), "SetTextColor");
    return device_->PageSize();
}

void TWPrinter::FinishDoc() {
    CheckResult(Device().EndPage(), "EndPage");
    CheckResult(device_->EndDoc(), "EndDoc");
}

void TWPrinter::KillDoc() {
    CheckResult(Device().AbortDoc(), "AbortDoc");
}

void TWPrinter::FontSize(int points) {
    fontDirty_ = fontDirty_ || font_.points != points;
    font_.points = points;
}

void TWPrinter::FontBold(bool bold) {
    fontDirty_ = fontDirty_ || font_.bold != bold;
    font_.bold = bold;
}

void TWPrinter::FontItalic(bool italic) {
    fontDirty_ = fontDirty_ || font_.italic != italic;
    font_.italic = italic;
}

void TWPrinter::FontFamily(std::string_view family) {
    fontDirty_ = fontDirty_ || font_.family != family;
    font_.family = family;
}

void TWPrinter::Color(Rgb color) {
    if (color != color_) MakeColor(color);
}

void TWPrinter::MakeColor(Rgb color) {
    CheckResult(Device().SetTextColor(color), "SetTextColor");
    CheckResult(device_->MakeBrush(color), "CreateSolidBrush");
    CheckResult(device_->MakePen(color), "CreatePen");
    objectsMade_ = true;
    color_ = color;
}

void TWPrinter::EnsureFont() {
    if (!fontDirty_) return;
    CheckResult(Device().MakeFont(font_), "CreateFont");
    objectsMade_ = true;
    fontDirty_ = false;
}

PrintSize TWPrinter::GetTextSize(std::string_view text) {
    EnsureFont();
    PrintSize size;
    CheckResult(Device().TextSize(text, size), "GetTextExtentPoint32");
    return size;
}

void TWPrinter::MoveTo(double x, double y) {
    CheckResult(Device().MoveTo(x, y), "MoveToEx");
}

void TWPrinter::LineTo(double x, double y) {
    CheckResult(Device().LineTo(x, y), "LineTo");
}

void TWPrinter::Box(double x1, double y1, double x2, double y2, Rgb color) {
    const Rgb before = color_;
    Color(color);
    CheckResult(Device().Rectangle(x1, y1, x2, y2), "Rectangle");
    Color(before);
}

void TWPrinter::NewPage() {
    CheckResult(Device().EndPage(), "EndPage");
    CheckResult(device_->StartPage(), "StartPage");
    if (objectsMade_) CheckResult(device_->SelectObjects(), "SelectObject");
    if (color_ != kBlack) {
        // A new page may have reset the drawing objects.
        const Rgb color = color_;
        Color(kBlack);
        Color(color);
    }
    MoveTo(0, 0);
}

void TWPrinter::TextOut(std::string_view text, double x, double y) {
    EnsureFont();
    CheckResult(Device().TextOut(text, x, y), "TextOut");
}

void RunPrintJob(TWPrinter& printer, const std::function<void()>& job) {
    try {
        job();
        printer.Close();
    } catch (const Error&) {
        try {
            printer.KillDoc();
        } catch (const Error&) {
            // Report the first failure, not this one.
        }
        throw;
    }
}

}  // namespace tw
