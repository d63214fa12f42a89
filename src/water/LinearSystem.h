// Solves square systems of linear equations by Gaussian elimination with row pivoting. The order of the
// arithmetic is fixed, since the last bit of a result decides the steps of the simplex solver. Places that
// are certainly zero, where nothing would change, are skipped to save time.
#pragma once

#include <memory>
#include <span>

#include "water/ColumnMatrix.h"

namespace tw {

// The systems whose matrix is a choice of columns of a larger one, as many as that has rows.
//
// Columns are eliminated one after the other. The pivot is the largest coefficient of the remaining rows, the
// uppermost of equals; then the unknowns are substituted from the last one back. A column without a pivot is
// left as it is, and an unknown whose own coefficient is zero keeps the undivided value: a singular system
// yields a wrong answer and no error, and the solver's answers depend on that. Raises "Overflow" if a number
// is beyond a double; the object must not be used again then.
//
// The numbers have no unit. Both functions overwrite rightSide and write the unknowns to x: they run in every
// step of the solver, which keeps the memory. REQUIRES: the spans hold size elements; the columns exist in
// matrix and have no entry at or below row size.
class LinearSystem {
  public:
    virtual ~LinearSystem() = default;

    // Finds x with B x = rightSide, where column i of B is column columns[i] of matrix.
    virtual void Solve(const ColumnMatrix& matrix, std::span<const int> columns, std::span<double> rightSide,
                       std::span<double> x) = 0;
    // Finds x with B^T x = rightSide, for the same B.
    virtual void SolveTransposed(const ColumnMatrix& matrix, std::span<const int> columns,
                                 std::span<double> rightSide, std::span<double> x) = 0;

    // Returns a solver for that many equations. REQUIRES: size >= 0.
    static std::unique_ptr<LinearSystem> Make(int size);
};

}  // namespace tw
