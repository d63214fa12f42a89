#include "shell/ImportExportModel.h"

#include <algorithm>

#include "tree/TWNodes.h"

namespace tw {

ImportExportModel::ImportExportModel(const TWTree& tree, bool isImport)
    : FormModel(kFormName), isImport_(isImport), append_(!isImport) {
    recipes_.SetTree(&tree);
    recipes_.SetAction(isImport ? "Import" : "Export");
    if (isImport) recipes_.SetRootName("Import File");
    recipes_.Initialize();
    TreeItems& items = recipes_.treeRecipes();
    if (!items.SelectKey(kRecipeFoldersKey)) items.SelectKey(kAllRecipesKey);
    FormControl append = CheckBox("chkAppend", append_);
    if (isImport) append.take = {};
    AddControls({
        {"treeRecipes", [this] { return recipes_.treeRecipes().SelectedKey(); },
         [this](std::string_view key) { return recipes_.treeRecipes().SelectKey(key); }},
        {"lstRecipes", [this] { return PickedNames(); },
         [this](std::string_view name) { return ChoosePicked(name); }},
        std::move(append),
    });
    AddButtons(recipes_.Buttons());
    AddButtons({{"cmdNext", [this] { Accept(); }, [this] { return NextEnabled(); }},
                {"cmdCancel", [this] { Close(); }}});
}

std::string ImportExportModel::PickedNames() const {
    std::string names;
    for (const std::string& name : recipes_.Selection()) names += name + "\n";
    return names;
}

bool ImportExportModel::ChoosePicked(std::string_view name) {
    const std::vector<std::string>& names = recipes_.Selection();
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) return false;
    recipes_.SetCurrent(static_cast<int>(found - names.begin()));
    return true;
}

}  // namespace tw
