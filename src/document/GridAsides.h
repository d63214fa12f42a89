// What the windows show beside the cells of a recipe: figures that follow from the cells but are neither
// columns of the record nor stored.
#pragma once

#include <string>

#include "record/RecipeCalculator.h"
#include "record/RecipeRecord.h"

namespace tw {

// True for the grids that show the share of each row in the weight of the malts, grains, extracts and sugars.
bool ShowsShares(const Grid& grid);
// Returns the share of a row of such a grid, in percent with one decimal, as "82.4". Empty for a row without
// an amount, and for all rows of a recipe without weight.
std::string ShareText(const RecipeRecord& record, const Grid& grid, int row);

// Returns the weight of hops behind an amount in AAUs or IBUs, as "= 0.52 oz"; empty for any other cell, and
// while the weight is unknown.
std::string HopWeightText(const RecipeCalculator& calculator, const Grid& grid, int row, int col);

}  // namespace tw
