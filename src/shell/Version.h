// The program's name and version, as the about window shows them.
#pragma once

#include <string_view>

namespace tw {

inline constexpr std::string_view kProgramTitle = "Tunwright";
// Major, minor and revision number.
inline constexpr std::string_view kProgramVersion = "1.0.0";

}  // namespace tw
