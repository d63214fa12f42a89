// One sentence for the status bar about each command.
#pragma once

#include <QString>
#include <string_view>

namespace tw {

// Of a menu item by its name, of a toolbar button by its key where it does something of its own. Empty for a
// name without a sentence (a separator, a recent recipe).
QString CommandTip(std::string_view command);

}  // namespace tw
