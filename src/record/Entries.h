// Reads the text of a recipe's field or cell: the number that it means, or why it cannot be accepted. These
// readers change nothing and show no message.
#pragma once

#include <optional>
#include <string_view>

#include "record/RecipeRecord.h"
#include "values/Reading.h"

namespace tw {

// Returns the number that text means in that box, in the unit of the box's rule (FieldRules.h), or the
// refusal of an invalid text. Free text has no number; for it, returns the box's present number. Raises Error
// for an arithmetic fault such as a fraction with denominator 0.
Reading<double> ReadEntry(const TextBox& box, std::string_view text);
// Returns the value that the cell would have with that text, in the unit of its rule (CellRules.h), or the
// refusal of an invalid text. The value is None for a text without a number; a blank text is always accepted
// and means None. Raises Error for an arithmetic fault.
Reading<CellValue> ReadEntry(const Grid& grid, int row, int col, std::string_view text);

// Return the number that ReadEntry would return. For texts that are stored already and may be damaged:
// nullopt instead of a refusal or an arithmetic fault.
std::optional<double> NumberTold(const TextBox& box, std::string_view text);
std::optional<CellValue> NumberTold(const Grid& grid, int row, int col, std::string_view text);

// Update the "own number" marks (TextBox::HasOwnNumber, Cell::ownNumber) of one cell, or of every field and
// every editable cell of a record whose texts and numbers were set separately, such as a loaded one.
void MarkOwnNumbers(RecipeRecord& record);
void MarkOwnNumber(Grid& grid, int row, int col);

}  // namespace tw
