// Icons drawn from the program's SVG files, in the size and colours needed at the moment.
#pragma once

#include <QIcon>
#include <QString>

namespace tw {

// Classic: drawn in the sixteen classic colours, some of which are replaced on a dark background. AsDrawn:
// drawn in colours that suit light and dark backgrounds. In both, "currentColor" becomes the text colour.
enum class SvgInk { Classic, AsDrawn };

// Returns the icon of an SVG file, such as ":/icons/tunwright.svg", or an empty icon if there is no such
// file. When disabled, it is drawn with reduced opacity.
QIcon SvgIcon(const QString& path, SvgInk ink);

}  // namespace tw
