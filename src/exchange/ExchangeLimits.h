// What a file of another program may have at most. Beyond it, the file is refused.
#pragma once

#include <cstddef>
#include <string>

namespace tw {

inline constexpr std::size_t kMostExchangeBytes = std::size_t{64} * 1024 * 1024;
inline constexpr std::size_t kMostExchangeDepth = 256;
inline constexpr std::size_t kMostExchangeRecords = 100'000;

// Raises the error that refuses a file, with a message that says what to do.
[[noreturn]] void RefuseFile(const std::string& message);
// Raises it for a file of more than kMostExchangeRecords.
[[noreturn]] void RefuseRecords();

}  // namespace tw
