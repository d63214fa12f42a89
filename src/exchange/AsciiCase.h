// Upper case of ASCII letters only, for the tags and words of file formats.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tw {

constexpr char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

inline std::string UpperAscii(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) c = UpperAscii(c);
    return upper;
}

// True if both texts are equal except for the case of ASCII letters.
constexpr bool EqualAscii(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return UpperAscii(x) == UpperAscii(y); });
}

}  // namespace tw
