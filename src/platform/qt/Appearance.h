// What all windows share in their looks: measures that come from the font, the accent colour, and the
// palettes of a light and a dark desktop.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QLayout;
class QWidget;

namespace tw {

// One unit of all distances in pixels: half the line height of the widget's font.
int Unit(const QWidget& widget);
inline constexpr int kMarginUnits = 2;
inline constexpr int kGapUnits = 1;
inline constexpr int kGroupUnits = 3;

// Gives a layout its margins (of kMarginUnits, or none) and its gaps.
void SetSpacing(QLayout& layout, const QWidget& widget, bool withMargins);

// Width of so many digits in the widget's font, in pixels.
int DigitsWidth(const QWidget& widget, int digits);

// The face of the recipe's figures: 1.3 times as large.
QFont FigureFont(QFont font);
QFont BoldFont(QFont font);

// Twips (a twentieth of a point) and logical pixels of a display of that many dots per inch.
int PixelsOfTwips(double twips, double dotsPerInch);
double TwipsOfPixels(int pixels, double dotsPerInch);

// True for a palette whose text is lighter than its ground.
bool IsDark(const QPalette& palette);
// The copper of the marks in graphs and range bars; at least 3:1 to the palette's grounds.
QColor Accent(const QPalette& palette);
// Text that stands back: hints and units. Still 4.5:1 to the base.
QColor HintColor(const QPalette& palette);
// Lines between the cells of a grid.
QColor HairlineColor(const QPalette& palette);

QPalette LightPalette();
QPalette DarkPalette();

// The colour that holds partOfB (0 to 1) of b and the rest of a.
QColor Mix(const QColor& a, const QColor& b, double partOfB);

// The contrast of two opaque colours, 1 to 21, by the formula of the Web Content Accessibility Guidelines.
double ContrastRatio(const QColor& a, const QColor& b);

}  // namespace tw
