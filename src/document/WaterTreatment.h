// Calculates which salts, and how many grams of each, turn the source water into the target water.
#pragma once

#include "document/CatalogueLookup.h"
#include "document/OpenRecipe.h"
#include "document/RecipeCells.h"
#include "document/RecipeFocus.h"
#include "document/RecipeLines.h"

namespace tw {

class WaterTreatment {
  public:
    WaterTreatment(OpenRecipe& recipe, const CatalogueLookup& catalogue, RecipeFocus& focus,
                   RecipeCells& cells, RecipeLines& lines)
        : recipe_(recipe), catalogue_(catalogue), focus_(focus), cells_(cells), lines_(lines) {}

    // The button below gridWater; does nothing while that is disabled. Replaces all rows of gridTreatment by
    // the salts that bring the source water closest to the target water, as one step of the history, and
    // tells the host what they reach. Shows a message and changes nothing if the catalogue has no salts or
    // neither linear program has a solution. Raises Error for an arithmetic fault, with nothing changed.
    void CalcTreatment();

  private:
    void Clear();

    OpenRecipe& recipe_;
    const CatalogueLookup& catalogue_;
    RecipeFocus& focus_;
    RecipeCells& cells_;
    RecipeLines& lines_;
};

}  // namespace tw
