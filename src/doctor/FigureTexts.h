// The figures of a recipe of another program beside those that are calculated here, as texts to compare.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "exchange/ForeignRecipe.h"
#include "record/RecipeRecord.h"

namespace tw {

struct FigureColumn {
    std::string_view caption;                     // "OG"
    std::string_view word;                        // for scripts: "og"
    std::optional<double> StatedFigures::*value;  // in the units of StatedFigures
    TextBox RecipeRecord::*box;                   // which shows it in a recipe
    std::string_view pattern;                     // of FormatNumber
};

// The columns, in the order in which they are shown.
std::span<const FigureColumn> FigureColumns();

// Returns the text of a figure; empty if there is none.
std::string FigureText(const FigureColumn& column, const StatedFigures& figures);
// Returns the text of a stated figure without what a pattern rounds off; empty if there is none.
std::string WholeFigureText(const FigureColumn& column, const StatedFigures& stated);
// Returns "1.052 / 1.050", what the file states before what is calculated, "-" for one that is missing; empty
// if both are.
std::string FigurePair(const FigureColumn& column, const StatedFigures& stated,
                       const StatedFigures& calculated);

}  // namespace tw
