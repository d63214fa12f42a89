// Tokens and plain numbers: the lower layer of QuantityParsers.
#include "platform/Error.h"
#include "values/NumberReader.h"
#include "values/NumberText.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Returns the length of the numeric token at the front of text: digits, "." and "/"; a "-" only at the
// beginning.
std::size_t NumericLength(std::string_view text) {
    std::size_t n = 1;
    while (n < text.size() && (IsDigit(text[n]) || text[n] == '.' || text[n] == '/')) ++n;
    return n;
}

// Returns the length of the word at the front of text: up to the first blank or tab, or with the first "." as
// its last character. A carriage return or line feed is part of the word, since only blanks and tabs separate
// words here.
std::size_t WordLength(std::string_view text) {
    std::size_t n = 0;
    for (; n < text.size() && text[n] != ' ' && text[n] != '\t'; ++n) {
        if (text[n] == '.') return n + 1;
    }
    return n;
}

// Cuts the fraction that may follow a whole number off rest and returns it; nothing when there is none.
std::optional<double> TakeFraction(std::string_view& rest) {
    if (rest.find('/') == std::string_view::npos) return std::nullopt;
    std::string_view behind = rest;
    const std::string_view token = GetToken(behind);
    const std::optional<double> fraction = ParseFraction(token);
    if (fraction) rest = behind;
    return fraction;
}

}  // namespace

// Without the "~" and what follows a "(", displayed figures such as "~5 gal (about)" can be read back. The
// first character is looked at before the bracket is cut: a text that begins with "(" leaves nothing.
std::string_view GetToken(std::string_view& text) {
    if (text.empty()) return {};
    if (text.front() == '~') text = Trim(text.substr(1));
    const char first = text.empty() ? '\0' : text.front();
    const std::size_t bracket = text.find('(');
    if (bracket != std::string_view::npos) text = Trim(text.substr(0, bracket));
    if (text.empty()) return {};

    const bool numeric = IsDigit(first) || first == '.' || first == '-';
    const std::size_t length = numeric ? NumericLength(text) : WordLength(text);
    const std::string_view token = text.substr(0, length);
    text.remove_prefix(length);
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    return token;
}

std::optional<double> ParseReal(std::string_view text) {
    return ReadNumber(text);
}

std::optional<double> ParseWholeNumber(std::string_view text) {
    const NumericText read = ReadNumeric(text);
    if (read.kind != Numeric::Whole) return std::nullopt;
    return read.value;
}

std::optional<double> ParseFraction(std::string_view text) {
    const std::size_t slash = text.find('/');
    if (slash == std::string_view::npos) return std::nullopt;
    const std::optional<double> numerator = ParseWholeNumber(text.substr(0, slash));
    if (!numerator) return std::nullopt;
    const std::optional<double> denominator = ParseWholeNumber(text.substr(slash + 1));
    if (!denominator) return std::nullopt;
    return Divide(*numerator, *denominator);
}

std::optional<double> ParseMixedNumber(std::string_view token, std::string_view& rest) {
    const NumericText read = ReadNumeric(token);
    if (read.kind == Numeric::No) return ParseFraction(token);
    const std::optional<double> fraction = read.kind == Numeric::Whole ? TakeFraction(rest) : std::nullopt;
    if (!fraction) return read.value;
    // Added even to a negative whole number, since a "-" belongs to that number alone: "-2 1/2" is -1.5.
    return Finite(read.value + *fraction);
}

}  // namespace tw
