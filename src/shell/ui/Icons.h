// The pictures of the commands, drawn from SVG in the current size and colours.
#pragma once

#include <QIcon>
#include <string_view>

namespace tw {

// Returns the icon of a toolbar image such as "New" in the icon set of that style: 0 flat in the
// sixteen classic colours, 1 full colour, any other softly shaded. The name of a greyed twin
// ("SaveTransparent") returns the same icon, as the disabled state is drawn by opacity. Returns an
// empty icon for an unknown name.
QIcon ToolIcon(std::string_view image, int iconStyle);

// Returns the program's icon: a glass of pale ale.
QIcon ProgramIcon();

}  // namespace tw
