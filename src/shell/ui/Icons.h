// The pictures of the commands, drawn from SVG in the size and colours of the moment.
#pragma once

#include <QIcon>
#include <string_view>

namespace tw {

// The icon of a toolbar image such as "New" in the icon set of that style: 0 flat in the sixteen classic
// colours, 1 full colour, any other soft shaded. The name of a greyed twin ("SaveTransparent") gives the same
// picture: the twin is the disabled state, drawn by opacity. An empty icon for an unknown name.
QIcon ToolIcon(std::string_view image, int iconStyle);

// The program's icon: a glass of pale ale.
QIcon ProgramIcon();

}  // namespace tw
