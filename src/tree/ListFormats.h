// The texts of list cells.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/DateTime.h"
#include "store/Database.h"

namespace tw {

// What a cell without a value shows: no list cell is empty.
inline constexpr std::string_view kNoDate = " ";
inline constexpr std::string_view kNoNumber = "  ";

// The number patterns of a style's ranges; the empty one is a number's shortest form.
inline constexpr std::string_view kGravityPattern = "0.##0";
inline constexpr std::string_view kAlcoholPattern = "0.0";
inline constexpr std::string_view kColorPattern;
inline constexpr std::string_view kBitternessPattern = "0";
inline constexpr std::string_view kCarbonationPattern = "0.0";

// The date of a field, "MM/DD/YYYY  HH:MM AM" or "PM" with a clock of twelve hours; kNoDate for NULL and for
// what is no date.
std::string ListDate(const Field& date);
// Reads that form, to the minute; nothing for any other text.
std::optional<DateTime> ReadListDate(std::string_view text);

// The field's text, kNoNumber when it has none.
std::string ListText(const Field& text);
// The field's number in a number pattern (see FormatNumber), or in its shortest form for an empty one;
// kNoNumber for NULL.
std::string ListNumber(const Field& number, std::string_view pattern);
// "{low}-{high}", the one end when the other is NULL, kNoNumber without both.
std::string ListRange(const Field& low, const Field& high, std::string_view pattern);
// The words of STYLES.TYPE and YEAST.TYPE, the number 0 first.
std::span<const std::string_view> TypeNames();
// One of them; kNoNumber for NULL and for a number without a word.
std::string ListTypeName(const Field& type);
// What a window shows of a row with a code: "{code}  {name}", the name alone without one.
std::string CodedName(std::string_view code, std::string_view name);
// The middle of a range, the one end when the other is NULL; nothing without both.
std::optional<double> MiddleOf(const Field& low, const Field& high);

}  // namespace tw
