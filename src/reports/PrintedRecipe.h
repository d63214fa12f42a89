// The printed recipe: a recipe as it is in its document, including unsaved edits, on one or more pages.
#pragma once

#include <memory>

#include "record/RecipeRecord.h"
#include "reports/PrintSteps.h"
#include "reports/PrinterDevice.h"

namespace tw {

// Prints the recipe on device as one job. Rows without any text are left out, and so are the totals of a
// grid. Raises the errors of TWPrinter, after killing the job.
void PrintRecipe(const RecipeRecord& recipe, std::unique_ptr<PrinterDevice> device);

// Returns the pages of the printed recipe as drawing steps. page is the printable area.
PrintSteps LayOutRecipe(const RecipeRecord& recipe, PrintSize page, const TextMeasure& measure);

}  // namespace tw
