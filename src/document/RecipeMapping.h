// The controls and cells of a recipe as the rows of its tables, and back: what FieldRules.h and CellRules.h
// say of each. What is NULL in the database leaves the control or the cell as it was.
#pragma once

#include <functional>

#include "record/RecipeRecord.h"
#include "store/RecipeRows.h"

namespace tw {

// The fields, options and lines of the record; name, place and dates are the caller's. The last committed
// text goes beside its number, so that the two always agree.
StoredRecipe StoredFrom(const RecipeRecord& record);

// Raises an error for a hop form that the table of forms does not know, or a line whose place no recipe has.
void CheckStored(const StoredRecipe& stored);
// Fill the record; no chain runs. REQUIRES: CheckStored raises nothing. A number that is missing, or 0 behind
// a text that tells another one, is read from the text again, so that a gap in the row does no harm.
void FillFields(RecipeRecord& record, const StoredRecipe& stored);
// addRow puts a blank row behind the last data row of the grid.
void FillGrid(Grid& grid, const StoredRecipe& stored, const std::function<void(Grid&)>& addRow);

}  // namespace tw
