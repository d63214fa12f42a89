// One sentence for the status bar about each command.
#pragma once

#include <QString>
#include <string_view>

namespace tw {

// Empty for a name without a sentence (a separator, a recent recipe).
QString CommandTip(std::string_view menuItem);

}  // namespace tw
