#include "platform/qt/Appearance.h"

#include <QFontMetrics>
#include <QLayout>
#include <QWidget>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace tw {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kFigureSize = 1.3;

// Relative luminance of an sRGB colour, 0 to 1.
double Luminance(const QColor& color) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

using Colors = std::initializer_list<std::pair<QPalette::ColorRole, QColor>>;

QPalette MakePalette(Colors colors, const QColor& disabledText) {
    QPalette palette;
    for (const auto& [role, color] : colors) palette.setColor(role, color);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, palette.color(QPalette::Mid));
    return palette;
}

}  // namespace

QColor Mix(const QColor& a, const QColor& b, double partOfB) {
    const auto mix = [&](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * partOfB)); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

int Unit(const QWidget& widget) {
    return std::max(4, widget.fontMetrics().lineSpacing() / 2);
}

void SetSpacing(QLayout& layout, const QWidget& widget, bool withMargins) {
    const int unit = Unit(widget);
    const int margin = withMargins ? kMarginUnits * unit : 0;
    layout.setContentsMargins(margin, margin, margin, margin);
    layout.setSpacing(kGapUnits * unit);
}

int DigitsWidth(const QWidget& widget, int digits) {
    return widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits;
}

QFont FigureFont(QFont font) {
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * kFigureSize);
    else
        font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * kFigureSize)));
    // Digits are equally wide and so line up in columns; kerning would shift them.
    font.setKerning(false);
    return font;
}

QFont BoldFont(QFont font) {
    font.setBold(true);
    return font;
}

int PixelsOfTwips(double twips, double dotsPerInch) {
    return static_cast<int>(std::lround(twips * dotsPerInch / kTwipsPerInch));
}

double TwipsOfPixels(int pixels, double dotsPerInch) {
    return std::round(pixels * kTwipsPerInch / dotsPerInch);
}

bool IsDark(const QPalette& palette) {
    return Luminance(palette.color(QPalette::WindowText)) > Luminance(palette.color(QPalette::Window));
}

QColor Accent(const QPalette& palette) {
    return IsDark(palette) ? QColor(0xe0925a) : QColor(0xa8501c);
}

QColor HintColor(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    for (const double part : {0.60, 0.70, 0.80, 0.90}) {
        const QColor color = Mix(base, text, part);
        if (ContrastRatio(color, base) >= 4.5) return color;
    }
    return text;
}

QColor HairlineColor(const QPalette& palette) {
    return Mix(palette.color(QPalette::Base), palette.color(QPalette::Text), IsDark(palette) ? 0.22 : 0.18);
}

QPalette LightPalette() {
    return MakePalette({{QPalette::Window, QColor(0xf1efec)},
                        {QPalette::WindowText, QColor(0x1d1b19)},
                        {QPalette::Base, QColor(0xffffff)},
                        {QPalette::AlternateBase, QColor(0xf7f5f2)},
                        {QPalette::ToolTipBase, QColor(0xfffbe6)},
                        {QPalette::ToolTipText, QColor(0x1d1b19)},
                        {QPalette::PlaceholderText, QColor(0x6b6560)},
                        {QPalette::Text, QColor(0x1d1b19)},
                        {QPalette::Button, QColor(0xf1efec)},
                        {QPalette::ButtonText, QColor(0x1d1b19)},
                        {QPalette::BrightText, QColor(0xffffff)},
                        {QPalette::Light, QColor(0xffffff)},
                        {QPalette::Midlight, QColor(0xe3dfda)},
                        {QPalette::Mid, QColor(0xb9b3ab)},
                        {QPalette::Dark, QColor(0x9a938a)},
                        {QPalette::Shadow, QColor(0x6a645c)},
                        {QPalette::Highlight, QColor(0x9a4a18)},
                        {QPalette::HighlightedText, QColor(0xffffff)},
                        {QPalette::Link, QColor(0x0a5a9c)},
                        {QPalette::LinkVisited, QColor(0x6a3d8a)}},
                       QColor(0x8a847d));
}

QPalette DarkPalette() {
    return MakePalette({{QPalette::Window, QColor(0x2b2927)},
                        {QPalette::WindowText, QColor(0xece8e3)},
                        {QPalette::Base, QColor(0x1f1d1c)},
                        {QPalette::AlternateBase, QColor(0x262423)},
                        {QPalette::ToolTipBase, QColor(0x3a3734)},
                        {QPalette::ToolTipText, QColor(0xece8e3)},
                        {QPalette::PlaceholderText, QColor(0xa8a19a)},
                        {QPalette::Text, QColor(0xece8e3)},
                        {QPalette::Button, QColor(0x383532)},
                        {QPalette::ButtonText, QColor(0xece8e3)},
                        {QPalette::BrightText, QColor(0xffffff)},
                        {QPalette::Light, QColor(0x4a4642)},
                        {QPalette::Midlight, QColor(0x403c39)},
                        {QPalette::Mid, QColor(0x5a5550)},
                        {QPalette::Dark, QColor(0x171514)},
                        {QPalette::Shadow, QColor(0x0c0b0b)},
                        {QPalette::Highlight, QColor(0x9a4f1f)},
                        {QPalette::HighlightedText, QColor(0xffffff)},
                        {QPalette::Link, QColor(0x7fb5e6)},
                        {QPalette::LinkVisited, QColor(0xc3a3dd)}},
                       QColor(0x8d867f));
}

double ContrastRatio(const QColor& a, const QColor& b) {
    const double la = Luminance(a), lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

}  // namespace tw
