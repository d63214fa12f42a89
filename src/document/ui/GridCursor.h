// Moves the current cell of a grid and extends the selected block. The data rows and the totals, although
// shown by two views, behave as one grid.
#pragma once

#include "record/Grid.h"

class QKeyEvent;
class QTableView;

namespace tw {

class DocumentBinding;
class GridModel;

class GridCursor {
  public:
    // view shows the data rows, by model. All but the grid must outlive the cursor; Detach must be called
    // before the grid is destroyed.
    GridCursor(QTableView& view, const GridModel& model, DocumentBinding& binding, Grid& grid);
    // Sets whether totals are shown below the data rows, so that the cursor can move on to them.
    // Initially false.
    void SetHasTotals(bool hasTotals) { hasTotals_ = hasTotals; }
    // Called before the grid is destroyed; the cursor does nothing afterwards.
    void Detach() { grid_ = nullptr; }

    // True if the current cell is in a totals row.
    bool InTotals() const;
    // Makes a cell of the grid, which may be a total, the current cell; if extends is true, extends the
    // selected block to it instead. A position outside the grid becomes the nearest cell in it.
    void MoveTo(int row, int col, bool extends);
    // Handles the cursor keys within the totals and across the border between them and the data rows. Returns
    // false for any other key.
    bool MoveThroughTotals(const QKeyEvent& key);
    // Moves to the next cell at which Tab stops (+1), or to the previous cell that can be edited (-1); within
    // the totals, to the adjacent total. Returns false if there is none.
    bool Step(int direction);
    // True if the current cell is in the last data row, and Tab stops at no cell behind it.
    bool IsAtEnd() const;
    // Moves to the cell below.
    void StepDown();

  private:
    struct Place {
        int row, col;
    };
    // Two opposite corners of a selected block: anchor stays, end moves.
    struct Block {
        Place anchor, end;
        GridRange Range() const;
    };
    Block SelectedBlock() const;
    // Steps from a cell of the data rows, given by its index row * columns + column.
    bool StepFrom(int place, int direction);
    // Scrolls the column into view.
    void ShowColumn(int col);

    QTableView& view_;
    const GridModel& model_;
    DocumentBinding& binding_;
    Grid* grid_;
    bool hasTotals_ = false;
    Block block_{};  // the block that MoveTo selected last
};

}  // namespace tw
