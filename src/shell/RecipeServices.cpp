#include "shell/RecipeServices.h"

#include "values/Text.h"

namespace tw {

std::optional<std::int64_t> RecipeServices::DeleteRecipe(std::string_view name, RecipeEnd why) {
    return to_.data.objects.DeleteRecipeByName(Trim(name), why);
}

void RecipeServices::RecipeStored(std::string_view name) {
    to_.data.objects.AddRecipeNodesByName(name);
    to_.states.CheckEnableDelete();
}

void RecipeServices::DocumentRenamed(const RecipeDocument& document) {
    to_.states.CheckEnableSaveAll();
    if (IsActive(document)) to_.states.CheckEnableCarried();
    if (!document.Changed()) to_.unsaved.Forget(document);
    to_.view->DocumentRenamed(document);
}

}  // namespace tw
