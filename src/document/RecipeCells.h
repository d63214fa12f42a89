// The cells of a recipe's grids: the list of each, its validation and commit, and the recording of what a
// commit has changed.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "document/CatalogueLookup.h"
#include "document/OpenRecipe.h"
#include "document/RowFiller.h"
#include "platform/DateTime.h"

namespace tw {

// The list that the editor of a cell offers.
struct CellList {
    NameList names;
    bool freeText = true;  // texts other than the names may be typed
};

class RecipeCells {
  public:
    RecipeCells(OpenRecipe& recipe, const CatalogueLookup& catalogue)
        : recipe_(recipe), catalogue_(catalogue), filler_(recipe, catalogue) {}

    // True for a data cell whose row and column are not read-only.
    bool CanEdit(const Grid& grid, int row, int col) const;
    CellList ListOf(const Grid& grid, int row, int col) const;
    // Validates text and commits it, with everything that follows from it. Returns false, with nothing
    // changed, if the entry is refused (after a message, if asking is Aloud) or the cell cannot be edited.
    // Raises Error for an arithmetic fault; the row is then as before.
    bool EditCell(Grid& grid, int row, int col, std::string_view text, Asking asking = Asking::Aloud);
    // Returns the value that the cell would have with that text, or the refusal; changes nothing. Raises
    // Error for an arithmetic fault.
    Reading<CellValue> ReadCell(const Grid& grid, int row, int col, std::string_view text) const;
    // Checks or unchecks a check-box cell. False if the cell is not one. Raises as EditCell.
    bool SetChecked(Grid& grid, int row, int col, bool checked);
    // Enters a day as the date in the current row of gridLog. Does nothing if that is not a data row.
    void PickLogDate(const DateTime& day);
    // Empties the cells of a row from col on and recalculates the row, without looking up the catalogue.
    void ClearFrom(Grid& grid, int row, int col);
    // Removes the numbers behind the read-only cells of a row, which are the factors of a salt, and records
    // each as an edit.
    void ClearFactors(Grid& grid, int row);

    // For an undo or redo: puts a value back into the cell and recalculates the row, without looking
    // up the catalogue.
    void PutBack(Grid& grid, int row, int col, const EditValue& value);
    // Puts a text back into the cell, with its number, and recalculates nothing.
    static void Restore(Grid& grid, int row, int col, const EditValue& value);
    // Returns what the history stores for a cell: its check mark, or its text, together with the number if
    // the text would give another one.
    static EditValue StateOf(const Cell& cell);
    // Returns what the history stores for a cell that has become now. The same text may have had another
    // number before: the time of a hop before the hop was boiled.
    static EditValue StateBefore(const Cell& cell, const Cell& now);

  private:
    void ChangeRow(Grid& grid, int row, int col, const std::function<FillEffects()>& change);
    void RecordRow(Grid& grid, int row, int col, const std::vector<Cell>& before, FillEffects effects);
    FillEffects RunChain(Grid& grid, int row, int col);
    void Recalculate(Grid& grid, int row);

    OpenRecipe& recipe_;
    const CatalogueLookup& catalogue_;
    RowFiller filler_;
};

}  // namespace tw
