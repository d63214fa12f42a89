// Asks what to do with a recipe whose name is taken where it is copied to (frmNameConflict).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "platform/Ports.h"
#include "store/RecipeCopy.h"

namespace tw {

class NameConflictModel final : public DialogModel {
  public:
    // dirIn tells an import from an export. messages must outlive the dialog.
    NameConflictModel(std::string recipeName, bool dirIn, MessagePort& messages)
        : recipeName_(std::move(recipeName)), newName_(recipeName_), dirIn_(dirIn), messages_(messages) {}

    // The close box aborts.
    const ConflictAnswer& Result() const { return answer_; }
    const std::string& RecipeName() const { return recipeName_; }
    // The text of txtNewName.
    const std::string& NewName() const { return newName_; }
    std::string RenameText() const;
    std::string SkipText() const;
    std::string AbortText() const;

    std::string FormName() const override { return "frmNameConflict"; }
    // lblName, txtNewName, lblRename, lblSkip, lblAbort.
    std::vector<DialogControl> Controls() const override;
    // txtNewName.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdOverwrite, cmdAbort, cmdSkip, cmdRename; the last one stays open for a blank name and for the old
    // one.
    bool Press(std::string_view button) override;
    void CloseBox() override { Close(ConflictResponse::Abort); }
    bool IsOpen() const override { return open_; }

  private:
    std::string Word() const { return dirIn_ ? "Import" : "Export"; }
    std::string SmallWord() const { return dirIn_ ? "import" : "export"; }
    void Close(ConflictResponse response);
    void Rename();

    std::string recipeName_;
    std::string newName_;
    bool dirIn_;
    MessagePort& messages_;
    ConflictAnswer answer_;
    bool open_ = true;
};

}  // namespace tw
