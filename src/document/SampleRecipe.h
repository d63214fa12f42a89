// A finished pale ale for a brewer who wants to look around before typing a recipe.
#pragma once

#include "document/TypingUnits.h"

namespace tw {

class RecipeDocument;

// Fills a new recipe. Ingredients that the catalogue no longer has under these names keep their names without
// figures. Afterwards the recipe is unchanged, and there is nothing to undo. Raises the store's errors.
// REQUIRES: the document is new.
void FillSample(RecipeDocument& document, TypingUnits units);

}  // namespace tw
