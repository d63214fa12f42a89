// One grid of a recipe without its window: a fixed header row, data rows, and totals rows at the end. A cell
// has a text, the number of that text, a check state and emphasis. Row and column indexes start at 0, the
// header row included.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "record/Controls.h"

namespace tw {

// Identifies a grid of a recipe; RuleOf in CellRules.h describes it.
enum class GridId : std::uint8_t { Grain, Extract, Hops, Water, Treatment, Priming, Pressure, Adjuncts, Log };
inline constexpr std::size_t kGrids = 9;

enum class CheckState : std::uint8_t { None, Unchecked, Checked };

// The value of a cell, in the unit of its rule (CellRules.h). A hop amount has one of three kinds: Number
// (ounces), AAUs or IBUs; every other cell has a Number or None.
struct CellValue {
    enum class Kind : std::uint8_t { None, Number, AlphaAcidUnits, BitternessUnits };
    Kind kind = Kind::None;
    double number = 0;

    static CellValue Of(double number) { return {Kind::Number, number}; }
    // Returns the form in which the value is stored: the number, preceded by "A" for AAUs and "I" for IBUs;
    // "0" for None.
    std::string Text() const;
    bool operator==(const CellValue&) const = default;
};

struct Cell {
    std::string text;
    CellValue value;
    CheckState check = CheckState::None;
    bool bold = false;
    bool ownNumber = false;  // the number differs from the one that the text would give
    bool operator==(const Cell&) const = default;
};

struct Column {
    std::string header = {};
    bool readOnly = false;          // tagged "READONLY": cannot be edited
    bool checkBox = false;          // cells have a check state and no text
    std::string_view pattern = {};  // the format of a computed number; empty to show the cell's text
    bool label = false;             // names the rows: read-only, but not calculated
};

// How a cell is painted; the settings define the colours.
enum class CellPaint : std::uint8_t { Plain, ReadOnly, Total };

// A rectangle of cells, including both corners.
struct GridRange {
    int row1 = 0, col1 = 0, row2 = 0, col2 = 0;
    int Rows() const { return row2 - row1 + 1; }
    int Cols() const { return col2 - col1 + 1; }
    bool operator==(const GridRange&) const = default;
};

// Passed instead of a column when several cells of a row have changed.
inline constexpr int kWholeRow = -1;

class Grid {
  public:
    struct Layout {
        GridId id;
        std::string name;
        std::vector<Column> columns;
        int totalsRows = 0;         // read-only rows after the data rows
        int leastDataRows = 0;      // deleting rows never leaves fewer
        bool rowsCanChange = true;  // rows can be inserted and deleted
    };

    // Creates the header row and the totals rows, but no data rows. link must outlive the grid.
    Grid(RecordLink& link, Layout layout);

    GridId Id() const { return layout_.id; }
    const std::string& Name() const { return layout_.name; }
    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return static_cast<int>(layout_.columns.size()); }
    static constexpr int FixedRows() { return 1; }
    // The index just past the last data row.
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
    // Returns the number in the last totals row, or 0 if that cell is empty.
    double Total(int col) const { return Empty(TotalsRow(), col) ? 0 : Number(TotalsRow(), col); }
    bool Checked(int row, int col) const { return At(row, col).check == CheckState::Checked; }
    bool IsCheckBox(int row, int col) const { return IsDataRow(row) && ColumnAt(col).checkBox; }
    // True if the row or the column is tagged "READONLY".
    bool IsReadOnly(int row, int col) const { return RowAt(row).readOnly || ColumnAt(col).readOnly; }
    bool IsReadOnlyRow(int row) const { return RowAt(row).readOnly; }
    // Returns the row's own paint or, in a plain data row, ReadOnly for the cells of read-only columns other
    // than labels.
    CellPaint Paint(int row, int col) const;
    // Returns the text to display: a computed number in the format of its column, else the cell's text.
    std::string Shown(int row, int col) const;

    void SetText(int row, int col, std::string_view text);
    void SetValue(int row, int col, CellValue value) { Slot(row, col).value = value; }
    // Sets Cell::ownNumber: whether the number differs from the one that the text would give.
    void SetOwnNumber(int row, int col, bool ownNumber) { Slot(row, col).ownNumber = ownNumber; }
    // Sets a computed number as the value, and its unrounded text as the text.
    void SetComputed(int row, int col, double number);
    // Empties the text and resets the value to None.
    void Clear(int row, int col);
    void SetChecked(int row, int col, bool checked);
    void SetBold(int row, int col, bool bold);
    void SetRowPaint(int row, CellPaint paint) { rows_[static_cast<std::size_t>(row)].paint = paint; }
    void SetRowReadOnly(int row) { rows_[static_cast<std::size_t>(row)].readOnly = true; }

    // A row's cells; RestoreCells puts such a copy back.
    const std::vector<Cell>& CellsOf(int row) const { return RowAt(row).cells; }
    void RestoreCells(int row, const std::vector<Cell>& cells);

    // Inserts an empty data row before the given row. REQUIRES: FixedRows() <= row <= EndOfData().
    void InsertRow(int row);
    // REQUIRES: IsDataRow(row).
    void RemoveRow(int row);

    int CurrentRow() const { return currentRow_; }
    int CurrentCol() const { return currentCol_; }
    // Makes a cell the current one, limited to the cells below the header, or to the header if it is the
    // only row.
    void SetCurrent(int row, int col);
    // The selected cells: just the current cell, unless Select has selected more.
    GridRange Selection() const { return selection_; }
    // Selects a rectangle, given by any two opposite corners and limited to the cells below the header; its
    // top left cell becomes the current cell.
    void Select(GridRange range);
    // Reorders the data rows: position i receives the row that was at position order[i], both counted from 0
    // at the first data row. REQUIRES: order is a permutation of all data rows.
    void OrderRows(const std::vector<int>& order);
    // Notifies the observer that the grid was filled anew.
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
