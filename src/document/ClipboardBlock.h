// A block of cells as text on the clipboard, in the format in which spreadsheets exchange it: one line per
// row, ended by "\r" without a line feed, with the cells separated by tabs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tw {

// Rows of cells, all of the same length.
using ClipboardBlock = std::vector<std::vector<std::string>>;

std::string JoinBlock(const ClipboardBlock& block);
// Returns at least one row and one column. Line feeds are ignored, the end of the last line starts no further
// row, and short rows are padded with empty cells.
ClipboardBlock SplitBlock(std::string_view text);

}  // namespace tw
