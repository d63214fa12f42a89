// Sheets of text: a header line, then lines of cells separated by tabs. The tables of the catalogue and of
// the help have this form.
#pragma once

#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// One line below the header.
struct SheetLine {
    int number = 0;  // counted from 1, the header included
    std::string text;

    // The cells, even empty ones: one more than there are tabs.
    std::vector<std::string> Cells() const;
};

struct TabbedSheet {
    std::string header;  // empty if there is no line at all
    std::vector<SheetLine> lines;
};

// Reads all lines. A line feed ends a line; the last line need not have one.
TabbedSheet ReadTabbedSheet(std::istream& stream);

}  // namespace tw
