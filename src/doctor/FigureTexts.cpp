#include "doctor/FigureTexts.h"

#include "doctor/AmountTexts.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr std::string_view kGravityPattern = "0.000";

constexpr FigureColumn kColumns[] = {
    {"OG", "og", &StatedFigures::og, &RecipeRecord::txtOG, kGravityPattern},
    {"FG", "fg", &StatedFigures::fg, &RecipeRecord::txtFG, kGravityPattern},
    {"ABV", "abv", &StatedFigures::abv, &RecipeRecord::txtABV, "0.0"},
    {"IBU", "ibu", &StatedFigures::ibu, &RecipeRecord::txtIBU, "0"},
    {"SRM", "srm", &StatedFigures::srm, &RecipeRecord::txtColor, "0.0"},
};

}  // namespace

std::span<const FigureColumn> FigureColumns() {
    return kColumns;
}

std::string FigureText(const FigureColumn& column, const StatedFigures& figures) {
    const std::optional<double>& figure = figures.*column.value;
    return figure ? FormatNumber(*figure, column.pattern) : std::string();
}

std::string WholeFigureText(const FigureColumn& column, const StatedFigures& stated) {
    const std::optional<double>& figure = stated.*column.value;
    if (!figure) return {};
    return column.pattern == kGravityPattern ? GravityText(*figure) : FewestDecimals(*figure);
}

std::string FigurePair(const FigureColumn& column, const StatedFigures& stated,
                       const StatedFigures& calculated) {
    const std::string theirs = FigureText(column, stated), ours = FigureText(column, calculated);
    if (theirs.empty() && ours.empty()) return {};
    return (theirs.empty() ? "-" : theirs) + " / " + (ours.empty() ? "-" : ours);
}

}  // namespace tw
