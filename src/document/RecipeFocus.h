// Where the brewer works in a recipe: the tab and the focused control. Enables those commands of the main
// window that depend on it.
#pragma once

#include "document/OpenRecipe.h"
#include "document/RecipeFields.h"

namespace tw {

class RecipeFocus {
  public:
    RecipeFocus(OpenRecipe& recipe, RecipeFields& fields)
        : recipe_(recipe), fields_(fields), box_(&recipe.record.txtName) {}

    Tab CurrentTab() const { return tab_; }
    // Commits what is being typed, changes the tab, and focuses its first control.
    void SetTab(Tab tab);
    // Returns the grid on which the row commands of that tab act; nullptr on tabs without one.
    Grid* GridOfTab(Tab tab);

    // The focused text box and the focused grid. At least one of them is nullptr; both are while any other
    // control has the focus.
    TextBox* Box() const { return box_; }
    Grid* FocusedGrid() const { return grid_; }
    // Move the focus. Without a window, this first commits the text box that loses it; a refused entry is
    // replaced by the committed text.
    void FocusOn(TextBox& box);
    void FocusOn(Grid& grid);
    // Moves the focus to a control for which there are no edit commands, such as a button.
    void FocusElsewhere();

    // Commits what is being typed. False if an entry was refused and is still open in the window. Without a
    // window, a refused entry is replaced by the committed text instead.
    bool FlushEdits();
    // As FlushEdits, but without messages, for a save that the brewer has not asked for: commits the text
    // boxes that can be read. Those that cannot be read, those that have just been emptied, and an open cell
    // editor stay as they are.
    void FlushEditsQuietly();

    void SetCurrentCell(Grid& grid, int row, int col);
    // Selects a block; its first cell becomes the current one.
    void SelectCells(Grid& grid, const GridRange& range);
    // True if rows can be inserted: not in a grid with a fixed number of rows, nor in gridPriming while the
    // beer is kegged.
    bool CanInsertRow(const Grid& grid) const;
    // True if the current row is a data row that the grid need not keep.
    bool CanDeleteRow(const Grid& grid) const;

    // To be called when the recipe's window has become the active one: sets all commands of the main window
    // that depend on the recipe.
    void Activate();
    // Set some of these commands, if the recipe is the active one.
    void RefreshRowCommands();
    void RefreshEditCommands();

  private:
    void Focus(TextBox* box, Grid* grid);

    OpenRecipe& recipe_;
    RecipeFields& fields_;
    Tab tab_ = Tab::General;
    TextBox* box_;
    Grid* grid_ = nullptr;
};

}  // namespace tw
