// Pictures drawn from the SVG files of the program, in the size and colours of the moment.
#pragma once

#include <QIcon>
#include <QString>

namespace tw {

// Whether a drawing is in the sixteen classic colours, which are changed on a dark ground, or in colours that
// hold on light and dark ground alike. Outlines in "currentColor" take the text's colour in both.
enum class SvgInk { Classic, AsDrawn };

// The icon of an SVG file, such as ":/icons/tunwright.svg". Disabled it is greyed by opacity. An empty icon
// when there is no such file.
QIcon SvgIcon(const QString& path, SvgInk ink);

}  // namespace tw
