// The text that a window paints in a cell of the water tab, in place of a longer one.
#pragma once

#include <string>

#include "record/Grid.h"

namespace tw {

// Returns the text to paint: Grid::Shown, but without digits that no scale of a kitchen and no water report
// has. A weight of salt in grams is rounded to a tenth of a gram, below 0.05 g to two digits; a computed
// amount of an ion to whole ppm, below 10 ppm to one decimal. Texts that are shorter, and all other cells,
// stay as they are. The text of the cell itself does not change: editing, copying and printing use that one.
std::string BriefCell(const Grid& grid, int row, int col);

}  // namespace tw
