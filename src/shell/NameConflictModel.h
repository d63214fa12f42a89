// The dialog that asks what to do with a copied recipe whose name already exists at its destination
// (frmNameConflict).
#pragma once

#include <string>
#include <utility>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "store/RecipeCopy.h"

namespace tw {

// The controls are lblName, txtNewName, lblRename, lblSkip and lblAbort, and chkAll if all the rest can be
// answered at once. The buttons are cmdOverwrite,
// cmdAbort, cmdSkip, and cmdRename, which keeps the dialog open if the new name is blank or unchanged. The
// close box aborts.
class NameConflictModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmNameConflict";

    // dirIn is true for an import, false for an export. messages must outlive the dialog.
    NameConflictModel(std::string recipeName, bool dirIn, MessagePort& messages);

    // Sets a free name, which the window puts into txtNewName when it opens. Without a window, txtNewName
    // begins with the name of the recipe, on which scripts rely.
    void SetProposal(std::string freeName) { proposal_ = std::move(freeName); }
    // Empty if none has been set.
    const std::string& Proposal() const { return proposal_; }

    // Shows chkAll, with which the answer holds for the rest of the recipes.
    void OfferAll() { offersAll_ = true; }
    bool OffersAll() const { return offersAll_; }
    // True if the answer holds for the rest of the recipes.
    bool ForAll() const { return forAll_; }

    const ConflictAnswer& Result() const { return answer_; }
    const std::string& RecipeName() const { return recipeName_; }
    // The text of txtNewName.
    const std::string& NewName() const { return newName_; }
    std::string RenameText() const;
    std::string SkipText() const;
    std::string AbortText() const;

    void CloseBox() override { EndWith(ConflictResponse::Abort); }

  private:
    std::string Word() const { return dirIn_ ? "Import" : "Export"; }
    std::string SmallWord() const { return dirIn_ ? "import" : "export"; }
    // Closes the dialog with that response.
    void EndWith(ConflictResponse response);
    void Rename();

    std::string recipeName_;
    std::string newName_;
    std::string proposal_;
    bool dirIn_;
    bool offersAll_ = false;
    bool forAll_ = false;
    MessagePort& messages_;
    ConflictAnswer answer_;
};

}  // namespace tw
