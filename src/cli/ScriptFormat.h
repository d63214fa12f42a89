// Formats values that are not plain text for the console.
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
// Returns "#RRGGBB" in upper-case hexadecimal digits.
std::string ColorText(Rgb color);
// Returns the text of a cell, without the format of its column; "yes" or "no" for a check box. Not escaped.
std::string CellText(const Grid& grid, int row, int col);
// Returns the stored number of a cell; for a hop amount its stored text; for a computed cell, whose text is
// the number, the number at the start of its text, or "0" if there is none; for a check box "1" or "0".
std::string CellNumber(const Grid& grid, int row, int col);

}  // namespace tw
