// Saves a recipe to the database and opens it from there; takes and restores its snapshots. A stored recipe
// is not updated in place: every save deletes its row and writes a new one, so its id changes each time and
// its name is what identifies it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
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

    // Fills the recipe from the stored one of that name. Raises Error if there is none, or if its rows cannot
    // be those of a recipe. Numbers that make a figure impossible to calculate are listed in one message at
    // the end.
    void Open(std::string_view name);
    // Writes the recipe. Returns false, with nothing changed, if the brewer refused to overwrite another
    // recipe; without asking, if asking is Quietly, it is overwritten. Raises the store's errors; what was
    // done before stays done, and the recipe is still changed. If InsertRecipe fails, shows a message and
    // returns true, and the recipe is still changed.
    bool Save(SaveAs way, Asking asking);
    // Sets the recipe's name, its folder, and the present time as that of its creation; then saves
    // as Save does.
    bool SaveUnder(std::string_view name, std::int64_t folderId, Asking asking);

    // Return the state of the recipe, unsaved edits included, and put such a state into a new document. That
    // document is then changed, and nothing has been stored. An entry that was being typed is committed if it
    // can be read. If the stored recipe has been deleted meanwhile, the document has neither name nor folder
    // in the database; if only its folder has been deleted, it has no folder. Its save then asks for one.
    // Restore raises Error for rows that do not fit their grid.
    RecipeSnapshot TakeSnapshot() const;
    void Restore(const RecipeSnapshot& snapshot);

    // True if this recipe was opened from or saved as the stored recipe of that name, trimmed and ignoring
    // case. Always false for a recipe that is not stored, even if name is empty.
    bool IsStoredAs(std::string_view name) const;
    // The stored recipe has been deleted: the recipe loses its place and is changed. Does nothing while its
    // own save replaces the stored recipe.
    void Detach();

  private:
    bool AskOverwrite();
    // Returns the id of the deleted row; nullopt if it was gone.
    std::optional<std::int64_t> DeleteOwnRow();
    // Deletes the rows that the save replaces, writes the new one, and tells what follows the recipe. Returns
    // the id of the new row; nullopt if it could not be written. otherId is that of the recipe that has the
    // name already.
    std::optional<std::int64_t> Write(const StoredRecipe& stored, SaveAs way,
                                      std::optional<std::int64_t> otherId);
    // Called after a save that failed, with the id from before it.
    void ForgetUndoneId(std::optional<std::int64_t> idBefore);
    void Fill(const StoredRecipe& stored);
    std::vector<std::string> FillGrids(const StoredRecipe& stored);
    void TellUnusableNumbers(const std::vector<std::string>& figures);
    void RestorePlace(const RecipeSnapshot& snapshot);

    OpenRecipe& recipe_;
    RecipeFields& fields_;
    RecipeFocus& focus_;
    RecipeStyle& style_;
    RecipeLines& lines_;
    bool savingOver_ = false;  // true while the recipe's own save replaces its stored recipe
};

}  // namespace tw
