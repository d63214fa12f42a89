// The colours of the cells of a grid that are calculated: the brewer's own, and what stands for them until
// they are chosen.
#pragma once

#include <QColor>
#include <QPalette>

namespace tw {

// Of a kind of cells. An invalid colour is one that the brewer never chose.
struct CellColors {
    QColor ground, ink;
};

// How such cells are painted: a chosen colour exactly, in place of another a quiet tint of the palette, or
// the text colour that can be read on a chosen ground. Both are valid.
CellColors CalculatedColors(const CellColors& chosen, const QPalette& palette);
CellColors TotalColors(const CellColors& chosen, const QPalette& palette);

}  // namespace tw
