// Where a figure is in the range of the style, as the range bars show it. Works on the texts displayed, so
// that a bar never contradicts the label beside it.
#pragma once

#include <optional>
#include <string_view>

namespace tw {

// At least one end is set.
struct StyleRange {
    std::optional<double> low;
    std::optional<double> high;
    bool operator==(const StyleRange&) const = default;
};

// Returns the range in the text of a style label: "{lo} - {hi}", ">= {lo}", "<= {hi}" or one value, with or
// without a unit after the last number. nullopt for any other text.
std::optional<StyleRange> RangeOfLabel(std::string_view text);

// Returns the number at the beginning of a figure's text ("5.2% abv", "7 SRM (5 HCU)", ">50 SRM (80 HCU)");
// nullopt if there is none.
std::optional<double> FigureOf(std::string_view text);

enum class RangePlace { Below, Within, Above };

// Both ends belong to the range.
RangePlace PlaceIn(const StyleRange& range, double figure);

// What a bar from 0 to 1 shows: the range of the style as a band, the figure as a mark.
struct RangeScale {
    double bandStart = 0;
    double bandEnd = 1;
    double mark = 0;  // 0 or 1 if the figure is beyond the bar
};
// A range with two ends occupies the middle half of the bar; an open end extends to the end of the bar. A
// figure outside the range keeps its distance on the same scale, up to the ends of the bar.
RangeScale ScaleOf(const StyleRange& range, double figure);

}  // namespace tw
