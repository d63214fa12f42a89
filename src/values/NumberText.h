// Numbers as text and back. NumberText is the one place that turns a double into its shortest text; nothing
// in the program reads or writes numbers by the user's locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tw {

// All numbers here may be in any unit: text and number are in the same one.

// The shortest decimal text that reads back as the same double: fixed notation, never an exponent, "." as the
// mark, no "+", "0" also for minus zero. A large number is its shortest digits followed by zeros. REQUIRES:
// value is finite.
std::string NumberText(double value);
// Writes the same text to the end of out.
void AppendNumberText(std::string& out, double value);

// The number that text is as a whole: an optional leading "-", digits, at most one ".", at least one digit,
// nothing else (no blanks, no "+", no exponent). Nothing for any other text. Raises "Overflow" for digits
// beyond the range of a double.
std::optional<double> ReadNumber(std::string_view text);

// value in a number pattern: "0" a digit that is always shown, "#" one shown if needed, "." the decimal mark,
// a "%" in the text behind scales by 100, and all other text before and behind the digits stands as it is. A
// "0" to the right of a "#" in the decimals forces all places before it: "0.##0" always shows three. Decimals
// are rounded half away from zero on the number's decimal text. A number that rounds to zero shows no sign.
// REQUIRES: value is finite.
std::string FormatNumber(double value, std::string_view pattern);

// A rounded number, in any unit, and its text.
struct RoundedQuantity {
    double value;
    std::string text;
};
// Rounds value to the displayed precision, two decimals when decimals is below 1 and that many otherwise, and
// returns the rounded number with its shortest text: 5.004 becomes 5 and "5". REQUIRES: value is finite.
RoundedQuantity FormatQuantity(double value, int decimals);

}  // namespace tw
