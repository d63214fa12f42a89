// Square systems of linear equations, solved by Gaussian elimination with row pivoting. The order of the
// arithmetic is fixed, since the last bit of a result decides the steps of the solver that stands on it. Time
// is saved by passing over places that are certainly zero, where nothing would change.
#pragma once

#include <memory>
#include <span>

#include "water/ColumnMatrix.h"

namespace tw {

// The systems that some columns of a matrix make, as many as it has rows.
//
// Columns are eliminated one after the other with the largest coefficient of the remaining rows as pivot, the
// uppermost of equals; then the unknowns are substituted from the last one back. A column without a pivot is
// left as it is, and an unknown whose own coefficient is zero keeps the undivided value: a singular system
// gives a wrong answer and no failure, which is intended. "Overflow" is raised when a number is beyond a
// double; the object is of no further use then.
//
// The numbers have no unit. Both functions overwrite rightSide. REQUIRES: the spans hold size elements, the
// columns exist in matrix and have no entry at or below row size.
class LinearSystem {
  public:
    virtual ~LinearSystem() = default;

    // Finds x with B x = rightSide, where column i of B is the column columns[i] of matrix.
    virtual void Solve(const ColumnMatrix& matrix, std::span<const int> columns, std::span<double> rightSide,
                       std::span<double> x) = 0;
    // The same with the transpose of B.
    virtual void SolveTransposed(const ColumnMatrix& matrix, std::span<const int> columns,
                                 std::span<double> rightSide, std::span<double> x) = 0;

    // For that many equations. REQUIRES: size >= 0.
    static std::unique_ptr<LinearSystem> Make(int size);
};

}  // namespace tw
