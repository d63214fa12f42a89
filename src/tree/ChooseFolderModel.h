// The dialog in which a folder is chosen (frmChooseFolder).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "tree/FolderChooser.h"

namespace tw {

class ChooseFolderModel final : public DialogModel {
  public:
    // REQUIRES: both live for as long; objects changes that tree.
    ChooseFolderModel(const TWTree& tree, DB_IO& objects) : chooser_(tree, objects) {}

    // Until cmdOK.
    bool Cancelled() const { return cancelled_; }
    // FALSE recipe folders, TRUE style folders. Setting it chooses the root.
    bool StyleFolders() const { return chooser_.Styles(); }
    void SetStyleFolders(bool styles) { chooser_.SetStyles(styles); }
    // The folder that is shown first; after cmdOK the one that was chosen.
    std::int64_t FolderID() const { return folderId_; }
    void SetFolderID(std::int64_t id);
    FolderChooser& FolderChooser1() { return chooser_; }

    std::string FormName() const override { return "frmChooseFolder"; }
    // FolderChooser1 shows the id of its folder.
    std::vector<DialogControl> Controls() const override;
    // FolderChooser1 takes the id of a folder.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdOK takes the chooser's folder; cmdCancel.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    FolderChooser chooser_;
    std::int64_t folderId_ = 0;
    bool cancelled_ = true;
    bool open_ = true;
};

}  // namespace tw
