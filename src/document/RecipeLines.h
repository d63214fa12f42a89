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

    // Insert or delete a row in the grid of the present tab, after committing what is being typed. Do nothing
    // if that commit is refused, or if RecipeFocus does not allow the change.
    void InsertRow();
    void DeleteRow();
    // Inserts a blank row at the current row, or after the last data row if the settings say so. Does nothing
    // in a grid with a fixed number of rows.
    void InsertRowForGrid(Grid& grid);
    // Adds a blank row after the last data row, whatever the settings say.
    void AppendRow(Grid& grid) { InsertRowForGrid(grid, true); }
    // Offers the brewer a blank row after the last data row, which becomes the current one. It counts as an
    // edit, and can be undone, only once something is entered into it; until then WithdrawRow takes it back.
    // False, with nothing changed, if the grid takes no rows now or its last row is blank.
    bool OfferRow(Grid& grid);
    // Removes a row that was offered and into which nothing has been entered. Does nothing without one.
    void WithdrawRow();
    // Returns the grid whose last data row was offered, while nothing has been entered into it; else nullptr.
    Grid* Offered() const { return recipe_.recorder.Awaits() ? offered_ : nullptr; }
    // Deletes the current row. Does nothing if it is not a data row, or if the grid must keep it.
    void DeleteRowForGrid(Grid& grid);
    // Inserts a row with the defaults of a new one: in gridHops the form and the sock from the settings;
    // every other cell is empty. Not recorded as an edit. REQUIRES: as Grid::InsertRow.
    void AddBlankRow(Grid& grid, int row);

    // Sorts the data rows by a column, whose header was clicked. Clicking the same column index again, even
    // in another grid, reverses the direction; any other column keeps it. Does nothing in a grid with a fixed
    // number of rows or without that column.
    void ClickHeader(Grid& grid, int col);
    // The column clicked last in any grid; -1 before the first click.
    int SortColumn() const { return sortColumn_; }
    bool SortDescending() const { return sortDescending_; }

    // For an undo or redo: insert, remove or reorder rows as the edit says, or take that back. Not recorded.
    void PutBackInsert(Grid& grid, const EditTracker& edit, bool insert);
    void PutBackDelete(Grid& grid, int row, bool remove);
    void PutBackOrder(Grid& grid, const std::vector<int>& order, int col);

  private:
    void InsertRowForGrid(Grid& grid, bool append);
    void KeepOffered();
    void RemoveRow(Grid& grid, int row);
    void ClearCells(Grid& grid, int row);
    std::vector<int> SortedOrder(const Grid& grid, int col) const;

    OpenRecipe& recipe_;
    RecipeFocus& focus_;
    RecipeCells& cells_;
    Grid* offered_ = nullptr;  // the grid whose last row was offered, while the recorder awaits an edit
    int sortColumn_ = -1;
    bool sortDescending_ = false;
};

// Withdraws an offered row during a scope that must not see it, such as a save, and offers it again
// afterwards.
class OfferPause {
  public:
    explicit OfferPause(RecipeLines& lines);
    ~OfferPause();
    OfferPause(const OfferPause&) = delete;
    OfferPause& operator=(const OfferPause&) = delete;

  private:
    RecipeLines& lines_;
    Grid* offered_;
};

}  // namespace tw
