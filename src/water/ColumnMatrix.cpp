#include "water/ColumnMatrix.h"

namespace tw {

ColumnMatrix::ColumnMatrix(int columns, std::span<const Place> places)
    : starts_(columns + 1, 0), entries_(places.size()) {
    for (const Place& place : places) ++starts_[place.col + 1];
    for (int col = 0; col < columns; ++col) starts_[col + 1] += starts_[col];
    // Filling moves each start to the start of the next column; they move back afterwards.
    for (const Place& place : places) entries_[starts_[place.col]++] = {place.row, place.value};
    for (int col = columns; col > 0; --col) starts_[col] = starts_[col - 1];
    starts_[0] = 0;
}

}  // namespace tw
