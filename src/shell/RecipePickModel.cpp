#include "shell/RecipePickModel.h"

#include <algorithm>

#include "tree/TWNodes.h"

namespace tw {

RecipePickModel::RecipePickModel(const char* formName, const TWTree& tree, const Texts& texts)
    : FormModel(formName), caption_(texts.caption) {
    recipes_.SetTree(&tree);
    recipes_.SetAction(texts.action);
    if (!texts.rootName.empty()) recipes_.SetRootName(texts.rootName);
    recipes_.Initialize();
    TreeItems& items = recipes_.treeRecipes();
    if (!items.SelectKey(kRecipeFoldersKey)) items.SelectKey(kAllRecipesKey);
    AddControls({
        {"treeRecipes", [this] { return recipes_.treeRecipes().SelectedKey(); },
         [this](std::string_view key) { return recipes_.treeRecipes().SelectKey(key); }},
        {"lstRecipes", [this] { return PickedNames(); },
         [this](std::string_view name) { return ChoosePicked(name); }},
    });
    AddButtons(recipes_.Buttons());
    AddButtons({{"cmdNext", [this] { Accept(); }, [this] { return NextEnabled(); }},
                {"cmdCancel", [this] { Close(); }}});
}

std::string RecipePickModel::PickedNames() const {
    std::string names;
    for (const std::string& name : recipes_.Selection()) names += name + "\n";
    return names;
}

bool RecipePickModel::ChoosePicked(std::string_view name) {
    const std::vector<std::string>& names = recipes_.Selection();
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) return false;
    recipes_.SetCurrent(static_cast<int>(found - names.begin()));
    return true;
}

}  // namespace tw
