#include "tree/ListFormats.h"

#include <array>

#include "platform/Error.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr std::array<std::string_view, 5> kTypeNames = {"Ale", "Lager", "Wheat", "Lactic", "Wine/Mead/Cider"};

constexpr int kNoon = 12;
constexpr std::size_t kDateLength = 10;  // length of "MM/DD/YYYY"

// Returns nullopt for NULL, and for an infinite number, which only another program can have stored.
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
    constexpr std::size_t kMinutes = kDateLength + 3;  // position of ":MM" in "MM/DD/YYYY HH:MM:SS"
    const std::string text = date.Text();
    const std::optional<DateTime> when = ParseDateText(text);
    if (!when) return std::string(kNoDate);
    const int hour = when->hour % kNoon == 0 ? kNoon : when->hour % kNoon;
    std::string shown = text.substr(0, kDateLength) + "  ";
    shown.append(hour < 10 ? "0" : "").append(std::to_string(hour)).append(text, kMinutes, 3);
    return shown.append(when->hour < kNoon ? " AM" : " PM");
}

std::optional<DateTime> ReadListDate(std::string_view text) {
    // After the date: two blanks, "HH:MM", a blank, and AM or PM.
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

std::span<const std::string_view> TypeNames() {
    return kTypeNames;
}

std::string CodedName(std::string_view code, std::string_view name) {
    return std::string(code).append(code.empty() ? "" : "  ").append(name);
}

std::optional<double> MiddleOf(const Field& low, const Field& high) {
    const std::optional<double> from = FigureOf(low), to = FigureOf(high);
    if (from && to) return *from + (*to - *from) / 2;
    return from ? from : to;
}

std::string ListTypeName(const Field& type) {
    const std::optional<double> number = FigureOf(type);
    for (std::size_t i = 0; number && i < kTypeNames.size(); ++i)
        if (*number == static_cast<double>(i)) return std::string(kTypeNames[i]);
    return std::string(kNoNumber);
}

}  // namespace tw
