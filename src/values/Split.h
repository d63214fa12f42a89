// Cutting a text into its parts. The parts are views of the text; nothing is copied.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace tw {

// Cuts the part before the first separator off text, together with the separator, and returns it. Cuts off
// and returns all of text if it holds no separator.
constexpr std::string_view CutPart(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

// Returns the parts between the separators, even empty ones: one more than there are separators.
inline std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    const auto separators = std::count(text.begin(), text.end(), separator);
    for (auto left = separators; left >= 0; --left) parts.push_back(CutPart(text, separator));
    return parts;
}

}  // namespace tw
