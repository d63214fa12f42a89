// The colours of calculated cells in a grid: those that the brewer chose, or defaults in place of colours
// never chosen.
#pragma once

#include <QColor>
#include <QPalette>

namespace tw {

// The background and text colour of one kind of cell. An invalid colour was never chosen by the brewer.
struct CellColors {
    QColor ground, ink;
};

// Return the colours to paint with, both valid. A chosen colour is used exactly. A missing background becomes
// a subtle tint of the palette; a missing text colour becomes the palette's, or black or white if that is not
// readable on the background.
CellColors CalculatedColors(const CellColors& chosen, const QPalette& palette);
CellColors TotalColors(const CellColors& chosen, const QPalette& palette);

}  // namespace tw
