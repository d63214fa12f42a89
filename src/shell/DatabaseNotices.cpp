#include "shell/DatabaseNotices.h"

#include "platform/Error.h"

namespace tw {

void DatabaseNotices::NotifyRecipeMoved(const std::string& name, std::int64_t folderId) {
    documents_.ForEach(
        [&](RecipeDocument& document) { document.Notices().NotifyRecipeMoved(name, folderId); });
}

void DatabaseNotices::NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) {
    documents_.ForEach(
        [&](RecipeDocument& document) { document.Notices().NotifyRecipeNewStyle(name, styleId); });
}

void DatabaseNotices::NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) {
    recent_.Rename(oldName, newName);
    documents_.ForEach(
        [&](RecipeDocument& document) { document.Notices().NotifyRecipeRenamed(oldName, newName); });
}

void DatabaseNotices::NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) {
    documents_.ForEach(
        [&](RecipeDocument& document) { document.Notices().NotifyStyleRenamed(styleId, newName); });
}

void DatabaseNotices::NotifyRecipeDeleted(const std::string& name) {
    recent_.Remove(name);
    documents_.ForEach([&](RecipeDocument& document) { document.Notices().NotifyRecipeDeleted(name); });
    // Not for each of a thousand recipes of a folder.
    const RecipeDocument* const active = documents_.Active();
    if (active != nullptr && active->OrigName().empty()) states_.CheckEnableCarried();
}

void DatabaseNotices::NotifyRecipeFolderDeleted(std::int64_t folderId) {
    if (browse_.nodeKey == RecipeFolderKey(folderId)) browse_.nodeKey = kRecipeFoldersKey;
    documents_.ForEach(
        [&](RecipeDocument& document) { document.Notices().NotifyRecipeFolderDeleted(folderId); });
}

void DatabaseNotices::NotifyStyleDeleted(std::int64_t styleId) {
    documents_.ForEach([&](RecipeDocument& document) { document.Notices().NotifyStyleDeleted(styleId); });
}

void DatabaseNotices::DeletionEnded() {
    try {
        states_.CheckEnableDelete();
    } catch (const Error&) {
        // This error follows another one that is already being reported; the commands keep their state.
        return;
    }
}

}  // namespace tw
