// The printed recipe: a recipe as it stands in its document, unsaved edits included, on one or more pages.
#pragma once

#include <memory>

#include "record/RecipeRecord.h"
#include "reports/PrintSteps.h"
#include "reports/PrinterDevice.h"

namespace tw {

// Prints the recipe as one job on that device. A grid's rows without any text and its totals are left out.
// Raises what TWPrinter raises; the job has been killed then.
void PrintRecipe(const RecipeRecord& recipe, std::unique_ptr<PrinterDevice> device);

// The same as drawing steps, for a page with that printable area.
PrintSteps LayOutRecipe(const RecipeRecord& recipe, PrintSize page, const TextMeasure& measure);

}  // namespace tw
