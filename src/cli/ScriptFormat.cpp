#include "cli/ScriptFormat.h"

#include <algorithm>
#include <cstdio>

#include "values/NumberText.h"

namespace tw {
namespace {

std::string LeadingNumber(std::string_view text) {
    const std::size_t end = std::min(text.find_first_not_of("-0123456789."), text.size());
    return NumberText(ReadNumber(text.substr(0, end)).value_or(0));
}

}  // namespace

std::string ColorText(Rgb color) {
    char text[sizeof "#RRGGBB"];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", unsigned{color.red}, unsigned{color.green},
                  unsigned{color.blue});
    return text;
}

std::string CellText(const Grid& grid, int row, int col) {
    if (grid.IsCheckBox(row, col)) return std::string(YesNo(grid.Checked(row, col)));
    return grid.Text(row, col);
}

std::string CellNumber(const Grid& grid, int row, int col) {
    if (grid.IsCheckBox(row, col)) return grid.Checked(row, col) ? "1" : "0";
    if (!grid.IsDataRow(row) || grid.IsReadOnly(row, col)) return LeadingNumber(grid.Text(row, col));
    return grid.At(row, col).value.Text();
}

}  // namespace tw
