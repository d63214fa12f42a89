// Numbers as text and back. NumberText is the only place that turns a double into its shortest text; the
// program never reads or writes numbers by the user's locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tw {

// All numbers here may be in any unit; a text and its number are in the same one.

// Returns the shortest decimal text that reads back as the same double: fixed notation, never an exponent,
// "." as the mark, no "+", "0" even for minus zero. A large number is its shortest digits followed by zeros.
// REQUIRES: value is finite.
std::string NumberText(double value);
// Appends NumberText(value) to out.
void AppendNumberText(std::string& out, double value);

// Returns the number that the whole of text is: an optional leading "-", digits, at most one ".", at least
// one digit, nothing else (no blanks, no "+", no exponent). Returns nothing for any other text. Raises
// "Overflow" for digits beyond the range of a double.
std::optional<double> ReadNumber(std::string_view text);

// Returns value formatted by a pattern. In it, "0" is a digit that is always shown, "#" one that is shown if
// needed, and "." the decimal mark; a "%" after the digits multiplies by 100; all other text before and after
// the digits is copied. A "0" to the right of a "#" in the decimals forces all places before it: "0.##0"
// always shows three. Decimals are rounded half away from zero on the number's decimal text. A number that
// rounds to zero has no sign. REQUIRES: value is finite.
std::string FormatNumber(double value, std::string_view pattern);

// A rounded number, in any unit, and its text.
struct RoundedQuantity {
    double value;
    std::string text;
};
// Rounds value to the displayed precision, two decimals if decimals is below 1 and that many otherwise.
// Returns the rounded number with its shortest text: 5 and "5" for 5.004. REQUIRES: value is finite.
RoundedQuantity FormatQuantity(double value, int decimals);

}  // namespace tw
