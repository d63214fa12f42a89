// What a text in a field or a cell of a recipe means: the number that it tells, or why it cannot stand there.
// Nothing changes, and nothing is shown.
#pragma once

#include <optional>
#include <string_view>

#include "record/RecipeRecord.h"
#include "values/Reading.h"

namespace tw {

// The number that text tells in that box, in the unit of its rule (FieldRules.h); the box's own number where
// a text tells none. Raises for an arithmetic fault, such as a fraction with the denominator 0.
Reading<double> ReadEntry(const TextBox& box, std::string_view text);
// What the cell would hold with that text, in the unit of its rule (CellRules.h); no value for a text without
// a number. A blank text is always accepted and leaves the cell without a value. Raises as above.
Reading<CellValue> ReadEntry(const Grid& grid, int row, int col, std::string_view text);

// The same for a text that stands there already and may be damaged; nothing for one that is refused or breaks
// a formula.
std::optional<double> NumberTold(const TextBox& box, std::string_view text);
std::optional<CellValue> NumberTold(const Grid& grid, int row, int col, std::string_view text);

// Marks every field and every cell that the brewer can edit whose number is not the one that its text tells
// (TextBox::HasOwnNumber, Cell::ownNumber). For a record whose texts and numbers came from elsewhere.
void MarkOwnNumbers(RecipeRecord& record);
void MarkOwnNumber(Grid& grid, int row, int col);

}  // namespace tw
