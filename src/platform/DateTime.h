// Dates as the program keeps them: the wall clock of the user's machine, to the second, without a time zone.
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

// "MM/DD/YYYY HH:MM:SS" with a 24-hour clock, the form of dates in SQL text.
std::string DateText(const DateTime& when);
// Reads the form of DateText; nothing when the text is of another form or names no day of the calendar.
std::optional<DateTime> ParseDateText(std::string_view text);
// "M/D/YYYY", the date that a brew log cell takes from the calendar.
std::string ShortDate(const DateTime& when);
// Reads "M/D/YYYY" (also with leading zeros); nothing for any other text.
std::optional<DateTime> ParseShortDate(std::string_view text);

}  // namespace tw
