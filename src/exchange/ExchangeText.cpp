#include "exchange/ExchangeText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <vector>

#include "exchange/AsciiCase.h"
#include "exchange/ForeignFigure.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Splits a date at its marks: "22", "May", "2014".
std::vector<std::string_view> WordsOf(std::string_view text) {
    constexpr std::string_view kMarks = " \t\r\n,./-T:";
    std::vector<std::string_view> words;
    std::size_t from = 0;
    constexpr std::size_t kMost = 4;
    while (words.size() < kMost && (from = text.find_first_not_of(kMarks, from)) != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(kMarks, from), text.size());
        words.push_back(text.substr(from, end - from));
        from = end;
    }
    return words;
}

std::optional<int> WholeNumber(std::string_view word) {
    int value = 0;
    constexpr std::size_t kMostDigits = 4;
    if (word.empty() || word.size() > kMostDigits || !std::ranges::all_of(word, IsDigit)) return std::nullopt;
    std::from_chars(word.data(), word.data() + word.size(), value);
    return value;
}

// Returns the month of an English name or of its first three letters.
std::optional<int> MonthOfName(std::string_view word) {
    constexpr std::array<std::string_view, 12> kMonths = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                          "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                          "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
    constexpr std::size_t kLeast = 3;
    const std::string upper = UpperAscii(word);
    for (std::size_t i = 0; i < kMonths.size(); ++i)
        if (upper.size() >= kLeast && kMonths[i].starts_with(upper)) return static_cast<int>(i) + 1;
    return std::nullopt;
}

std::optional<int> YearOf(std::string_view word) {
    constexpr std::size_t kShort = 2;
    constexpr std::size_t kLong = 4;
    constexpr int kFirstOfCentury = 70;
    const auto year = WholeNumber(word);
    if (!year || word.size() == kLong) return year;
    if (word.size() != kShort) return std::nullopt;
    return *year + (*year < kFirstOfCentury ? 2000 : 1900);
}

std::optional<std::string> DateOf(std::optional<int> year, std::optional<int> month, std::optional<int> day) {
    constexpr std::array<int, 12> kDays = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (!year || !month || !day || *month < 1 || *month > 12 || *day < 1) return std::nullopt;
    if (*day > kDays[static_cast<std::size_t>(*month) - 1]) return std::nullopt;
    const auto padded = [](int number, std::size_t width) {
        std::string text = std::to_string(number);
        return std::string(width - std::min(width, text.size()), '0') + text;
    };
    return padded(*year, 4) + "-" + padded(*month, 2) + "-" + padded(*day, 2);
}

}  // namespace

bool IsXmlCharacter(std::uint32_t codePoint) {
    return codePoint == 0x9 || codePoint == 0xA || codePoint == 0xD ||
           (codePoint >= 0x20 && codePoint <= 0xD7FF) || (codePoint >= 0xE000 && codePoint <= 0xFFFD) ||
           (codePoint >= 0x10000 && codePoint <= 0x10FFFF);
}

std::string PlainNumber(double value) {
    constexpr int kDigits = 10;
    if (!std::isfinite(value) || value == 0) return "0";
    std::array<char, 400> buffer{};  // the largest double has 309 digits before the point
    char* const begin = buffer.data();
    char* const end = begin + buffer.size();
    const auto rounded = std::to_chars(begin, end, value, std::chars_format::scientific, kDigits - 1);
    std::from_chars(begin, rounded.ptr, value);
    return {begin, std::to_chars(begin, end, value, std::chars_format::fixed).ptr};
}

bool IsPlainNumber(std::string_view text) {
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
    const auto points = std::ranges::count(text, '.');
    return points <= 1 && text.size() > static_cast<std::size_t>(points) &&
           std::ranges::all_of(text, [](char c) { return c == '.' || IsDigit(c); });
}

std::string CleanText(std::string_view text) {
    std::string clean;
    clean.reserve(text.size());
    while (!text.empty()) {
        const CodePoint point = FrontCodePoint(text);
        if (point.value == kNoCodePoint)
            clean += kReplacement;
        else if (IsXmlCharacter(static_cast<std::uint32_t>(point.value)))
            clean += text.substr(0, point.bytes);
        text.remove_prefix(point.bytes);
    }
    return clean;
}

std::string CleanLines(std::string_view text) {
    return ReplaceAll(ReplaceAll(CleanText(text), "\r\n", "\n"), "\r", "\n");
}

bool IsWithin(double a, double b, double part) {
    return std::abs(a - b) <= part * std::max(std::abs(a), std::abs(b));
}

std::string ShownTime(double minutes) {
    constexpr double kMinutesPerDay = 24 * 60;
    const double days = minutes / kMinutesPerDay;
    if (days < 1 || days != std::floor(days)) return PlainNumber(minutes) + " min";
    return PlainNumber(days) + (days == 1 ? " day" : " days");
}

std::optional<std::string> IsoDate(std::string_view text) {
    const auto words = WordsOf(text);
    if (words.size() < 3) return std::nullopt;
    constexpr std::size_t kYearDigits = 4;
    if (words[0].size() == kYearDigits && WholeNumber(words[0]))
        return DateOf(YearOf(words[0]), WholeNumber(words[1]), WholeNumber(words[2]));
    if (const auto month = MonthOfName(words[1]))
        return DateOf(YearOf(words[2]), month, WholeNumber(words[0]));
    if (const auto month = MonthOfName(words[0]))
        return DateOf(YearOf(words[2]), month, WholeNumber(words[1]));
    const auto first = WholeNumber(words[0]);
    const auto second = WholeNumber(words[1]);
    // A number that is no month must be the day.
    const bool isDayFirst = first && second && *first > 12 && *second <= 12;
    return isDayFirst ? DateOf(YearOf(words[2]), second, first) : DateOf(YearOf(words[2]), first, second);
}

}  // namespace tw
