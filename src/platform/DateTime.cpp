#include "platform/DateTime.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>

namespace tw {
namespace {

bool IsCalendarDay(const DateTime& d) {
    using namespace std::chrono;
    return d.year >= 1 && d.year <= 9999 &&
           year_month_day(year(d.year), month(static_cast<unsigned>(d.month)),
                          day(static_cast<unsigned>(d.day)))
               .ok();
}

// Reads least to most digits from the front of text and removes them. False if there are fewer than least.
bool TakeNumber(std::string_view& text, std::size_t least, std::size_t most, int& value) {
    std::size_t n = 0;
    while (n < text.size() && n < most && text[n] >= '0' && text[n] <= '9') ++n;
    if (n < least) return false;
    std::from_chars(text.data(), text.data() + n, value);
    text.remove_prefix(n);
    return true;
}

bool TakeChar(std::string_view& text, char wanted) {
    if (text.empty() || text.front() != wanted) return false;
    text.remove_prefix(1);
    return true;
}

}  // namespace

std::string DateText(const DateTime& when) {
    std::array<char, 80> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%02d/%02d/%04d %02d:%02d:%02d", when.month, when.day,
                  when.year, when.hour, when.minute, when.second);
    return buffer.data();
}

std::optional<DateTime> ParseDateText(std::string_view text) {
    DateTime d;
    const bool read =
        TakeNumber(text, 2, 2, d.month) && TakeChar(text, '/') && TakeNumber(text, 2, 2, d.day) &&
        TakeChar(text, '/') && TakeNumber(text, 4, 4, d.year) && TakeChar(text, ' ') &&
        TakeNumber(text, 2, 2, d.hour) && TakeChar(text, ':') && TakeNumber(text, 2, 2, d.minute) &&
        TakeChar(text, ':') && TakeNumber(text, 2, 2, d.second);
    if (!read || !text.empty() || !IsCalendarDay(d) || d.hour > 23 || d.minute > 59 || d.second > 59)
        return std::nullopt;
    return d;
}

std::string ShortDate(const DateTime& when) {
    return std::to_string(when.month) + "/" + std::to_string(when.day) + "/" + std::to_string(when.year);
}

std::optional<DateTime> ParseShortDate(std::string_view text) {
    DateTime d;
    const bool read = TakeNumber(text, 1, 2, d.month) && TakeChar(text, '/') &&
                      TakeNumber(text, 1, 2, d.day) && TakeChar(text, '/') && TakeNumber(text, 4, 4, d.year);
    if (!read || !text.empty() || !IsCalendarDay(d)) return std::nullopt;
    return d;
}

}  // namespace tw
