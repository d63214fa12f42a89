// Completes some columns of a matrix to a basis of its rows.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "water/ColumnMatrix.h"

namespace tw {

// Completes independent columns to a basis of the rows by Householder reflections: first along the given
// columns in ascending order, then row by row along the remaining column that is largest in that row. The
// remaining columns start in descending order, and the first of equals wins. Returns every column once, the
// basis in front; no columns if the given ones are a whole basis already. Returns nothing if there are more
// rows than columns, more given columns than rows, no rows or no columns, or if a given column does not
// exist. Raises "Division by zero" if a reflection meets a column that is zero from its row down, "Overflow"
// if a number is beyond a double.
std::optional<std::vector<int>> AugmentBasis(const ColumnMatrix& matrix, int rows,
                                             std::span<const int> basis);

}  // namespace tw
