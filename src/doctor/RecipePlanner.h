// Decides what a recipe of another program becomes here: which grid each line goes to, which texts are typed
// for it, and what to tell the brewer about everything that is not just so.
#pragma once

#include <vector>

#include "doctor/ImportOptions.h"
#include "doctor/KnownFigures.h"
#include "doctor/RecipePlan.h"
#include "exchange/Finding.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

// The points of one pound in one gallon of a substance that yields all of its weight: sucrose.
inline constexpr double kPointsOfFullYield = 46.214;

class RecipePlanner {
  public:
    // REQUIRES: figures outlives this object.
    explicit RecipePlanner(KnownFigures& figures) : figures_(figures) {}

    // Returns the plan and adds its findings. Raises the store's errors.
    RecipePlan Plan(const ForeignRecipe& recipe, const ImportOptions& options, Findings& findings);

  private:
    KnownFigures& figures_;
};

}  // namespace tw
