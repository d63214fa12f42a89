// The port to paper: one page after the other, drawn in inches. The windows answer it with a printer or a PDF
// file, the console and the tests with a recorder of drawing steps.
#pragma once

#include <string>
#include <string_view>

#include "record/Controls.h"

namespace tw {

inline constexpr double kPointsPerInch = 72;

// The face of a text.
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

// The device of one print job. Places are inches from the top left corner of the printable area. Every
// operation gives false when it fails; LastError is the platform's number of that failure then.
class PrinterDevice {
  public:
    virtual ~PrinterDevice() = default;

    virtual bool StartDoc(const std::string& name) = 0;
    virtual bool StartPage() = 0;
    virtual bool EndPage() = 0;
    // Raises the Error of a file that could not be written.
    virtual bool EndDoc() = 0;
    // Drops the job: nothing of it is to come out, as far as that can be helped.
    virtual bool AbortDoc() = 0;
    // Gives the device back; nothing else is called afterwards.
    virtual bool Close() = 0;
    virtual int LastError() const = 0;

    // The printable area. Valid once the document is started.
    virtual PrintSize PageSize() const = 0;

    virtual bool SetTextColor(Rgb color) = 0;
    // Each makes an object of the device and takes it in use in place of the one before it.
    virtual bool MakeFont(const PrintFont& font) = 0;
    virtual bool MakeBrush(Rgb color) = 0;
    virtual bool MakePen(Rgb color) = 0;
    // Takes the objects that were made in use again, on a new page.
    virtual bool SelectObjects() = 0;

    // The size of a text in the font in use; the width of an empty text is 0.
    virtual bool TextSize(std::string_view text, PrintSize& size) = 0;
    // x, y is the top left corner of the text.
    virtual bool TextOut(std::string_view text, double x, double y) = 0;
    virtual bool MoveTo(double x, double y) = 0;
    virtual bool LineTo(double x, double y) = 0;
    // Filled with the brush, its edge drawn by the pen.
    virtual bool Rectangle(double x1, double y1, double x2, double y2) = 0;
};

}  // namespace tw
