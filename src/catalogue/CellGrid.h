// The grid of an editor (gridInfo): one row per quantity, with a single value or with a low and a high one.
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

// Rows and columns are counted from 0. REQUIRES for every row and col: the cell exists.
class CellGrid {
  public:
    // Creates blank cells: one column if the first row has no high value, else two.
    // REQUIRES: rows outlives the grid.
    explicit CellGrid(std::span<const RangeRow> rows);

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return rows_.front().high.empty() ? 1 : 2; }
    const RangeRow& Quantity(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    // Returns the control name, "gridInfo(ROW,COL)".
    static std::string NameOf(int row, int col);

    const std::string& Text(int row, int col) const { return At(row, col).text; }
    // The stored number, in the unit of its row; nullopt for a blank cell.
    std::optional<double> Value(int row, int col) const { return At(row, col).value; }

    void Clear();
    // Sets a stored number, in the unit of its row, and shows it.
    void Load(int row, int col, double value);
    // Changes the text as typing does, without checks until the cell is left. False if that was the
    // text already.
    bool Type(int row, int col, std::string_view text);
    // Checks the text when the cell is left; a blank text is allowed. If it is refused, shows a message,
    // restores the last accepted text and returns false.
    bool Leave(int row, int col, MessagePort& messages);

    // Returns a sentence about a low value above the high one; empty if there is none. Such ranges are stored
    // all the same.
    std::string RangeHint() const;
    // Returns the middle of the colour range in homebrew colour units (HCU); nullopt if it is blank or the
    // grid has no colour row.
    std::optional<double> ColorHcu() const;

  private:
    struct Cell {
        std::string text;
        std::string goodText;  // the text accepted last
        std::optional<double> value;
    };

    Cell& At(int row, int col) { return cells_[Index(row, col)]; }
    const Cell& At(int row, int col) const { return cells_[Index(row, col)]; }
    std::size_t Index(int row, int col) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(Cols()) +
               static_cast<std::size_t>(col);
    }

    std::span<const RangeRow> rows_;
    std::vector<Cell> cells_;
};

}  // namespace tw
