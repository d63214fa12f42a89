// The way of a recipe into the database and back, and into a snapshot and back. A recipe is not updated in
// place: every save deletes its row and writes a new one, so its id changes each time and its name is what
// identifies it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "document/OpenRecipe.h"
#include "document/RecipeFields.h"
#include "document/RecipeFocus.h"
#include "document/RecipeLines.h"
#include "document/RecipeSnapshot.h"
#include "document/RecipeStyle.h"
#include "store/RecipeRows.h"

namespace tw {

enum class SaveAs : bool { No, Yes };

class RecipeStorage {
  public:
    RecipeStorage(OpenRecipe& recipe, RecipeFields& fields, RecipeFocus& focus, RecipeStyle& style,
                  RecipeLines& lines)
        : recipe_(recipe), fields_(fields), focus_(focus), style_(style), lines_(lines) {}

    // Fills the recipe from the stored one of that name. Raises when there is none, or when its rows cannot
    // be those of a recipe. Figures that its numbers break are told in one box, once all is in its place.
    void Open(std::string_view name);
    // Writes the recipe. False when the brewer refused to overwrite another recipe (asked unless quiet);
    // nothing has changed then. A store error raises and leaves what was done so far, the recipe still
    // changed.
    bool Save(SaveAs way, Asking asking);
    // Names and places the recipe, dates its creation today, then saves. As Save.
    bool SaveUnder(std::string_view name, std::int64_t folderId, Asking asking);

    // The recipe as it stands, unsaved edits included, and the same put into a new document: it is changed
    // then, and nothing has been stored. A recipe or folder that is gone from the database meanwhile leaves
    // it without a place, so that its save asks for one. An entry that was being typed is committed if it can
    // be read.
    RecipeSnapshot TakeSnapshot() const;
    void Restore(const RecipeSnapshot& snapshot);

    // True for the stored recipe that this one was opened from or saved as. Names compare trimmed, case
    // ignored. A recipe that was never saved is none of them, not the one without a name either.
    bool IsStoredAs(std::string_view name) const;
    // The stored recipe is gone: the recipe stands nowhere now, and is changed. Nothing while its own save
    // replaces it.
    void Detach();

  private:
    bool AskOverwrite();
    void DeleteOwnRow();
    void Fill(const StoredRecipe& stored);
    std::vector<std::string> FillGrids(const StoredRecipe& stored);
    void TellUnusableNumbers(const std::vector<std::string>& figures);
    void RestorePlace(const RecipeSnapshot& snapshot);

    OpenRecipe& recipe_;
    RecipeFields& fields_;
    RecipeFocus& focus_;
    RecipeStyle& style_;
    RecipeLines& lines_;
    bool savingOver_ = false;  // the recipe's own save replaces its stored recipe
};

}  // namespace tw
