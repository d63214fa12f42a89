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

// True for the characters between words: blanks, tabs and line ends.
constexpr bool SeparatesWords(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Calls action with each word of text, in order.
template <typename Action>
void ForEachWord(std::string_view text, Action action) {
    const char* at = text.data();
    const char* const end = at + text.size();
    for (;;) {
        at = std::find_if_not(at, end, SeparatesWords);
        if (at == end) return;
        const char* const begin = at;
        at = std::find_if(at, end, SeparatesWords);
        action(std::string_view(begin, static_cast<std::size_t>(at - begin)));
    }
}

}  // namespace tw
