#include "tree/ObjectMoves.h"

#include <optional>

#include "tree/NodeKey.h"

namespace tw {

bool ObjectMoves::MoveFolder(FolderKind kind, std::int64_t id, std::int64_t destId, Asking asking) {
    const std::string word = FolderWord(kind);
    const std::string errorTitle = "Error moving " + word;
    return to_.runner.Trap(errorTitle, asking, [&] {
        const std::string key = FolderKey(kind, id);
        const std::string destKey = FolderKey(kind, destId);
        if (id == 0 || !to_.lookup.IsFolder(kind, id) || !to_.lookup.IsFolder(kind, destId))
            return to_.runner.RefuseMissing(errorTitle, word, asking);
        if (to_.tree.ParentOf(key) == destKey) return false;
        // A folder below itself would form a ring that cannot be reached from the root.
        if (to_.lookup.IsSubFolder(key, destKey)) return to_.runner.RefuseSubFolder(asking);
        const std::string name = to_.tree.NameOf(key).value_or("");
        if (to_.lookup.FolderNameExists(kind, destId, name))
            return to_.runner.Refuse("Could not move " + word,
                                     "The destination folder already contains a folder with that name",
                                     asking);
        UnitOfWork unit(to_.database);
        to_.database.Execute(
            "UPDATE FOLDERS SET PARENT_ID = ? WHERE " + FolderCondition(kind) + " AND ID = ?", {destId, id});
        to_.dates.TouchFolderOf(kind, key);
        to_.dates.Touch(kind, destId);
        unit.Commit();
        to_.tree.Place(key, destKey, name);
        return true;
    });
}

bool ObjectMoves::MoveRecipeToFolder(std::int64_t recipeId, std::int64_t folderId, Asking asking) {
    const std::string errorTitle = "Error moving recipe to folder";
    return to_.runner.Trap(errorTitle, asking, [&] {
        const std::optional<std::string> name = to_.lookup.RecipeName(recipeId);
        if (!name) return to_.runner.RefuseMissing(errorTitle, "recipe", asking);
        if (!to_.lookup.IsFolder(FolderKind::Recipes, folderId))
            return to_.runner.RefuseMissing(errorTitle, "recipe folder", asking);
        const std::string key = RecipeKey(recipeId, kCopyInFolder);
        const std::string folderKey = FolderKey(FolderKind::Recipes, folderId);
        if (to_.tree.ParentOf(key) == folderKey) return false;
        UnitOfWork unit(to_.database);
        to_.database.Execute("UPDATE RECIPES SET FOLDER_ID = ? WHERE ID = ?", {folderId, recipeId});
        to_.dates.TouchFolderOf(FolderKind::Recipes, key);
        to_.dates.Touch(FolderKind::Recipes, folderId);
        unit.Commit();
        to_.tree.Place(key, folderKey, *name);
        to_.listener.NotifyRecipeMoved(*name, folderId);
        return true;
    });
}

bool ObjectMoves::MoveRecipeToStyle(std::int64_t recipeId, std::int64_t styleId, Asking asking) {
    const std::string errorTitle = "Error moving recipe to style";
    return to_.runner.Trap(errorTitle, asking, [&] {
        const std::optional<std::string> name = to_.lookup.RecipeName(recipeId);
        if (!name) return to_.runner.RefuseMissing(errorTitle, "recipe", asking);
        if (styleId != 0 && !to_.lookup.StyleName(styleId))
            return to_.runner.RefuseMissing(errorTitle, "style", asking);
        ChangeStyle(recipeId, *name, styleId);
        return true;
    });
}

void ObjectMoves::ChangeStyle(std::int64_t recipeId, const std::string& name, std::int64_t styleId) {
    to_.database.Execute("UPDATE RECIPES SET STYLE_ID = ? WHERE ID = ?", {styleId, recipeId});
    for (int copy = 0; copy < kStyleCopies; ++copy)
        to_.tree.Place(RecipeKey(recipeId, copy + 1), StyleKey(styleId, copy), name);
    to_.listener.NotifyRecipeNewStyle(name, styleId);
}

bool ObjectMoves::MoveStyleToFolder(std::int64_t styleId, std::int64_t folderId, Asking asking) {
    const std::string errorTitle = "Error moving style";
    return to_.runner.Trap(errorTitle, asking, [&] {
        const std::optional<std::string> name = to_.lookup.StyleName(styleId);
        if (!name) return to_.runner.RefuseMissing(errorTitle, "style", asking);
        if (!to_.lookup.IsFolder(FolderKind::Styles, folderId))
            return to_.runner.RefuseMissing(errorTitle, "style folder", asking);
        const std::string key = StyleKey(styleId, kStyleInFolder);
        const std::string folderKey = FolderKey(FolderKind::Styles, folderId);
        const bool wasNowhere = !to_.tree.NameOf(key);
        if (to_.tree.ParentOf(key) == folderKey) return false;
        UnitOfWork unit(to_.database);
        to_.database.Execute("UPDATE STYLES SET FOLDER_ID = ? WHERE ID = ?", {folderId, styleId});
        to_.dates.TouchFolderOf(FolderKind::Styles, key);
        to_.dates.Touch(FolderKind::Styles, folderId);
        unit.Commit();
        to_.tree.Place(key, folderKey, *name);
        if (wasNowhere) ShowRecipesInFolderOf(styleId);
        return true;
    });
}

void ObjectMoves::ShowRecipesInFolderOf(std::int64_t styleId) {
    for (const std::int64_t recipe : to_.lookup.RecipesOfStyle(styleId))
        to_.tree.Place(RecipeKey(recipe, 2), StyleKey(styleId, kStyleInFolder),
                       to_.lookup.RecipeName(recipe).value_or(""));
}

bool ObjectMoves::MoveStyleToFolderByName(std::string_view name, std::int64_t folderId, Asking asking) {
    std::int64_t id = 0;
    const bool lookedUp = to_.runner.Trap("Error moving style", asking, [&] {
        id = to_.lookup.IdByName(name, "STYLES");
        return true;
    });
    return lookedUp && MoveStyleToFolder(id, folderId, asking);
}

}  // namespace tw
