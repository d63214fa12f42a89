#include "water/AugmentBasis.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/Error.h"
#include "water/BitTable.h"

namespace tw {
namespace {

// Returns the given columns in ascending order, then the others in descending order.
std::vector<int> StartingOrder(int columns, std::span<const int> basis) {
    std::vector<char> given(columns, 0);
    for (const int col : basis) given[col] = 1;
    std::vector<int> order(columns);
    int front = 0;
    int back = columns;
    for (int col = 0; col < columns; ++col) order[given[col] != 0 ? front++ : --back] = col;
    return order;
}

class Reflections {
  public:
    Reflections(const ColumnMatrix& matrix, int rows, std::vector<int>& order)
        : rows_(rows),
          order_(order),
          work_(static_cast<std::size_t>(rows) * matrix.Columns(), 0.0),
          colsOfRow_(rows, matrix.Columns()),
          waiting_(1, matrix.Columns()),
          touched_(1, matrix.Columns()) {
        for (int col = 0; col < matrix.Columns(); ++col) {
            waiting_.Set(0, col);
            for (const ColumnMatrix::Entry& entry : matrix.Column(col)) {
                Column(col)[entry.row] = entry.value;
                colsOfRow_.Set(entry.row, col);
            }
        }
    }

    void ChooseColumn(int h) {
        const auto size = [&](int place) { return std::fabs(Column(order_[place])[h]); };
        int best = h;
        for (int place = h + 1; place < static_cast<int>(order_.size()); ++place)
            if (size(place) > size(best)) best = place;
        std::swap(order_[h], order_[best]);
    }

    // Applies the reflection that makes the column at place h zero below row h to the columns behind it. The
    // column itself is not needed again and stays as it is.
    void Reflect(int h) {
        waiting_.Clear(0, order_[h]);
        const double beta = SetDirection(h);
        touched_.ClearRow(0);
        for (const ColumnMatrix::Entry& u : direction_) touched_.Unite(0, colsOfRow_.Row(u.row));
        touched_.Intersect(0, waiting_.Row(0));
        touched_.ForEach(0, [&](int col) { ReflectColumn(col, beta); });
    }

  private:
    double* Column(int col) { return work_.data() + static_cast<std::size_t>(col) * rows_; }

    double SetDirection(int h) {
        const double* const column = Column(order_[h]);
        direction_.assign(1, {h, column[h]});
        for (int row = h + 1; row < rows_; ++row)
            if (column[row] != 0.0) direction_.push_back({row, column[row]});
        double& first = direction_.front().value;
        const double length = std::sqrt(Finite(SquaresOfDirection()));
        first = Finite(first < 0.0 ? first - length : first + length);
        return Divide(2.0, Finite(SquaresOfDirection()));
    }

    double SquaresOfDirection() const {
        double sum = 0;
        for (const ColumnMatrix::Entry& u : direction_) sum += u.value * u.value;
        return sum;
    }

    void ReflectColumn(int col, double beta) {
        double* const column = Column(col);
        double sum = 0;
        for (const ColumnMatrix::Entry& u : direction_) sum += column[u.row] * u.value;
        const double t = Finite(beta * Finite(sum));
        if (t == 0.0) return;
        for (const ColumnMatrix::Entry& u : direction_) {
            column[u.row] = Finite(column[u.row] - t * u.value);
            colsOfRow_.Set(u.row, col);
        }
    }

    int rows_;
    std::vector<int>& order_;
    std::vector<double> work_;  // column after column; instead of the columns their order changes
    BitTable<> colsOfRow_;
    BitTable<> waiting_;  // one row of bits: the columns that have had no reflection of their own
    BitTable<> touched_;  // one row of bits: the columns that meet the direction
    std::vector<ColumnMatrix::Entry> direction_;
};

}  // namespace

std::optional<std::vector<int>> AugmentBasis(const ColumnMatrix& matrix, int rows,
                                             std::span<const int> basis) {
    const int columns = matrix.Columns();
    const int given = static_cast<int>(basis.size());
    if (rows > columns || given > rows || rows < 1 || columns < 1) return std::nullopt;
    if (std::any_of(basis.begin(), basis.end(), [&](int col) { return col < 0 || col >= columns; }))
        return std::nullopt;
    if (given == rows) return std::vector<int>();
    std::vector<int> order = StartingOrder(columns, basis);
    Reflections reflections(matrix, rows, order);
    for (int h = 0; h < given; ++h) reflections.Reflect(h);
    for (int h = given; h < rows; ++h) {
        reflections.ChooseColumn(h);
        if (h < rows - 1) reflections.Reflect(h);
    }
    return order;
}

}  // namespace tw
