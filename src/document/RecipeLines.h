// The rows of a recipe's grids: inserting, deleting, sorting.
#pragma once

#include <vector>

#include "document/OpenRecipe.h"
#include "document/RecipeCells.h"
#include "document/RecipeFocus.h"

namespace tw {

class RecipeLines {
  public:
    RecipeLines(OpenRecipe& recipe, RecipeFocus& focus, RecipeCells& cells)
        : recipe_(recipe), focus_(focus), cells_(cells) {}

    // Both act on the present tab's grid, after what is being typed has been committed.
    void InsertRow();
    void DeleteRow();
    // A blank row at the current row, or behind the last data row as the setting says; nothing in a grid of
    // fixed rows.
    void InsertRowForGrid(Grid& grid);
    // The current row goes; nothing when it is no data row or the grid may not lose one.
    void DeleteRowForGrid(Grid& grid);
    // Makes a row with the defaults of a new one: a hop row has the settings' form and sock, every other cell
    // is empty. Not an edit. REQUIRES: as Grid::InsertRow.
    void AddBlankRow(Grid& grid, int row);

    // A click on a column's header: sorts the data rows by it, the other way round on the same column again.
    // Nothing in a grid of fixed rows or one without that column.
    void ClickHeader(Grid& grid, int col);
    // The column clicked last in any grid, -1 before the first click.
    int SortColumn() const { return sortColumn_; }
    bool SortDescending() const { return sortDescending_; }

    // For an undo: do and take back what the edit says of a row or an order, without a record.
    void PutBackInsert(Grid& grid, const EditTracker& edit, bool insert);
    void PutBackDelete(Grid& grid, int row, bool remove);
    void PutBackOrder(Grid& grid, const std::vector<int>& order, int col);

  private:
    void RemoveRow(Grid& grid, int row);
    void ClearCells(Grid& grid, int row);
    std::vector<int> SortedOrder(const Grid& grid, int col) const;

    OpenRecipe& recipe_;
    RecipeFocus& focus_;
    RecipeCells& cells_;
    int sortColumn_ = -1;
    bool sortDescending_ = false;
};

}  // namespace tw
