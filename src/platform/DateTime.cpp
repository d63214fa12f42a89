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

// Reads a text from its front, part by part, and remembers whether all parts were there.
class PartReader {
  public:
    explicit PartReader(std::string_view text) : rest_(text) {}

    // Returns the number of the next digits, of which there are from least to most; 0 if there are fewer.
    int Number(std::size_t least, std::size_t most) {
        std::size_t n = 0;
        while (n < rest_.size() && n < most && rest_[n] >= '0' && rest_[n] <= '9') ++n;
        int value = 0;
        std::from_chars(rest_.data(), rest_.data() + n, value);
        found_ = found_ && n >= least;
        rest_.remove_prefix(n);
        return value;
    }
    void Char(char wanted) {
        found_ = found_ && !rest_.empty() && rest_.front() == wanted;
        if (found_) rest_.remove_prefix(1);
    }
    // True if every part was found and nothing is left.
    bool FoundAll() const { return found_ && rest_.empty(); }

  private:
    std::string_view rest_;
    bool found_ = true;
};

}  // namespace

std::string DateText(const DateTime& when) {
    std::array<char, 80> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%02d/%02d/%04d %02d:%02d:%02d", when.month, when.day,
                  when.year, when.hour, when.minute, when.second);
    return buffer.data();
}

std::optional<DateTime> ParseDateText(std::string_view text) {
    PartReader parts(text);
    DateTime d;
    d.month = parts.Number(2, 2);
    parts.Char('/');
    d.day = parts.Number(2, 2);
    parts.Char('/');
    d.year = parts.Number(4, 4);
    parts.Char(' ');
    d.hour = parts.Number(2, 2);
    parts.Char(':');
    d.minute = parts.Number(2, 2);
    parts.Char(':');
    d.second = parts.Number(2, 2);
    if (!parts.FoundAll() || !IsCalendarDay(d) || d.hour > 23 || d.minute > 59 || d.second > 59)
        return std::nullopt;
    return d;
}

std::string ShortDate(const DateTime& when) {
    return std::to_string(when.month) + "/" + std::to_string(when.day) + "/" + std::to_string(when.year);
}

std::optional<DateTime> ParseShortDate(std::string_view text) {
    PartReader parts(text);
    DateTime d;
    d.month = parts.Number(1, 2);
    parts.Char('/');
    d.day = parts.Number(1, 2);
    parts.Char('/');
    d.year = parts.Number(4, 4);
    if (!parts.FoundAll() || !IsCalendarDay(d)) return std::nullopt;
    return d;
}

}  // namespace tw
