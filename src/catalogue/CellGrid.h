// The grid of an editor (gridInfo): a row for each quantity, with one value or with a low and a high one.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/EditorForm.h"
#include "platform/Ports.h"

namespace tw {

// Rows and columns count from 0. REQUIRES, wherever one is named: there is such a cell.
class CellGrid {
  public:
    // Blank. A grid whose first row has no high value has one column. REQUIRES: rows lives for as long.
    explicit CellGrid(std::span<const RangeRow> rows);

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return rows_.front().high.empty() ? 1 : 2; }
    const RangeRow& Quantity(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    // "gridInfo(ROW,COL)".
    static std::string NameOf(int row, int col);

    const std::string& Text(int row, int col) const { return At(row, col).text; }
    // The stored number, in the unit of its row; nothing for a blank cell.
    std::optional<double> Value(int row, int col) const { return At(row, col).value; }

    void Clear();
    // Shows a stored number, in the unit of its row.
    void Load(int row, int col, double value);
    // A key changes the text; nothing is checked before the cell is left. False when it was the text already.
    bool Type(int row, int col, std::string_view text);
    // Checks what was typed. A bad entry has had its message: the last good text stands there again; false
    // then. A blank one is allowed.
    bool Leave(int row, int col, MessagePort& messages);

    // What is odd about the ranges, in a sentence; empty for nothing. They are stored as they are.
    std::string RangeHint() const;
    // The middle of the row that is a colour, in homebrew colour units; nothing while it is blank or there is
    // none.
    std::optional<double> ColorHcu() const;

  private:
    struct Cell {
        std::string text;
        std::string goodText;  // the last one that was left and found good
        std::optional<double> value;
    };

    Cell& At(int row, int col) { return cells_[Index(row, col)]; }
    const Cell& At(int row, int col) const { return cells_[Index(row, col)]; }
    std::size_t Index(int row, int col) const { return static_cast<std::size_t>(row * Cols() + col); }

    std::span<const RangeRow> rows_;
    std::vector<Cell> cells_;
};

}  // namespace tw
