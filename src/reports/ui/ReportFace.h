// How a font of report options looks in a sample.
#pragma once

#include <QFont>
#include <QWidget>
#include <algorithm>

#include "platform/qt/QtText.h"
#include "platform/qt/StoredColor.h"
#include "reports/ReportOptions.h"

namespace tw {

// Shows a sample in that font, on ground; with its own colour behind the text where the report has one. Large
// sizes are cut to what a dialog can hold.
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
