// Drawing on paper with Qt: the same faces and places on a printer, in a PDF file and in the preview.
#pragma once

#include <QFont>
#include <QString>
#include <map>
#include <string_view>
#include <tuple>

#include "reports/PrintSteps.h"

class QPainter;

namespace tw {

// The resolution that texts are measured and PDF files are made with, in dots per inch.
inline constexpr int kPaperDpi = 600;

// The face for a device of that resolution; a family that the system lacks is replaced by one of its kind.
QFont PaperFont(const PrintFont& font, double dpi);
// The text as it is drawn: control characters leave a blank.
QString PaperText(std::string_view text);
PrintSize PaperTextSize(const QFont& font, std::string_view text, double dpi);

// Each draws at places in inches. A box and a line take the painter's pen and brush.
void DrawPaperText(QPainter& painter, std::string_view text, double x, double y, double dpi);
void DrawPaperLine(QPainter& painter, double x1, double y1, double x2, double y2, double dpi);
void DrawPaperBox(QPainter& painter, double x1, double y1, double x2, double y2, double dpi);
// Black pen and brush as a page begins with, or another colour.
void SetPaperColor(QPainter& painter, Rgb color, double dpi);

// Draws one recorded page, counted from 1, with kPaperDpi dots to the inch.
void PaintPage(QPainter& painter, const PrintSteps& steps, int page);

// Measures as paper does.
class PaperMeasure final : public TextMeasure {
  public:
    PrintSize SizeOf(const PrintFont& font, std::string_view text) const override;

  private:
    // A recipe uses few faces.
    using Key = std::tuple<std::string, int, bool, bool>;
    mutable std::map<Key, QFont> fonts_;
};

}  // namespace tw
