// Updates an open recipe when something has changed in the database. Names are compared with that of the
// stored recipe, trimmed and ignoring case.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/OpenRecipe.h"
#include "document/RecipeStorage.h"
#include "document/RecipeStyle.h"

namespace tw {

class RecipeNotices {
  public:
    RecipeNotices(OpenRecipe& recipe, RecipeStyle& style, RecipeStorage& storage)
        : recipe_(recipe), style_(style), storage_(storage) {}

    void NotifyRecipeMoved(std::string_view name, std::int64_t folderId);
    void NotifyRecipeNewStyle(std::string_view name, std::int64_t styleId);
    void NotifyRecipeRenamed(std::string_view oldName, std::string_view newName);
    void NotifyStyleRenamed(std::int64_t styleId, std::string_view newName);
    void NotifyRecipeDeleted(std::string_view name);
    void NotifyStyleDeleted(std::int64_t styleId);
    void NotifyRecipeFolderDeleted(std::int64_t folderId);
    // The catalogue has changed: reads the list of styles and the ranges of the recipe's style again.
    void DBChanged();

  private:
    OpenRecipe& recipe_;
    RecipeStyle& style_;
    RecipeStorage& storage_;
};

}  // namespace tw
