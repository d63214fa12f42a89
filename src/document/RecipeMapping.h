// Converts the controls and cells of a recipe to the rows of its tables and back, by the rules in
// FieldRules.h and CellRules.h. NULL in the database leaves a control or cell as it was, except in the grids
// stored in the recipe's own row, where it empties the cell.
#pragma once

#include <functional>

#include "record/RecipeRecord.h"
#include "store/RecipeRows.h"

namespace tw {

// Returns the fields, options and lines of the record; the caller adds name, place and dates. The text of a
// quantity is the last committed one, so that it always agrees with the number.
StoredRecipe StoredFrom(const RecipeRecord& record);

// Raises Error for a hop form that is not in kHopForms.
void CheckStored(const StoredRecipe& stored);
// Fill the record, without recalculating anything. REQUIRES: CheckStored has accepted stored. A number that
// is missing, or 0 although the text gives another one, is read from the text again, so that a gap in the row
// does no harm.
void FillFields(RecipeRecord& record, const StoredRecipe& stored);
// addRow must add a blank row after the last data row of the grid. Raises Error, with the grid partly filled,
// for a line with an impossible row index.
void FillGrid(Grid& grid, const StoredRecipe& stored, const std::function<void(Grid&)>& addRow);

}  // namespace tw
