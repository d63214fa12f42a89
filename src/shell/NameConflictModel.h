// Asks what to do with a recipe whose name is taken where it is copied to (frmNameConflict).
#pragma once

#include <string>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "store/RecipeCopy.h"

namespace tw {

// lblName; txtNewName; lblRename, lblSkip and lblAbort; cmdOverwrite, cmdAbort, cmdSkip, and cmdRename, which
// stays open for a blank name and for the old one. The close box aborts.
class NameConflictModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmNameConflict";

    // dirIn tells an import from an export. messages must outlive the dialog.
    NameConflictModel(std::string recipeName, bool dirIn, MessagePort& messages);

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
    // Closes the dialog with that answer.
    void EndWith(ConflictResponse response);
    void Rename();

    std::string recipeName_;
    std::string newName_;
    bool dirIn_;
    MessagePort& messages_;
    ConflictAnswer answer_;
};

}  // namespace tw
