// Undo and redo: one step of the history back or forward. What a step's edits held goes back into their
// controls, and the ordinary recalculation of each control does the rest.
#pragma once

#include "document/OpenRecipe.h"
#include "document/RecipeCells.h"
#include "document/RecipeFields.h"
#include "document/RecipeFocus.h"
#include "document/RecipeLines.h"
#include "document/RecipeOptions.h"
#include "document/RecipeStyle.h"

namespace tw {

class EditReplay final : public StepReplay {
  public:
    // The parts that the edits of a recipe go through.
    struct Parts {
        RecipeFields& fields;
        RecipeFocus& focus;
        RecipeOptions& options;
        RecipeStyle& style;
        RecipeCells& cells;
        RecipeLines& lines;
    };
    EditReplay(OpenRecipe& recipe, Parts parts) : recipe_(recipe), parts_(parts) {}

    // One step of the edits since the recipe was opened or saved; false when there is none.
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
