// The dialog that chooses a folder (frmChooseFolder).
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/FormModel.h"
#include "tree/FolderChooser.h"

namespace tw {

// FolderChooser1 contains and accepts the id of its folder. The buttons are cmdOK, which accepts the folder,
// and cmdCancel.
class ChooseFolderModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmChooseFolder";

    // REQUIRES: tree and objects outlive the dialog; objects changes that tree.
    ChooseFolderModel(const TWTree& tree, DB_IO& objects);

    // True for style folders, false for recipe folders. Changing it selects the root.
    bool StyleFolders() const { return chooser_.Styles(); }
    void SetStyleFolders(bool styles) { chooser_.SetStyles(styles); }
    // The folder shown initially or, after cmdOK, the chosen one.
    std::int64_t FolderID() const { return folderId_; }
    void SetFolderID(std::int64_t id);
    FolderChooser& FolderChooser1() { return chooser_; }

  private:
    bool ChooseFolder(std::string_view id);
    void Ok();

    FolderChooser chooser_;
    std::int64_t folderId_ = 0;
};

}  // namespace tw
