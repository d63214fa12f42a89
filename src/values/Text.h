// Comparing and trimming UTF-8 text as the program does everywhere: blanks trimmed, case ignored, also beyond
// ASCII. Text that is not valid UTF-8 is compared byte by byte where it cannot be read; nothing here fails.
#pragma once

#include <string>
#include <string_view>

#include "values/Utf8.h"

namespace tw {

// text without the blanks (U+0020, nothing else) at both ends.
std::string_view Trim(std::string_view text);
// True when Trim(text) is empty.
bool IsBlank(std::string_view text);
// text in upper case, one code point for one (simple case mapping).
std::string Upper(std::string_view text);
// The same in lower case.
std::string Lower(std::string_view text);
// True when both texts are equal after trimming and upper-casing: the comparison of names.
bool SameName(std::string_view a, std::string_view b);
// Negative, zero or positive as a sorts before, with or behind b: by code points of the upper-cased texts,
// untrimmed.
int CompareNoCase(std::string_view a, std::string_view b);
// text with every from replaced by to. REQUIRES: from is not empty.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace tw
