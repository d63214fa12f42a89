// A thin drawing surface on the device of one print job. All lengths are inches. If a call to the device
// fails, raises Error "Printer Error Occurred ({call})" with the source "TWPrinter" and the device's
// error number.
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
    // Closes a device that is still open and ignores its error; Close raises it.
    ~TWPrinter();
    TWPrinter(const TWPrinter&) = delete;
    TWPrinter& operator=(const TWPrinter&) = delete;

    // Closes an earlier device, takes ownership of this one and starts a document with its first page. Resets
    // the font and the colour. Returns the size of the printable area.
    PrintSize BeginDoc(std::unique_ptr<PrinterDevice> device, const std::string& name);
    void FinishDoc();
    void KillDoc();
    // Does nothing without a device.
    void Close();

    // These set the font of the next text. The device creates a font only before a text is drawn or measured,
    // and only if the font has changed.
    void FontSize(int points);
    void FontBold(bool bold);
    void FontItalic(bool italic);
    void FontFamily(std::string_view family);
    const PrintFont& Font() const { return font_; }
    // Sets the colour of texts, lines and boxes. Does nothing if it is the current colour.
    void Color(Rgb color);

    PrintSize GetTextSize(std::string_view text);
    void MoveTo(double x, double y);
    void LineTo(double x, double y);
    // Draws a box, filled and outlined in that colour. The current colour stays.
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

// Runs a print job and closes the printer's device. If an Error is raised, kills the document and raises
// it again.
void RunPrintJob(TWPrinter& printer, const std::function<void()>& job);

}  // namespace tw
