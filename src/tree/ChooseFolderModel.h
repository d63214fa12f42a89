// The dialog in which a folder is chosen (frmChooseFolder).
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/FormModel.h"
#include "tree/FolderChooser.h"

namespace tw {

// FolderChooser1 shows and takes the id of its folder; cmdOK takes the folder; cmdCancel.
class ChooseFolderModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmChooseFolder";

    // REQUIRES: both live for as long; objects changes that tree.
    ChooseFolderModel(const TWTree& tree, DB_IO& objects);

    // FALSE recipe folders, TRUE style folders. Setting it chooses the root.
    bool StyleFolders() const { return chooser_.Styles(); }
    void SetStyleFolders(bool styles) { chooser_.SetStyles(styles); }
    // The folder that is shown first; after cmdOK the one that was chosen.
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
