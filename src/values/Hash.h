// The FNV-1a hash: a number that distinguishes texts, the same on every machine and in every version. It is
// stored in files and names folders, so it must never change. It does not protect against forgery.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tw {

// The hash of an empty text.
inline constexpr std::uint32_t kEmptyHash32 = 2166136261U;
inline constexpr std::uint64_t kEmptyHash64 = 14695981039346656037U;

// Extends hash, the hash of some bytes, by one more byte or by all bytes of text, and returns the hash of
// them all.
constexpr std::uint32_t Hash32(unsigned char byte, std::uint32_t hash) {
    return (hash ^ byte) * 16777619U;
}
constexpr std::uint64_t Hash64(std::string_view text, std::uint64_t hash = kEmptyHash64) {
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return hash;
}

// Returns the 64-bit hash of a text as 16 hexadecimal digits in lower case.
std::string HashText(std::string_view text);

}  // namespace tw
