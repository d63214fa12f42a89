// The figures of a recipe that has been typed into a document, as numbers to compare with stated ones.
#pragma once

#include "exchange/ForeignRecipe.h"
#include "record/RecipeRecord.h"

namespace tw {

// A figure is absent where the document shows none.
StatedFigures CalculatedFigures(const RecipeRecord& record);

// Returns the bitterness in IBUs without the factor by which the form of each hop counts; absent without
// bitterness.
std::optional<double> BitternessWithoutForm(const RecipeRecord& record);

}  // namespace tw
