// The edit commands, which act on the focused text box or grid. They do nothing if there is none, and they
// never change a computed box. Blocks of cells are copied and pasted in the format of ClipboardBlock.h.
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
    // In a text box, copies the selected text, if any. In a grid, copies the selected block, preceded by the
    // header if the block spans all columns and the settings say so.
    void Copy();
    void Cut();
    // Empties the selected text or cells; check boxes stay as they are. Raises as Paste.
    void Clear();
    // Replaces the selected text, or the selected cells. A selection of one row or column grows to the size
    // of the block, and a read-only cell skips its part of the block. If the block does not fit the
    // selection, or a cell does not accept its entry, shows a message and changes nothing. Raises Error for
    // an arithmetic fault, with nothing changed.
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
