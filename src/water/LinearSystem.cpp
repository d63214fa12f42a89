#include "water/LinearSystem.h"

#include <cmath>
#include <cstddef>
#include <numeric>
#include <vector>

#include "water/BitTable.h"
#include "water/CheckedNumber.h"

namespace tw {
namespace {

// Between two systems all coefficients are zero and all bits clear. Rows never move; only their places
// change.
template <int kFixedWords>
class Elimination final : public LinearSystem {
  public:
    explicit Elimination(int size)
        : size_(size),
          matrix_(static_cast<std::size_t>(size) * size, 0.0),
          rowAt_(size),
          placeOf_(size),
          pivotEntries_(size),
          colsOfRow_(size, size),
          rowsOfCol_(size, size) {}

    void Solve(const ColumnMatrix& matrix, std::span<const int> columns, std::span<double> rightSide,
               std::span<double> x) override {
        for (int i = 0; i < size_; ++i)
            for (const ColumnMatrix::Entry& entry : matrix.Column(columns[i])) Set(entry.row, i, entry.value);
        SolveLoaded(rightSide, x);
    }
    void SolveTransposed(const ColumnMatrix& matrix, std::span<const int> columns,
                         std::span<double> rightSide, std::span<double> x) override {
        for (int i = 0; i < size_; ++i)
            for (const ColumnMatrix::Entry& entry : matrix.Column(columns[i])) Set(i, entry.row, entry.value);
        SolveLoaded(rightSide, x);
    }

  private:
    struct Entry {
        int col;
        double value;
    };

    double* Row(int row) { return matrix_.data() + static_cast<std::ptrdiff_t>(row) * size_; }

    void Set(int row, int col, double value) {
        Row(row)[col] = value;
        colsOfRow_.Set(row, col);
        rowsOfCol_.Set(col, row);
    }

    void SolveLoaded(std::span<double> rightSide, std::span<double> x) {
        std::iota(rowAt_.begin(), rowAt_.end(), 0);
        std::iota(placeOf_.begin(), placeOf_.end(), 0);
        for (int k = 0; k < size_; ++k) EliminateColumn(k, rightSide);
        for (int i = size_ - 1; i >= 0; --i) x[i] = Substitute(i, rightSide[rowAt_[i]], x);
        for (const double value : x) CheckedNumber(value);
    }

    void EliminateColumn(int k, std::span<double> rightSide) {
        const int pivotRow = ChoosePivotRow(k);
        if (pivotRow != rowAt_[k]) MoveTo(k, pivotRow);
        rowsOfCol_.Clear(k, pivotRow);
        colsOfRow_.ClearUpTo(pivotRow, k);
        GatherPivotRow(k, pivotRow);
        if (!rowsOfCol_.Empty(k)) SubtractPivotRow(k, pivotRow, rightSide);
        rowsOfCol_.ClearRow(k);
    }

    int ChoosePivotRow(int k) {
        int best = rowAt_[k];
        double largest = 0;
        rowsOfCol_.ForEach(k, [&](int row) {
            const double size = std::fabs(Row(row)[k]);
            if (size > largest || (size == largest && placeOf_[row] < placeOf_[best])) {
                largest = size;
                best = row;
            }
        });
        return best;
    }

    void MoveTo(int place, int row) {
        const int other = rowAt_[place];
        const int otherPlace = placeOf_[row];
        rowAt_[otherPlace] = other;
        placeOf_[other] = otherPlace;
        rowAt_[place] = row;
        placeOf_[row] = place;
    }

    // Collects the entries of the pivot row to the right of the pivot. Their columns lose the pivot row and
    // gain the other rows of column k, which get an entry there.
    void GatherPivotRow(int k, int pivotRow) {
        const double* const values = Row(pivotRow);
        pivotEntryCount_ = 0;
        colsOfRow_.ForEach(pivotRow, [&](int col) {
            pivotEntries_[pivotEntryCount_++] = {col, values[col]};
            rowsOfCol_.Clear(col, pivotRow);
            rowsOfCol_.Unite(col, rowsOfCol_.Row(k));
        });
    }

    // Subtracts the pivot row from the other rows of column k.
    void SubtractPivotRow(int k, int pivotRow, std::span<double> rightSide) {
        const double pivot = Row(pivotRow)[k];
        rowsOfCol_.ForEach(k, [&](int row) {
            double* const values = Row(row);
            colsOfRow_.Clear(row, k);
            colsOfRow_.Unite(row, colsOfRow_.Row(pivotRow));
            if (values[k] == 0.0) return;  // always if the column has no pivot
            const double factor = values[k] / pivot;
            values[k] = 0.0;
            rightSide[row] -= factor * rightSide[pivotRow];
            for (int i = 0; i < pivotEntryCount_; ++i)
                values[pivotEntries_[i].col] -= factor * pivotEntries_[i].value;
        });
    }

    // A coefficient beyond a double, wherever it arises, ends on the diagonal or to its right. To the right
    // it makes the unknown infinite or NaN, which is noticed later; on the diagonal it would make the unknown
    // zero, so that it is checked here.
    double Substitute(int place, double value, std::span<const double> x) {
        const int row = rowAt_[place];
        double* const values = Row(row);
        colsOfRow_.ForEachDownwards(row, [&](int col) {
            value -= values[col] * x[col];
            values[col] = 0.0;
        });
        colsOfRow_.ClearRow(row);
        const double diagonal = CheckedNumber(values[place]);
        values[place] = 0.0;
        return diagonal != 0.0 ? value / diagonal : value;
    }

    int size_;
    std::vector<double> matrix_;  // row after row
    std::vector<int> rowAt_;
    std::vector<int> placeOf_;
    std::vector<Entry> pivotEntries_;  // of the pivot row, to the right of the pivot
    int pivotEntryCount_ = 0;
    BitTable<kFixedWords> colsOfRow_;
    BitTable<kFixedWords> rowsOfCol_;  // without the rows that have been pivots
};

}  // namespace

std::unique_ptr<LinearSystem> LinearSystem::Make(int size) {
    if (BitTable<>::WordsFor(size) <= 1) return std::make_unique<Elimination<1>>(size);
    return std::make_unique<Elimination<0>>(size);
}

}  // namespace tw
