// A thin drawing surface over the device of one print job: inches and font attributes. Every call that the
// device fails raises an error "Printer Error Occurred ({call})" with the source "TWPrinter" and the device's
// number.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "reports/PrinterDevice.h"

namespace tw {

class TWPrinter {
  public:
    TWPrinter() = default;
    // Gives a device that is still open back, in silence; Close does so with its error.
    ~TWPrinter();
    TWPrinter(const TWPrinter&) = delete;
    TWPrinter& operator=(const TWPrinter&) = delete;

    // Closes an earlier device, takes this one over and starts a document on its first page, with the font
    // and the colour back at their start values. Gives the size of the printable area.
    PrintSize BeginDoc(std::unique_ptr<PrinterDevice> device, const std::string& name);
    void FinishDoc();
    void KillDoc();
    // Nothing without a device.
    void Close();

    // The next text is in this font: one font is made for any number of changes, none when nothing changes.
    void FontSize(int points);
    void FontBold(bool bold);
    void FontItalic(bool italic);
    void FontFamily(std::string_view family);
    const PrintFont& Font() const { return font_; }
    // Text, lines and boxes; nothing when the colour is that one.
    void Color(Rgb color);

    PrintSize GetTextSize(std::string_view text);
    void MoveTo(double x, double y);
    void LineTo(double x, double y);
    // Filled and drawn in that colour; the colour in use stays.
    void Box(double x1, double y1, double x2, double y2, Rgb color);
    void NewPage();
    void TextOut(std::string_view text, double x, double y);

  private:
    PrinterDevice& Device();
    void EnsureFont();
    void CheckResult(bool result, std::string_view apiName);
    void MakeColor(Rgb color);

    std::unique_ptr<PrinterDevice> device_;
    PrintFont font_;
    bool fontDirty_ = true;
    bool objectsMade_ = false;
    Rgb color_{0, 0, 0};
};

// Runs a print job and closes the printer's device. An error in it kills the document and rises on.
void RunPrintJob(TWPrinter& printer, const std::function<void()>& job);

}  // namespace tw
