#include "doctor/FigureTexts.h"

#include "values/NumberText.h"

namespace tw {
namespace {

constexpr FigureColumn kColumns[] = {
    {"OG", &StatedFigures::og, "0.000"}, {"FG", &StatedFigures::fg, "0.000"},
    {"ABV", &StatedFigures::abv, "0.0"}, {"IBU", &StatedFigures::ibu, "0"},
    {"SRM", &StatedFigures::srm, "0.0"},
};

}  // namespace

std::span<const FigureColumn> FigureColumns() {
    return kColumns;
}

std::string FigureText(const FigureColumn& column, const StatedFigures& figures) {
    const std::optional<double>& figure = figures.*column.value;
    return figure ? FormatNumber(*figure, column.pattern) : std::string();
}

std::string FigurePair(const FigureColumn& column, const StatedFigures& stated,
                       const StatedFigures& calculated) {
    const std::string theirs = FigureText(column, stated), ours = FigureText(column, calculated);
    if (theirs.empty() && ours.empty()) return {};
    return (theirs.empty() ? "-" : theirs) + " / " + (ours.empty() ? "-" : ours);
}

}  // namespace tw
