// The looks that all windows share: measures derived from the font, the accent colour, and the palettes of a
// light and a dark desktop.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QLayout;
class QWidget;

namespace tw {

// Returns the unit of all distances, in pixels: half the line height of the widget's font, at least 4.
int Unit(const QWidget& widget);
// Margins around a layout, gaps between its widgets, and gaps between groups, in units.
inline constexpr int kMarginUnits = 2;
inline constexpr int kGapUnits = 1;
inline constexpr int kGroupUnits = 3;

// Sets the margins (kMarginUnits or none) and the gaps (kGapUnits) of a layout, in the units of widget.
void SetSpacing(QLayout& layout, const QWidget& widget, bool withMargins);

// Returns the width of that many digits in the widget's font, in pixels.
int DigitsWidth(const QWidget& widget, int digits);

// Returns the font of the recipe's figures: 1.3 times as large.
QFont FigureFont(QFont font);
QFont BoldFont(QFont font);

// Convert between twips (1/20 point) and logical pixels of a display with that many dots per inch.
int PixelsOfTwips(double twips, double dotsPerInch);
double TwipsOfPixels(int pixels, double dotsPerInch);

// True if the text of the palette is lighter than its background.
bool IsDark(const QPalette& palette);
// The copper colour of the marks in graphs and range bars. Its contrast to the palette's backgrounds is at
// least 3:1.
QColor Accent(const QPalette& palette);
// The colour of subdued text such as hints and units. Its contrast to the base is at least 4.5:1 unless the
// text colour itself has less.
QColor HintColor(const QPalette& palette);
// The colour of the lines between the cells of a grid.
QColor HairlineColor(const QPalette& palette);

QPalette LightPalette();
QPalette DarkPalette();

// Returns the colour mixed from partOfB (0 to 1) of b and the rest of a.
QColor Mix(const QColor& a, const QColor& b, double partOfB);

// Returns the contrast of two opaque colours, 1 to 21, by the formula of the Web Content
// Accessibility Guidelines.
double ContrastRatio(const QColor& a, const QColor& b);

}  // namespace tw
