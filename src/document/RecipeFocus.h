// Where the brewer works in a recipe: the tab, the control with the focus, and which commands of the main
// window that enables.
#pragma once

#include "document/OpenRecipe.h"
#include "document/RecipeFields.h"

namespace tw {

class RecipeFocus {
  public:
    RecipeFocus(OpenRecipe& recipe, RecipeFields& fields)
        : recipe_(recipe), fields_(fields), box_(&recipe.record.txtName) {}

    Tab CurrentTab() const { return tab_; }
    // Commits what is being typed, and gives the tab's first control the focus.
    void SetTab(Tab tab);
    // The grid that the row commands of that tab act on, nullptr on tabs without one.
    Grid* GridOfTab(Tab tab);

    // The control with the focus, as far as the edit commands care: one of the two or none.
    TextBox* Box() const { return box_; }
    Grid* FocusedGrid() const { return grid_; }
    // Without a window, entering another control commits the text box that is left; a refused entry goes back
    // to its committed text.
    void FocusOn(TextBox& box);
    void FocusOn(Grid& grid);
    // A control that the edit commands know nothing of, such as a button.
    void FocusElsewhere();

    // Commits what is being typed. False when an entry was refused and stays open in the window; without a
    // window it goes back to its committed text instead.
    bool FlushEdits();
    // As FlushEdits without a word, for a save that nobody asked for: commits the text boxes that can be
    // read. Those that cannot, those that have just been emptied, and an open cell editor stay as they are
    // being typed.
    void FlushEditsQuietly();

    void SetCurrentCell(Grid& grid, int row, int col);
    // Selects a block; its first cell becomes the current one.
    void SelectCells(Grid& grid, const GridRange& range);
    // True when rows can be inserted: not in a grid of fixed rows, nor among the sugars of a keg.
    bool CanInsertRow(const Grid& grid) const;
    // True when the current row is a data row and the grid may lose one.
    bool CanDeleteRow(const Grid& grid) const;

    // The recipe's window became the active one: sets all commands of the main window that a recipe steers.
    void Activate();
    // Set some of them while the recipe is the active one.
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
