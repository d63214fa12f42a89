// What kind of recipe a list of fermentables makes.
#pragma once

#include "exchange/ForeignRecipe.h"

namespace tw {

// Returns the type of the recipe; if it states none, the one that its fermentables make it.
ForeignRecipe::Type RecipeKindOf(const ForeignRecipe& recipe);

}  // namespace tw
