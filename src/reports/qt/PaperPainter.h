// Draws on paper with Qt: with the same fonts and positions on a printer, in a PDF file and in the preview.
#pragma once

#include <QFont>
#include <QString>
#include <map>
#include <string_view>
#include <tuple>

#include "reports/PrintSteps.h"

class QPainter;

namespace tw {

// The resolution in dots per inch at which texts are measured and PDF files are written.
inline constexpr int kPaperDpi = 600;

// Returns the font for a device of dpi dots per inch. A family that the system lacks is replaced by a
// similar one.
QFont PaperFont(const PrintFont& font, double dpi);
// Returns the text as it is drawn: control characters become blanks.
QString PaperText(std::string_view text);
PrintSize PaperTextSize(const QFont& font, std::string_view text, double dpi);

// Each draws at positions in inches. A box and a line use the painter's pen and brush.
void DrawPaperText(QPainter& painter, std::string_view text, double x, double y, double dpi);
void DrawPaperLine(QPainter& painter, double x1, double y1, double x2, double y2, double dpi);
void DrawPaperBox(QPainter& painter, double x1, double y1, double x2, double y2, double dpi);
// Sets pen and brush to that colour; the pen is 0.5 points wide. A page begins with black.
void SetPaperColor(QPainter& painter, Rgb color, double dpi);

// Draws one recorded page, counted from 1, at kPaperDpi dots per inch.
void PaintPage(QPainter& painter, const PrintSteps& steps, int page);

// Measures texts as they are printed.
class PaperMeasure final : public TextMeasure {
  public:
    PrintSize SizeOf(const PrintFont& font, std::string_view text) const override;

  private:
    // Never emptied, since a recipe uses few fonts.
    using Key = std::tuple<std::string, int, bool, bool>;
    mutable std::map<Key, QFont> fonts_;
};

}  // namespace tw
