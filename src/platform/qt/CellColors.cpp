#include "platform/qt/CellColors.h"

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

// The part of the text colour in a tint. A dark background needs more of it for the tint to be visible.
constexpr double kCalculatedOnLight = 0.05, kCalculatedOnDark = 0.08;
constexpr double kTotalOnLight = 0.10, kTotalOnDark = 0.16;
constexpr double kReadable = 4.5;

QColor ReadableOn(const QColor& ground, const QColor& usual) {
    if (ContrastRatio(usual, ground) >= kReadable) return usual;
    const QColor black(Qt::black), white(Qt::white);
    return ContrastRatio(black, ground) >= ContrastRatio(white, ground) ? black : white;
}

CellColors Painted(const CellColors& chosen, const QPalette& palette, double tint) {
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    CellColors painted = chosen;
    if (!chosen.ground.isValid()) painted.ground = Mix(base, text, tint);
    if (!chosen.ink.isValid()) painted.ink = ReadableOn(painted.ground, text);
    return painted;
}

}  // namespace

CellColors CalculatedColors(const CellColors& chosen, const QPalette& palette) {
    return Painted(chosen, palette, IsDark(palette) ? kCalculatedOnDark : kCalculatedOnLight);
}

CellColors TotalColors(const CellColors& chosen, const QPalette& palette) {
    return Painted(chosen, palette, IsDark(palette) ? kTotalOnDark : kTotalOnLight);
}

}  // namespace tw
