// Reads the cells of the editors' grids.
#pragma once

#include <string_view>

#include "catalogue/EditorForm.h"
#include "platform/Ports.h"

namespace tw {

// The number of a text that is not blank, in the unit that its row is stored in. A refusal is reported in a
// box titled "Invalid Entry", an arithmetic error in one titled "Error"; value is untouched then.
bool ReadCell(const RangeRow& row, std::string_view text, double& value, MessagePort& messages);

}  // namespace tw
