// Formats the texts of list cells.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/DateTime.h"
#include "store/Database.h"

namespace tw {

// The text of a cell without a value, as no cell of a list is empty.
inline constexpr std::string_view kNoDate = " ";
inline constexpr std::string_view kNoNumber = "  ";

// The number patterns of a style's ranges; an empty pattern is the shortest form of a number.
inline constexpr std::string_view kGravityPattern = "0.##0";
inline constexpr std::string_view kAlcoholPattern = "0.0";
inline constexpr std::string_view kColorPattern;
inline constexpr std::string_view kBitternessPattern = "0";
inline constexpr std::string_view kCarbonationPattern = "0.0";

// Returns the date of a field as "MM/DD/YYYY  HH:MM AM" or "PM", in twelve-hour time; kNoDate for NULL or an
// invalid date.
std::string ListDate(const Field& date);
// Reads that form, to the minute; nullopt for any other text.
std::optional<DateTime> ReadListDate(std::string_view text);

// Returns the field's text; kNoNumber if it has none.
std::string ListText(const Field& text);
// Returns the field's number in a number pattern (see FormatNumber), or in its shortest form if pattern is
// empty; kNoNumber for NULL.
std::string ListNumber(const Field& number, std::string_view pattern);
// Returns "{low}-{high}", or only the end that is not NULL; kNoNumber if both are NULL.
std::string ListRange(const Field& low, const Field& high, std::string_view pattern);
// Returns the words of STYLES.TYPE and YEAST.TYPE, in the order of their numbers from 0.
std::span<const std::string_view> TypeNames();
// Returns one of these words; kNoNumber for NULL and for a number without a word.
std::string ListTypeName(const Field& type);
// Returns the displayed text of a row with a code: "{code}  {name}", or only the name if code is empty.
std::string CodedName(std::string_view code, std::string_view name);
// Returns the middle of a range, or only the end that is not NULL; nullopt if both are NULL.
std::optional<double> MiddleOf(const Field& low, const Field& high);

}  // namespace tw
