// What the dialogs that pick recipes for an import or export have in common.
#pragma once

#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "tree/RecipeChooser.h"

namespace tw {

// treeRecipes contains and accepts the key of an entry. lstRecipes contains the names of the picked recipes,
// each followed by a line feed, and accepts one of them. cmdNext is disabled while nothing is picked. The
// other buttons are cmdCancel and those of the chooser.
class RecipePickModel : public FormModel {
  public:
    const std::string& Caption() const { return caption_; }
    RecipeChooser& Recipes() { return recipes_; }
    const RecipeChooser& Recipes() const { return recipes_; }
    // True if something is picked, as cmdNext requires.
    bool NextEnabled() const { return recipes_.SelectionCount() > 0; }

  protected:
    struct Texts {
        std::string caption;
        std::string action;    // what is done with the recipes: "Import"
        std::string rootName;  // of the tree; empty for that of the database
    };

    // Selects the folders of the tree, or all recipes of a tree without folders. REQUIRES: tree outlives the
    // object.
    RecipePickModel(const char* formName, const TWTree& tree, const Texts& texts);

  private:
    std::string PickedNames() const;
    bool ChoosePicked(std::string_view name);

    std::string caption_;
    RecipeChooser recipes_;
};

}  // namespace tw
