// Comparing and trimming UTF-8 text as the program does everywhere: blanks trimmed, case ignored, also beyond
// ASCII. Text that is not valid UTF-8 is compared byte by byte where it cannot be read; nothing here fails.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tw {

// text without the blanks (U+0020, nothing else) at both ends.
std::string_view Trim(std::string_view text);
// True when Trim(text) is empty.
bool IsBlank(std::string_view text);
// text in upper case, one code point for one (simple case mapping).
std::string Upper(std::string_view text);
// True when both texts are equal after trimming and upper-casing: the comparison of names.
bool SameName(std::string_view a, std::string_view b);
// Negative, zero or positive as a sorts before, with or behind b: by code points of the upper-cased texts,
// untrimmed.
int CompareNoCase(std::string_view a, std::string_view b);
// The number of code points; a byte that is no valid UTF-8 counts as one.
std::size_t CodePointCount(std::string_view text);
// The byte at which the code point of that number begins, counted from 0; the end of the text for a larger
// number.
std::size_t CodePointOffset(std::string_view text, std::size_t number);
// text with every from replaced by to. REQUIRES: from is not empty.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace tw
