// Dates as the program stores them: the local wall-clock time, to the second, without a time zone.
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace tw {

struct DateTime {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;

    auto operator<=>(const DateTime&) const = default;
};

// Returns "MM/DD/YYYY HH:MM:SS" with a 24-hour clock, the form of dates in SQL text.
std::string DateText(const DateTime& when);
// Reads the form that DateText writes; nullopt if the text has another form or is not a date of the calendar.
std::optional<DateTime> ParseDateText(std::string_view text);
// Returns "M/D/YYYY", the form in which the calendar enters a date into a brew log cell.
std::string ShortDate(const DateTime& when);
// Reads "M/D/YYYY", with or without leading zeros; nullopt for any other text.
std::optional<DateTime> ParseShortDate(std::string_view text);

}  // namespace tw
