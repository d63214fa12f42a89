// The edit commands on the text box or grid with the focus. Each does nothing without one, and nothing that
// changes a computed box. A block of cells travels as in ClipboardBlock.h.
#pragma once

#include "document/ClipboardBlock.h"
#include "document/OpenRecipe.h"
#include "document/RecipeCells.h"
#include "document/RecipeFields.h"
#include "document/RecipeFocus.h"

namespace tw {

class EditCommands {
  public:
    EditCommands(OpenRecipe& recipe, RecipeFields& fields, RecipeFocus& focus, RecipeCells& cells)
        : recipe_(recipe), fields_(fields), focus_(focus), cells_(cells) {}

    void SelectAll();
    // Text boxes: the selected text, if any. Grids: the selected block, with the header when whole columns
    // are selected and the settings say so.
    void Copy();
    void Cut();
    // Empties the selected text or cells; check boxes stay as they are.
    void Clear();
    // Replaces the selected text, or the selected cells from the first on, each in its turn: read-only cells
    // use up their place of the block. A block that does not fit the selection, or an entry that a cell does
    // not take, shows a box, and nothing has changed. An arithmetic fault raises; all is as before then.
    void Paste();

  private:
    void CopyCells(const Grid& grid);
    bool CanPaste(const Grid& grid, const GridRange& target, const ClipboardBlock& block);
    void ApplyBlock(Grid& grid, const GridRange& target, const ClipboardBlock& block, ChangeType type);
    void ApplyBlockCell(Grid& grid, int row, int col, const std::string& text);

    OpenRecipe& recipe_;
    RecipeFields& fields_;
    RecipeFocus& focus_;
    RecipeCells& cells_;
};

}  // namespace tw
