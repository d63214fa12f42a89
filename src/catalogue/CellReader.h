// Reads the cells of the editors' grids.
#pragma once

#include <string_view>

#include "catalogue/EditorForm.h"
#include "values/Reading.h"

namespace tw {

// The number of a text that is not blank, in the unit that its row is stored in. Raises arithmetic errors as
// the parsers do.
Reading<double> ReadCell(const RangeRow& row, std::string_view text);

}  // namespace tw
