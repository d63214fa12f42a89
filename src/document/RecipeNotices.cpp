#include "document/RecipeNotices.h"

#include "values/Text.h"

namespace tw {

void RecipeNotices::NotifyRecipeMoved(std::string_view name, std::int64_t folderId) {
    if (storage_.IsStoredAs(name)) recipe_.place.folderId = folderId;
}

void RecipeNotices::NotifyRecipeNewStyle(std::string_view name, std::int64_t styleId) {
    if (storage_.IsStoredAs(name)) style_.SetId(styleId);
}

void RecipeNotices::NotifyRecipeRenamed(std::string_view oldName, std::string_view newName) {
    if (!storage_.IsStoredAs(oldName)) return;
    recipe_.place.origName = Trim(newName);
    TextBox& name = recipe_.record.txtName;
    // A name that the brewer has edited meanwhile is kept.
    if (!SameName(name.Text(), oldName)) return;
    name.SetText(Trim(newName));
    name.SetCommitted(name.Text());
    recipe_.Renamed();
}

// Every recipe lists all styles, so a change of any style concerns every recipe.
void RecipeNotices::NotifyStyleRenamed(std::int64_t, std::string_view) {
    style_.Reload();
}

void RecipeNotices::NotifyRecipeDeleted(std::string_view name) {
    if (storage_.IsStoredAs(name)) storage_.Detach();
}

void RecipeNotices::NotifyRecipeFolderDeleted(std::int64_t folderId) {
    if (recipe_.place.folderId == folderId) storage_.Detach();
}

void RecipeNotices::NotifyStyleDeleted(std::int64_t styleId) {
    if (style_.Id() == styleId)
        style_.SetId(0);
    else
        style_.Reload();
}

void RecipeNotices::DBChanged() {
    // The ranges beside the figures may have changed, too.
    style_.SetId(style_.Id());
}

}  // namespace tw
