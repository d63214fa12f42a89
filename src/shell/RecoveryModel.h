// The window that offers unsaved recipes of an earlier run (frmRecovery): a list, from which each one is
// restored or thrown away. It closes when the list is empty; what is left in it is offered again at the next
// start.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "shell/Recovery.h"

namespace tw {

// What becomes of a lost recipe.
class LostRecipes {
  public:
    virtual ~LostRecipes() = default;
    // A new changed document from the lost recipe, which takes its file over. False when it does not fit this
    // program: the file has been put aside and reported.
    virtual bool Restore(const LostRecipe& lost) = 0;
    // For good.
    virtual void Discard(const LostRecipe& lost) = 0;
};

// lstRecipes shows the selected entry and takes the text of one. cmdRestore and cmdDiscard act on the
// selected recipe, cmdRestoreAll and cmdDiscardAll on all of them; throwing away asks first. cmdClose leaves
// the rest for later.
class RecoveryModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmRecovery";

    // recipes and messages must outlive the object. It is open while lost is not empty.
    RecoveryModel(LostRecipes& recipes, MessagePort& messages, std::vector<LostRecipe> lost);

    // "{name}, {M/D/YYYY} {HH:MM}" for each recipe, "Untitled" for one without a name.
    std::vector<std::string> Entries() const;
    int Selected() const { return selected_; }
    // Nothing happens for an index without an entry.
    void Select(int index);

  private:
    // Empty when the list is.
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
