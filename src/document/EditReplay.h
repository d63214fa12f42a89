// Undo and redo: moves one step back or forward in the history. The values of the step's edits are put back
// into their controls, and the ordinary recalculation of each control does the rest.
#pragma once

#include "document/OpenRecipe.h"
#include "document/RecipeCells.h"
#include "document/RecipeFields.h"
#include "document/RecipeFocus.h"
#include "document/RecipeLines.h"
#include "document/RecipeOptions.h"
#include "document/RecipeScaling.h"
#include "document/RecipeStyle.h"

namespace tw {

class EditReplay final : public StepReplay {
  public:
    // The parts through which edits are put back. They must outlive the object.
    struct Parts {
        RecipeFields& fields;
        RecipeFocus& focus;
        RecipeOptions& options;
        RecipeStyle& style;
        RecipeCells& cells;
        RecipeLines& lines;
        RecipeScaling& scaling;
    };
    EditReplay(OpenRecipe& recipe, Parts parts) : recipe_(recipe), parts_(parts) {}

    // Undo or redo one step of the history, which is emptied when the recipe is opened or saved, and when it
    // is scaled unless the settings let that be undone.
    // False if there is none, or if the cell being edited has an entry that is refused. An arithmetic fault
    // ends the step early and raises Error.
    bool Undo();
    bool Redo();
    void TakeBack(const EditTracker& step) override;

  private:
    bool FlushBeforeStep();
    bool Apply(const EditTracker* head, bool undo);
    void WantTab(int tab);
    void ApplyEdit(const EditTracker& edit, bool undo);
    void ApplyToTextBox(TextBox& box, const EditTracker& edit, bool undo);
    void ApplyToGrid(Grid& grid, const EditTracker& edit, bool undo);

    OpenRecipe& recipe_;
    Parts parts_;
};

}  // namespace tw
