#include "shell/ImportExportModel.h"

#include <algorithm>

#include "tree/TWNodes.h"

namespace tw {

ImportExportModel::ImportExportModel(const TWTree& tree, bool isImport)
    : isImport_(isImport), append_(!isImport) {
    recipes_.SetTree(&tree);
    recipes_.SetAction(isImport ? "Import" : "Export");
    if (isImport) recipes_.SetRootName("Import File");
    recipes_.Initialize();
    TreeItems& items = recipes_.treeRecipes();
    if (!items.SelectKey(kRecipeFoldersKey)) items.SelectKey(kAllRecipesKey);
}

std::vector<DialogControl> ImportExportModel::Controls() const {
    std::string names;
    for (const std::string& name : recipes_.Selection()) names += name + "\n";
    return {{"treeRecipes", recipes_.treeRecipes().SelectedKey()},
            {"lstRecipes", names},
            {"chkAppend", append_ ? "yes" : "no"}};
}

bool ImportExportModel::SetControl(std::string_view name, std::string_view text) {
    if (name == "treeRecipes") return recipes_.treeRecipes().SelectKey(text);
    if (name == "lstRecipes") return ChoosePicked(text);
    if (name != "chkAppend" || isImport_ || (text != "yes" && text != "no")) return false;
    append_ = text == "yes";
    return true;
}

bool ImportExportModel::ChoosePicked(std::string_view name) {
    const std::vector<std::string>& names = recipes_.Selection();
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) return false;
    recipes_.SetCurrent(static_cast<int>(found - names.begin()));
    return true;
}

bool ImportExportModel::Press(std::string_view button) {
    if (recipes_.Press(button)) return true;
    if (button == "cmdNext") {
        if (!NextEnabled()) return true;
        cancelled_ = false;
    } else if (button != "cmdCancel") {
        return false;
    }
    CloseBox();
    return true;
}

}  // namespace tw
