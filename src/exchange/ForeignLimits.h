// The limits of a file of another program. Beyond them it is refused.
#pragma once

#include <cstddef>

namespace tw {

inline constexpr std::size_t kMostForeignRecords = 100'000;  // recipes, lines and entries of libraries
inline constexpr int kMostForeignDepth = 256;                // elements within elements

}  // namespace tw
