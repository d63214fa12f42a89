// Shows a sample of a font of report options.
#pragma once

#include <QFont>
#include <QWidget>
#include <algorithm>

#include "platform/qt/QtText.h"
#include "platform/qt/StoredColor.h"
#include "reports/ReportOptions.h"

namespace tw {

// Shows sample in font. The background is the font's own background colour if ownGround, else ground
// (0xBBGGRR). Sizes above 36 points are shown as 36, so that the dialog does not grow too large.
inline void ShowFace(QWidget& sample, const ReportFont& font, int ground, bool ownGround) {
    constexpr double kLargest = 36;
    QFont face(ToQt(font.face));
    face.setPointSizeF(std::clamp(font.points, 1.0, kLargest));
    face.setBold(font.bold);
    face.setItalic(font.italic);
    face.setUnderline(font.underline);
    face.setStrikeOut(font.strikethru);
    sample.setFont(face);
    QPalette colors = sample.palette();
    const QColor back = ColorOf(ownGround ? font.backColor : ground);
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Window}) colors.setColor(role, back);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText})
        colors.setColor(role, ColorOf(font.color));
    sample.setPalette(colors);
}

}  // namespace tw
