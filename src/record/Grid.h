// One grid of a recipe apart from its window: a fixed header row, data rows, and the totals rows behind them.
// A cell holds a text, the number behind it, a check state and emphasis. Rows and columns count from 0, the
// header included.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "record/Controls.h"

namespace tw {

// Which grid of a recipe it is; RuleOf in CellRules.h tells the rest.
enum class GridId : std::uint8_t { Grain, Extract, Hops, Water, Treatment, Priming, Pressure, Adjuncts, Log };
inline constexpr std::size_t kGrids = 9;

enum class CheckState : std::uint8_t { None, Unchecked, Checked };

// The number behind a cell. A hop amount is of one of three kinds; every other cell is a Number or nothing.
struct CellValue {
    enum class Kind : std::uint8_t { None, Number, AlphaAcidUnits, BitternessUnits };
    Kind kind = Kind::None;
    double number = 0;

    static CellValue Of(double number) { return {Kind::Number, number}; }
    // The stored text: the number, with "A" or "I" before it for AAUs and IBUs; "0" for nothing.
    std::string Text() const;
    bool operator==(const CellValue&) const = default;
};

struct Cell {
    std::string text;
    CellValue value;
    CheckState check = CheckState::None;
    bool bold = false;
    bool ownNumber = false;  // the number is not the one that the text tells
    bool operator==(const Cell&) const = default;
};

struct Column {
    std::string header = {};
    bool readOnly = false;          // tagged "READONLY": the editor is refused
    bool checkBox = false;          // cells hold a checked state and no text
    std::string_view pattern = {};  // how a computed number is shown; empty shows the cell's text
    bool label = false;             // names its rows: read-only, but nothing that is calculated
};

// How a cell is painted; the colours come from the settings.
enum class CellPaint : std::uint8_t { Plain, ReadOnly, Total };

// A rectangle of cells, both corners included.
struct GridRange {
    int row1 = 0, col1 = 0, row2 = 0, col2 = 0;
    int Rows() const { return row2 - row1 + 1; }
    int Cols() const { return col2 - col1 + 1; }
    bool operator==(const GridRange&) const = default;
};

class Grid {
  public:
    struct Layout {
        GridId id;
        std::string name;
        std::vector<Column> columns;
        int totalsRows = 0;         // rows behind the data that are no data
        int leastDataRows = 0;      // a delete never leaves fewer
        bool rowsCanChange = true;  // rows can be inserted and deleted
    };

    // Makes the header row and the totals rows; no data row yet.
    Grid(RecordLink& link, Layout layout);

    GridId Id() const { return layout_.id; }
    const std::string& Name() const { return layout_.name; }
    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return static_cast<int>(layout_.columns.size()); }
    static constexpr int FixedRows() { return 1; }
    // The row behind the last data row.
    int EndOfData() const { return Rows() - layout_.totalsRows; }
    int DataRows() const { return EndOfData() - FixedRows(); }
    bool IsDataRow(int row) const { return row >= FixedRows() && row < EndOfData(); }
    int TotalsRow() const { return Rows() - 1; }
    int LeastDataRows() const { return layout_.leastDataRows; }
    bool RowsCanChange() const { return layout_.rowsCanChange; }
    const Column& ColumnAt(int col) const { return layout_.columns[static_cast<std::size_t>(col)]; }
    bool HasCell(int row, int col) const { return row >= 0 && row < Rows() && col >= 0 && col < Cols(); }

    const Cell& At(int row, int col) const { return RowAt(row).cells[static_cast<std::size_t>(col)]; }
    const std::string& Text(int row, int col) const { return At(row, col).text; }
    bool Empty(int row, int col) const { return At(row, col).text.empty(); }
    double Number(int row, int col) const { return At(row, col).value.number; }
    // The number of the totals row, 0 for an empty cell.
    double Total(int col) const { return Empty(TotalsRow(), col) ? 0 : Number(TotalsRow(), col); }
    bool Checked(int row, int col) const { return At(row, col).check == CheckState::Checked; }
    bool IsCheckBox(int row, int col) const { return IsDataRow(row) && ColumnAt(col).checkBox; }
    // True when the row or the column is tagged "READONLY".
    bool IsReadOnly(int row, int col) const { return RowAt(row).readOnly || ColumnAt(col).readOnly; }
    bool IsReadOnlyRow(int row) const { return RowAt(row).readOnly; }
    // The row's own paint; elsewhere the cells of read-only columns are ReadOnly, but for labels.
    CellPaint Paint(int row, int col) const;
    // What the cell shows: a computed number in its column's pattern, otherwise the text.
    std::string Shown(int row, int col) const;

    void SetText(int row, int col, std::string_view text);
    void SetValue(int row, int col, CellValue value) { Slot(row, col).value = value; }
    // Whether the number is another one than the text tells (Cell::ownNumber).
    void SetOwnNumber(int row, int col, bool ownNumber) { Slot(row, col).ownNumber = ownNumber; }
    // A computed number: its full text and the number behind it.
    void SetComputed(int row, int col, double number);
    // Empties the text; the number becomes 0.
    void Clear(int row, int col);
    void SetChecked(int row, int col, bool checked);
    void SetBold(int row, int col, bool bold);
    void SetRowPaint(int row, CellPaint paint) { rows_[static_cast<std::size_t>(row)].paint = paint; }
    void SetRowReadOnly(int row) { rows_[static_cast<std::size_t>(row)].readOnly = true; }

    // A row's cells, and the same put back.
    const std::vector<Cell>& CellsOf(int row) const { return RowAt(row).cells; }
    void RestoreCells(int row, const std::vector<Cell>& cells);

    // Puts an empty data row before the row of that number. REQUIRES: FixedRows() <= row <= EndOfData().
    void InsertRow(int row);
    // REQUIRES: IsDataRow(row).
    void RemoveRow(int row);

    int CurrentRow() const { return currentRow_; }
    int CurrentCol() const { return currentCol_; }
    // Clips to the grid's cells below the header; to the header where there are none.
    void SetCurrent(int row, int col);
    // The selected cells; the current cell alone unless more were selected since it was made current.
    GridRange Selection() const { return selection_; }
    // Selects a rectangle, its corners in either order, clipped to the cells below the header; its first cell
    // becomes the current one.
    void Select(GridRange range);
    // Puts the data rows into another order: the row at place i comes from place order[i], both counted from
    // 0 at the first data row. REQUIRES: a permutation of all data rows.
    void OrderRows(const std::vector<int>& order);
    // Tells the window that the grid was filled anew.
    void NotifyFilled() const;

  private:
    struct Row {
        std::vector<Cell> cells;
        bool readOnly = false;
        CellPaint paint = CellPaint::Plain;
    };

    const Row& RowAt(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    Cell& Slot(int row, int col) {
        return rows_[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(col)];
    }
    Row MakeRow() const;
    void Changed(int row, int col) const;

    RecordLink* link_;
    Layout layout_;
    std::vector<Row> rows_;
    int currentRow_ = 0;
    int currentCol_ = 0;
    GridRange selection_;
};

}  // namespace tw
