#include "document/StyleRange.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tw {
namespace {

constexpr double kBandStart = 0.25;
constexpr double kBandEnd = 0.75;
// Half the width of the band of a range that is a single value.
constexpr double kPointBand = 0.02;

// Removes a number in fixed notation from the front of text and returns it.
std::optional<double> TakeNumber(std::string_view& text) {
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (error != std::errc{}) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

// Returns the unit of the bar's scale: half the width of the range or, for one end or a single value, a tenth
// of that value.
double MeasureOf(const StyleRange& range) {
    double measure = 0;
    if (range.low && range.high) measure = (*range.high - *range.low) / 2;
    // A value from 0.9 to 1.2 is taken for a gravity, and measured from 0.9.
    const double end = range.high.value_or(range.low.value_or(0));
    if (measure <= 0) measure = (end >= 0.9 && end < 1.2 ? end - 0.9 : std::abs(end)) / 10;
    return measure > 0 ? measure : 1;
}

}  // namespace

std::optional<StyleRange> RangeOfLabel(std::string_view text) {
    const bool atMost = text.starts_with("<= ");
    const bool atLeast = text.starts_with(">= ");
    if (atMost || atLeast) text.remove_prefix(3);
    const std::optional<double> first = TakeNumber(text);
    if (!first) return std::nullopt;
    if (atMost) return StyleRange{std::nullopt, first};
    if (atLeast) return StyleRange{first, std::nullopt};
    if (!text.starts_with(" - ")) return StyleRange{first, first};
    text.remove_prefix(3);
    const std::optional<double> second = TakeNumber(text);
    if (!second) return std::nullopt;
    return StyleRange{first, second};
}

std::optional<double> FigureOf(std::string_view text) {
    if (text.starts_with('>')) text.remove_prefix(1);
    return TakeNumber(text);
}

RangePlace PlaceIn(const StyleRange& range, double figure) {
    if (range.low && figure < *range.low) return RangePlace::Below;
    if (range.high && figure > *range.high) return RangePlace::Above;
    return RangePlace::Within;
}

RangeScale ScaleOf(const StyleRange& range, double figure) {
    const double unit = (kBandEnd - kBandStart) / 2 / MeasureOf(range);
    RangeScale scale;
    if (range.low && range.high) {
        const double middle = (*range.low + *range.high) / 2;
        const double half = std::max((*range.high - *range.low) / 2 * unit, kPointBand);
        scale.bandStart = 0.5 - half;
        scale.bandEnd = 0.5 + half;
        scale.mark = 0.5 + (figure - middle) * unit;
    } else if (range.low) {
        scale.bandStart = kBandStart;
        scale.mark = kBandStart + (figure - *range.low) * unit;
    } else {
        scale.bandEnd = kBandEnd;
        scale.mark = kBandEnd + (figure - range.high.value_or(0)) * unit;
    }
    scale.mark = std::clamp(scale.mark, 0.0, 1.0);
    return scale;
}

}  // namespace tw
