#include "tree/ChooseFolderModel.h"

namespace tw {

ChooseFolderModel::ChooseFolderModel(const TWTree& tree, DB_IO& objects)
    : FormModel(kFormName), chooser_(tree, objects) {
    AddControls({{"FolderChooser1", [this] { return std::to_string(chooser_.FolderID()); },
                  [this](std::string_view id) { return ChooseFolder(id); }}});
    AddButtons({{"cmdOK", [this] { Ok(); }}, {"cmdCancel", [this] { Close(); }}});
}

void ChooseFolderModel::SetFolderID(std::int64_t id) {
    folderId_ = id;
    chooser_.SetFolderID(id);
}

bool ChooseFolderModel::ChooseFolder(std::string_view id) {
    return chooser_.Choose(StyleFolders() ? StyleFolderKey(id) : RecipeFolderKey(id));
}

void ChooseFolderModel::Ok() {
    folderId_ = chooser_.FolderID();
    Accept();
}

}  // namespace tw
