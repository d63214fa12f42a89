// A block of cells as text on the clipboard, the way spreadsheets exchange it: a line for each row, ended by
// "\r" without a line feed; cells separated by tabs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tw {

// Rows of cells, all of the same length.
using ClipboardBlock = std::vector<std::vector<std::string>>;

std::string JoinBlock(const ClipboardBlock& block);
// At least one row and one column. Line feeds are dropped, the end of the last line begins no further row,
// and short rows are filled with empty cells.
ClipboardBlock SplitBlock(std::string_view text);

}  // namespace tw
