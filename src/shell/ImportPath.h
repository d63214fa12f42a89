// Paths of recipe files as other programs send them, with or without quotes.
#pragma once

#include <string_view>

namespace tw {

// True if path is that of a regular file, not of a folder.
bool IsFile(std::string_view path);
// Returns path without a leading double quote and, if there was one, without a trailing one.
std::string_view Unquoted(std::string_view path);

}  // namespace tw
