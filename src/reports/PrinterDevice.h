// The port for printing: pages are drawn one after the other, in inches. The desktop program implements it
// with a printer or a PDF file, the console and the tests with a recorder of drawing steps.
#pragma once

#include <string>
#include <string_view>

#include "record/Controls.h"

namespace tw {

inline constexpr double kPointsPerInch = 72;

// The font of a text.
struct PrintFont {
    std::string family = "Times New Roman";
    int points = 12;
    bool bold = false;
    bool italic = false;
    bool operator==(const PrintFont&) const = default;
};

// Width and height in inches.
struct PrintSize {
    double width = 0;
    double height = 0;
    bool operator==(const PrintSize&) const = default;
};

inline constexpr PrintSize kLetterPaper{8.5, 11};

// The device of one print job. Positions are in inches from the top left corner of the printable area. An
// operation that fails returns false; LastError then returns the platform's error number.
class PrinterDevice {
  public:
    virtual ~PrinterDevice() = default;

    virtual bool StartDoc(const std::string& name) = 0;
    virtual bool StartPage() = 0;
    virtual bool EndPage() = 0;
    // Raises Error if a file cannot be written.
    virtual bool EndDoc() = 0;
    // Cancels the job: prints nothing of it if that is still possible.
    virtual bool AbortDoc() = 0;
    // Releases the device. REQUIRES: no other function is called afterwards.
    virtual bool Close() = 0;
    virtual int LastError() const = 0;

    // Returns the size of the printable area. REQUIRES: the document is started.
    virtual PrintSize PageSize() const = 0;

    virtual bool SetTextColor(Rgb color) = 0;
    // Each creates a drawing object of the device, which replaces the current one of its kind.
    virtual bool MakeFont(const PrintFont& font) = 0;
    virtual bool MakeBrush(Rgb color) = 0;
    virtual bool MakePen(Rgb color) = 0;
    // Selects the current drawing objects again, on a new page.
    virtual bool SelectObjects() = 0;

    // Sets size to the size of text in the current font. An empty text has width 0.
    virtual bool TextSize(std::string_view text, PrintSize& size) = 0;
    // x, y: the top left corner of the text.
    virtual bool TextOut(std::string_view text, double x, double y) = 0;
    virtual bool MoveTo(double x, double y) = 0;
    virtual bool LineTo(double x, double y) = 0;
    // Draws a rectangle, filled with the brush and outlined with the pen.
    virtual bool Rectangle(double x1, double y1, double x2, double y2) = 0;
};

}  // namespace tw
