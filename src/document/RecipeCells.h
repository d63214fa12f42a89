// The life of a cell: its list, its validation, its commit, and the record of what a commit has changed.
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

// What the editor of a cell offers.
struct CellList {
    std::vector<std::string> entries;
    bool freeText = true;  // another text than the entries may be typed
};

class RecipeCells {
  public:
    RecipeCells(OpenRecipe& recipe, const CatalogueLookup& catalogue)
        : recipe_(recipe), catalogue_(catalogue), filler_(recipe, catalogue) {}

    // True for a data cell whose row and column are not read-only.
    bool CanEdit(const Grid& grid, int row, int col) const;
    CellList ListOf(const Grid& grid, int row, int col) const;
    // Validates the text and commits it: the cell's chain runs. False for a bad entry (whose box has been
    // shown, if aloud) and for a cell that cannot be edited: nothing has changed then. Raises for an
    // arithmetic fault; the cell is then as before.
    bool EditCell(Grid& grid, int row, int col, std::string_view text, Asking asking = Asking::Aloud);
    // What the cell would hold with that text; nothing changes. Raises for an arithmetic fault.
    Reading<CellValue> ReadCell(const Grid& grid, int row, int col, std::string_view text) const;
    // A check-box cell. False when the cell is none.
    bool SetChecked(Grid& grid, int row, int col, bool checked);
    // A day of the calendar for the current row of gridLog.
    void PickLogDate(const DateTime& day);
    // Empties the cells of that row from col on without a look-up; the row's figures follow.
    void ClearFrom(Grid& grid, int row, int col);
    // Empties the numbers behind the row's read-only cells, each with a record of its own: the factors of a
    // salt.
    void ClearFactors(Grid& grid, int row);

    // For an undo: puts back what the cell held. The row's figures follow, without a look-up.
    void PutBack(Grid& grid, int row, int col, const EditValue& value);

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
