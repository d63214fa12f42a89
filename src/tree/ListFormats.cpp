#include "tree/ListFormats.h"

#include <array>
#include <cstdio>

#include "platform/Error.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr std::array<std::string_view, 5> kTypeNames = {"Ale", "Lager", "Wheat", "Lactic", "Wine/Mead/Cider"};

constexpr int kNoon = 12;
constexpr std::size_t kDateLength = 10;  // of "MM/DD/YYYY"

// Nothing for NULL, and for an infinite number, which only a foreign program stores.
std::optional<double> FigureOf(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    try {
        return field.Number();
    } catch (const Error&) {
        return std::nullopt;
    }
}

std::string FigureText(double figure, std::string_view pattern) {
    return pattern.empty() ? NumberText(figure) : FormatNumber(figure, pattern);
}

}  // namespace

std::string ListDate(const Field& date) {
    const std::optional<DateTime> when = ParseDateText(date.Text());
    if (!when) return std::string(kNoDate);
    const int hour = when->hour % kNoon == 0 ? kNoon : when->hour % kNoon;
    std::array<char, 16> time{};
    std::snprintf(time.data(), time.size(), "  %02d:%02d %s", hour, when->minute,
                  when->hour < kNoon ? "AM" : "PM");
    return DateText(*when).substr(0, kDateLength) + time.data();
}

std::optional<DateTime> ReadListDate(std::string_view text) {
    // Two blanks, "HH:MM", a blank and the half of the day.
    constexpr std::size_t kTime = kDateLength + 2, kHalf = kTime + 6;
    if (text.size() != kHalf + 2) return std::nullopt;
    const std::string_view half = text.substr(kHalf);
    if (half != "AM" && half != "PM") return std::nullopt;
    std::optional<DateTime> when = ParseDateText(std::string(text.substr(0, kDateLength)) + " " +
                                                 std::string(text.substr(kTime, 5)) + ":00");
    if (!when || when->hour < 1 || when->hour > kNoon) return std::nullopt;
    when->hour = when->hour % kNoon + (half == "PM" ? kNoon : 0);
    return when;
}

std::string ListText(const Field& text) {
    std::string shown = text.Text();
    return shown.empty() ? std::string(kNoNumber) : shown;
}

std::string ListNumber(const Field& number, std::string_view pattern) {
    const std::optional<double> figure = FigureOf(number);
    return figure ? FigureText(*figure, pattern) : std::string(kNoNumber);
}

std::string ListRange(const Field& low, const Field& high, std::string_view pattern) {
    const std::optional<double> from = FigureOf(low), to = FigureOf(high);
    if (from && to) return FigureText(*from, pattern) + "-" + FigureText(*to, pattern);
    return ListNumber(from ? low : high, pattern);
}

std::string ListTypeName(const Field& type) {
    const std::optional<double> number = FigureOf(type);
    for (std::size_t i = 0; number && i < kTypeNames.size(); ++i)
        if (*number == static_cast<double>(i)) return std::string(kTypeNames[i]);
    return std::string(kNoNumber);
}

}  // namespace tw
