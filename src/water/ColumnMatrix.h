// A sparse matrix, stored by columns: of each, only the places that are not zero.
#pragma once

#include <span>
#include <vector>

namespace tw {

class ColumnMatrix {
  public:
    struct Entry {
        int row;
        double value;  // no unit
    };
    struct Place {
        int row;
        int col;
        double value;  // no unit
    };

    ColumnMatrix() = default;
    // Builds the columns 0 to columns - 1 from places that are listed row by row from the top, each once.
    // REQUIRES: every place is in one of these columns.
    ColumnMatrix(int columns, std::span<const Place> places);

    // Adds a column behind the others. REQUIRES: the rows of its entries ascend.
    void Append(std::span<const Entry> entries) {
        entries_.insert(entries_.end(), entries.begin(), entries.end());
        starts_.push_back(static_cast<int>(entries_.size()));
    }
    // Makes room for that many more columns of one entry each.
    void Reserve(int columns) {
        starts_.reserve(starts_.size() + columns);
        entries_.reserve(entries_.size() + columns);
    }

    int Columns() const { return static_cast<int>(starts_.size()) - 1; }
    // Returns the entries of a column, rows ascending, until the matrix changes. REQUIRES: 0 <= col <
    // Columns().
    std::span<const Entry> Column(int col) const {
        return {entries_.data() + starts_[col], entries_.data() + starts_[col + 1]};
    }

  private:
    std::vector<int> starts_{0};  // of each column, and the end of the last
    std::vector<Entry> entries_;
};

}  // namespace tw
