// Completing some columns of a matrix to a basis.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "water/ColumnMatrix.h"

namespace tw {

// Completes columns that are independent to a basis of the rows, by Householder reflections: first along the
// given columns in ascending order, then each time along the column that is largest in the row at hand, the
// others standing in descending order and the first of equals winning. Returns every column once, the basis
// in front; no columns when the basis has all of its own already. Returns nothing when there are more rows
// than columns, when basis is larger than rows, when there are no rows or no columns, and when a given column
// does not exist. Raises "Division by zero" where a reflection meets a column that is zero from its row down,
// "Overflow" when a number is beyond a double.
std::optional<std::vector<int>> AugmentBasis(const ColumnMatrix& matrix, int rows,
                                             std::span<const int> basis);

}  // namespace tw
