// How the console prints what is no plain text.
#pragma once

#include <string>
#include <string_view>

#include "record/Controls.h"
#include "record/Grid.h"

namespace tw {

inline std::string_view YesNo(bool yes) {
    return yes ? "yes" : "no";
}
inline std::string_view OnOff(bool on) {
    return on ? "on" : "off";
}
// "#RRGGBB" in capital hexadecimal digits.
std::string ColorText(Rgb color);
// The text that a cell holds, not its column's pattern; "yes" or "no" for a check box. Not escaped.
std::string CellText(const Grid& grid, int row, int col);
// The stored number behind a cell, a hop amount as its stored text. Of a computed cell, whose text is the
// figure, the number that the text begins with, "0" for none. Of a check box "1" or "0".
std::string CellNumber(const Grid& grid, int row, int col);

}  // namespace tw
