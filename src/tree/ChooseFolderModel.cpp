#include "tree/ChooseFolderModel.h"

namespace tw {

void ChooseFolderModel::SetFolderID(std::int64_t id) {
    folderId_ = id;
    chooser_.SetFolderID(id);
}

std::vector<DialogControl> ChooseFolderModel::Controls() const {
    return {{"FolderChooser1", std::to_string(chooser_.FolderID())}};
}

bool ChooseFolderModel::SetControl(std::string_view name, std::string_view text) {
    return name == "FolderChooser1" &&
           chooser_.Choose(StyleFolders() ? StyleFolderKey(text) : RecipeFolderKey(text));
}

bool ChooseFolderModel::Press(std::string_view button) {
    if (button != "cmdOK" && button != "cmdCancel") return false;
    if (button == "cmdOK") {
        folderId_ = chooser_.FolderID();
        cancelled_ = false;
    }
    CloseBox();
    return true;
}

}  // namespace tw
