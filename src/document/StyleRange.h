// Where a figure lies in the range that its style gives: what the range bars show. It works on the texts
// shown, so that the bar never says another thing than the label beside it.
#pragma once

#include <optional>
#include <string_view>

namespace tw {

// At least one end is given.
struct StyleRange {
    std::optional<double> low;
    std::optional<double> high;
    bool operator==(const StyleRange&) const = default;
};

// The range of a style label: "{lo} - {hi}", ">= {lo}", "<= {hi}" or one value, a unit behind the last
// number. Nothing for an empty or another text.
std::optional<StyleRange> RangeOfLabel(std::string_view text);

// The first number of a figure's text ("5.2% abv", "7 SRM (5 HCU)", ">50 SRM (80 HCU)"), nothing when there
// is none.
std::optional<double> FigureOf(std::string_view text);

enum class RangePlace { Below, Within, Above };

// The ends of the range belong to it.
RangePlace PlaceIn(const StyleRange& range, double figure);

// What a bar from 0 to 1 shows: the style's range as a band, the figure as a mark.
struct RangeScale {
    double bandStart = 0;
    double bandEnd = 1;
    double mark = 0;  // at 0 or 1 when the figure lies beyond the bar
};
// A range of two ends takes the middle half of the bar; an open end runs to the end of the bar. A figure
// outside keeps its distance in the same measure as long as the bar reaches.
RangeScale ScaleOf(const StyleRange& range, double figure);

}  // namespace tw
