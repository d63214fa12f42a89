// The option buttons of a recipe: the bitterness formula and the packaging.
#pragma once

#include <string_view>

#include "document/OpenRecipe.h"
#include "document/RecipeFocus.h"

namespace tw {

class RecipeOptions {
  public:
    RecipeOptions(OpenRecipe& recipe, RecipeFocus& focus) : recipe_(recipe), focus_(focus) {}

    // Sets the option button of that name; the figures follow. False for an unknown one. Raises for an
    // arithmetic fault; the former option is set again then.
    bool Choose(std::string_view option);
    // The options of a new recipe, by their index; one that does not exist changes nothing.
    void ChooseDefaults(int ibuMethod, int packaging);

  private:
    void RunChain(const OptionGroup& group);

    OpenRecipe& recipe_;
    RecipeFocus& focus_;
};

}  // namespace tw
