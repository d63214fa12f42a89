// Numbers and texts as the writers of both formats put them into a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tw {

// True if the character may stand in XML.
bool IsXmlCharacter(std::uint32_t codePoint);

// Returns a number of any unit in decimal digits, without an exponent, rounded to ten significant ones:
// "0.0283495231". "0" for a value that is no finite number.
std::string PlainNumber(double value);
// True for a number as PlainNumber writes it, in any number of digits and with any sign: "+.5", "-1.",
// "2.50".
bool IsPlainNumber(std::string_view text);

// Returns text without the control characters and code points that XML forbids, with U+FFFD for every byte
// that is not valid UTF-8.
std::string CleanText(std::string_view text);
// Returns CleanText(text) with "\n" for every kind of line break.
std::string CleanLines(std::string_view text);

// True if both numbers, of the same unit, differ by no more than a part, such as 0.0002, of the larger one.
bool IsWithin(double a, double b, double part);

// The part by which an amount may differ from the text that shows it, or from the amount that was read.
inline constexpr double kSameAmountPart = 0.0002;

// Returns a span of time as a brewer reads it: "7 days" for whole days, "90 min" for everything else.
std::string ShownTime(double minutes);

// Returns a date of another program as "2013-09-21". Nothing if the text is none that is known: 2013-09-21,
// 12/27/2003 (the month first), 3 Jan 04, 22 May 2014, Jan 3, 2004, all with or without a time behind. Two
// digits of a year are those of 1970 to 2069.
std::optional<std::string> IsoDate(std::string_view text);

}  // namespace tw
