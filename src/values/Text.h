// Compares and trims UTF-8 text as the whole program does: blanks are trimmed and case is ignored, even
// beyond ASCII. Bytes that are not valid UTF-8 are compared as they are; nothing here fails.
#pragma once

#include <string>
#include <string_view>

#include "values/Utf8.h"

namespace tw {

// Returns text without the blanks (U+0020, nothing else) at both ends.
std::string_view Trim(std::string_view text);
// True if Trim(text) is empty.
bool IsBlank(std::string_view text);
// Returns text in upper case, each code point mapped to one code point (simple case mapping).
std::string Upper(std::string_view text);
// Returns text in lower case by the same kind of mapping.
std::string Lower(std::string_view text);
// True if both texts are equal, trimmed and case-insensitive: the comparison of names.
bool SameName(std::string_view a, std::string_view b);
// Returns a negative number, zero or a positive number if a sorts before, with or after b: by the code points
// of the texts in upper case, untrimmed.
int CompareNoCase(std::string_view a, std::string_view b);
// Returns text with every from replaced by to. REQUIRES: from is not empty.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace tw
