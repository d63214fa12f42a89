// The ways of a grid's current cell and of the block selected around it. The data rows and the totals below
// them, which are shown by two views, are one grid to the hands.
#pragma once

#include "record/Grid.h"

class QKeyEvent;
class QTableView;

namespace tw {

class DocumentBinding;
class GridModel;

class GridCursor {
  public:
    // view shows the data rows by model. All must outlive the cursor, but for the grid.
    GridCursor(QTableView& view, const GridModel& model, DocumentBinding& binding, Grid& grid);
    // Whether totals are shown below the data rows, which the cursor then goes on to; false at first.
    void SetHasTotals(bool hasTotals) { hasTotals_ = hasTotals; }
    // The grid goes: nothing moves from now on.
    void Detach() { grid_ = nullptr; }

    // Whether the current cell is one of the totals.
    bool InTotals() const;
    // Makes a cell of the grid, one of the totals too, the current one, or the end of the selected block. A
    // place outside the grid becomes the nearest one in it.
    void MoveTo(int row, int col, bool extends);
    // The arrows over the border between rows and totals and among the totals. False for any other key.
    bool MoveThroughTotals(const QKeyEvent& key);
    // To the next (+1) or previous (-1) cell that takes an entry, or to the next total; false when there is
    // none.
    bool Step(int direction);
    // To the cell below.
    void StepDown();

  private:
    struct Place {
        int row, col;
    };
    // The corners of a selected block: the one that stays and the one that moves.
    struct Block {
        Place anchor, end;
        GridRange Range() const;
    };
    Block SelectedBlock() const;
    // Step from a place among the data rows, whose cells count from 0.
    bool StepFrom(int place, int direction);
    // Brings the column into sight.
    void ShowColumn(int col);

    QTableView& view_;
    const GridModel& model_;
    DocumentBinding& binding_;
    Grid* grid_;
    bool hasTotals_ = false;
    Block block_{};  // the last one that reached into the totals
};

}  // namespace tw
