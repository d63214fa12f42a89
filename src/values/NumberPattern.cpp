// Formats and rounds numbers: FormatNumber and FormatQuantity.
#include "values/DecimalDigits.h"
#include "values/NumberText.h"

namespace tw {
namespace {

// The parts of a pattern: the literal text around the placeholders, and what the placeholders ask for.
struct NumberPattern {
    std::string_view before;
    std::string_view behind;
    bool hasDigits = false;
    int minWhole = 0;
    int minPlaces = 0;
    int maxPlaces = 0;
    bool percent = false;
};

bool IsPlaceholder(char c) {
    return c == '0' || c == '#';
}

// Returns where the placeholders begin: at the first "0" or "#", or at a "." directly before it.
std::size_t FindPlaceholders(std::string_view pattern) {
    const std::size_t first = pattern.find_first_of("0#");
    if (first == std::string_view::npos) return pattern.size();
    return first > 0 && pattern[first - 1] == '.' ? first - 1 : first;
}

NumberPattern TakeApart(std::string_view pattern) {
    NumberPattern parts;
    std::size_t at = FindPlaceholders(pattern);
    parts.before = pattern.substr(0, at);
    parts.hasDigits = at < pattern.size();
    for (; at < pattern.size() && IsPlaceholder(pattern[at]); ++at) {
        if (pattern[at] == '0' || parts.minWhole > 0) ++parts.minWhole;
    }
    if (at < pattern.size() && pattern[at] == '.') {
        for (++at; at < pattern.size() && IsPlaceholder(pattern[at]); ++at) {
            ++parts.maxPlaces;
            if (pattern[at] == '0') parts.minPlaces = parts.maxPlaces;
        }
    }
    parts.behind = pattern.substr(at);
    parts.percent = parts.behind.find('%') != std::string_view::npos;
    return parts;
}

// A longer decimal text may not be the shortest one of the double that it reads as.
constexpr int kAlwaysShortestDigits = 15;

}  // namespace

std::string FormatNumber(double value, std::string_view pattern) {
    const NumberPattern parts = TakeApart(pattern);
    std::string text(parts.before);
    if (parts.hasDigits) {
        DecimalDigits digits(value);
        if (parts.percent) digits.ShiftPoint(2);
        digits.RoundTo(parts.maxPlaces);
        if (digits.IsNegative()) text.push_back('-');
        digits.AppendMagnitude(text, parts.minWhole, parts.minPlaces);
    }
    text.append(parts.behind);
    return text;
}

RoundedQuantity FormatQuantity(double value, int decimals) {
    DecimalDigits digits(value);
    if (!digits.RoundTo(decimals < 1 ? 2 : decimals)) {
        if (digits.IsZero()) value = 0;
        return {value, NumberText(value)};
    }
    std::string text;
    if (digits.IsNegative()) text.push_back('-');
    digits.AppendMagnitude(text, 1, 0);
    const double rounded = ReadNumber(text).value_or(value);
    return {rounded, digits.Count() <= kAlwaysShortestDigits ? text : NumberText(rounded)};
}

}  // namespace tw
