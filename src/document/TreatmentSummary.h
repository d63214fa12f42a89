// Tells in one sentence what the salts of a recipe reach.
#pragma once

#include <string>

#include "record/RecipeRecord.h"

namespace tw {

// Returns for which volume the salts are, and how the treated source water compares with the target water:
// "Salts for 20 L. All other ions within 3 %, sulfate 8 % short, sodium 12 % over". An ion counts as reached
// if it misses its target by at most 3 % of it, rounded to whole percents, or by less than half a ppm, as
// water reports are rounded to whole ppm. What is in the water although the target has none is told in ppm.
// REQUIRES: the figures of the water are up to date.
std::string TreatmentSummary(const RecipeRecord& record);

}  // namespace tw
