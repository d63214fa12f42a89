// Paths of recipe files as they come from outside, quoted or not.
#pragma once

#include <string_view>

namespace tw {

// True when there is a file at path; a folder is none.
bool IsFile(std::string_view path);
// path without a double quote at its start, and then without one at its end.
std::string_view Unquoted(std::string_view path);

}  // namespace tw
