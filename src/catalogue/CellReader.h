// Reads the text of cells in the editors' grids.
#pragma once

#include <string_view>

#include "catalogue/EditorForm.h"
#include "values/Reading.h"

namespace tw {

// Returns the number in text, in the unit of its row, or the refusal of an invalid text. Raises Error for
// arithmetic faults, as the parsers do. REQUIRES: text is not blank.
Reading<double> ReadCell(const RangeRow& row, std::string_view text);

}  // namespace tw
