// The yeast of a recipe. It stands in the brew log, in the notes of the last row that pitches one, and gives
// the recipe its finished gravity.
#pragma once

#include <string>
#include <string_view>

#include "document/OpenRecipe.h"
#include "document/RecipeCells.h"
#include "document/RecipeLines.h"

namespace tw {

class PitchedYeast {
  public:
    PitchedYeast(OpenRecipe& recipe, RecipeCells& cells, RecipeLines& lines)
        : recipe_(recipe), cells_(cells), lines_(lines) {}

    // Returns the name; empty if no yeast has been pitched yet.
    std::string Name() const;
    // Enters a yeast, with or without " - " and its description, into that row of the log, and adds the row
    // if there is none: one step of the history. The finished gravity is calculated even if the yeast was
    // pitched before. Raises Error for an arithmetic fault, with nothing changed.
    void Choose(std::string_view yeast);

  private:
    OpenRecipe& recipe_;
    RecipeCells& cells_;
    RecipeLines& lines_;
};

}  // namespace tw
