// The option buttons of a recipe: the bitterness formula and the packaging.
#pragma once

#include <string_view>

#include "document/OpenRecipe.h"
#include "document/RecipeFocus.h"

namespace tw {

class RecipeOptions {
  public:
    RecipeOptions(OpenRecipe& recipe, RecipeFocus& focus) : recipe_(recipe), focus_(focus) {}

    // Chooses the option button of that name and recalculates the figures. False if there is none. Raises
    // Error for an arithmetic fault; the former option is then chosen again.
    bool Choose(std::string_view option);
    // Chooses the options of a new recipe by index, without recalculating. An index out of range
    // changes nothing.
    void ChooseDefaults(int ibuMethod, int packaging);

  private:
    void RunChain(const OptionGroup& group);

    OpenRecipe& recipe_;
    RecipeFocus& focus_;
};

}  // namespace tw
