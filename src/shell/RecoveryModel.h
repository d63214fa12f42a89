// The dialog that offers unsaved recipes of an earlier run (frmRecovery), to restore or discard each one. It
// closes once its list is empty; recipes left in it are offered again at the next start.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "shell/Recovery.h"

namespace tw {

// Restores and discards lost recipes.
class LostRecipes {
  public:
    virtual ~LostRecipes() = default;
    // Opens a new changed document with the lost recipe and makes it use the recipe's file. False if the
    // recipe does not fit this program: the file has been renamed, and a message has been shown.
    virtual bool Restore(const LostRecipe& lost) = 0;
    // Deletes the lost recipe for good.
    virtual void Discard(const LostRecipe& lost) = 0;
};

// lstRecipes contains the selected entry and accepts the text of an entry. cmdRestore and cmdDiscard act on
// the selected recipe, cmdRestoreAll and cmdDiscardAll on all; discarding asks first. cmdClose leaves the
// rest for the next start.
class RecoveryModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmRecovery";

    // recipes and messages must outlive the object. The dialog is closed from the beginning if lost is empty.
    RecoveryModel(LostRecipes& recipes, MessagePort& messages, std::vector<LostRecipe> lost);

    // Returns "{name}, {M/D/YYYY} {HH:MM}" for each recipe, with "Untitled" if it has no name.
    std::vector<std::string> Entries() const;
    int Selected() const { return selected_; }
    // Does nothing if there is no such entry.
    void Select(int index);

  private:
    // Returns an empty text if the list is empty.
    std::string SelectedEntry() const;
    bool SelectEntry(std::string_view entry);
    void RestoreSelected();
    void RestoreAll();
    void DiscardSelected();
    void DiscardAll();
    void Drop(int index);

    LostRecipes& recipes_;
    MessagePort& messages_;
    std::vector<LostRecipe> lost_;
    int selected_ = 0;
};

}  // namespace tw
