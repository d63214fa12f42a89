#include "tree/ObjectRenames.h"

#include <optional>

#include "store/RecipeFollowers.h"
#include "tree/NodeKey.h"
#include "values/Text.h"

namespace tw {

bool ObjectRenames::CheckNewName(const std::string& object, std::string_view oldName,
                                 std::string_view newName, const std::function<bool()>& nameExists,
                                 Asking asking) {
    const std::string title = "Could not rename " + object;
    if (IsBlank(newName)) return to_.runner.Refuse(title, "You must type a name", asking);
    if (!nameExists() || SameName(newName, oldName)) return true;
    const std::string word = object.ends_with("folder") ? "folder" : object;
    return to_.runner.Refuse(title, "A " + word + " with that name already exists", asking);
}

bool ObjectRenames::RenameFolder(FolderKind kind, std::int64_t id, std::string_view newName, Asking asking) {
    const std::string word = FolderWord(kind);
    const std::string errorTitle = "Error renaming " + word;
    return to_.runner.Trap(errorTitle, asking, [&] {
        const std::string key = FolderKey(kind, id);
        if (id == 0 || !to_.lookup.IsFolder(kind, id))
            return to_.runner.RefuseMissing(errorTitle, word, asking);
        const auto nameExists = [&] {
            return to_.lookup.FolderNameExists(kind, IdOfKey(to_.tree.ParentOf(key)), newName);
        };
        if (!CheckNewName(word, to_.tree.NameOf(key).value_or(""), newName, nameExists, asking)) return false;
        UnitOfWork unit(to_.database);
        to_.database.Execute("UPDATE FOLDERS SET NAME = ? WHERE " + FolderCondition(kind) + " AND ID = ?",
                             {Trim(newName), id});
        to_.dates.TouchFolderOf(kind, key);
        unit.Commit();
        to_.tree.Rename(key, std::string(newName));
        return true;
    });
}

bool ObjectRenames::RenameRecipe(std::int64_t id, std::string_view newName, Asking asking) {
    const std::string errorTitle = "Error renaming recipe";
    return to_.runner.Trap(errorTitle, asking, [&] {
        const std::optional<std::string> oldName = to_.lookup.RecipeName(id);
        if (!oldName) return to_.runner.RefuseMissing(errorTitle, "recipe", asking);
        const auto nameExists = [&] { return to_.lookup.NameExists(newName, "RECIPES"); };
        if (!CheckNewName("recipe", *oldName, newName, nameExists, asking)) return false;
        UnitOfWork unit(to_.database);
        to_.database.Execute("UPDATE RECIPES SET NAME = ? WHERE ID = ?", {Trim(newName), id});
        RecipeRenamed(to_.database, id);
        to_.dates.TouchFolderOf(FolderKind::Recipes, RecipeKey(id, kCopyInFolder));
        unit.Commit();
        const std::string text(newName);
        for (int copy = 0; copy < kRecipeCopies; ++copy) to_.tree.Rename(RecipeKey(id, copy), text);
        to_.listener.NotifyRecipeRenamed(*oldName, text);
        return true;
    });
}

bool ObjectRenames::RenameStyle(std::int64_t id, std::string_view newName, Asking asking) {
    const std::string errorTitle = "Error renaming style";
    return to_.runner.Trap(errorTitle, asking, [&] {
        const std::optional<std::string> oldName = to_.lookup.StyleName(id);
        if (!oldName) return to_.runner.RefuseMissing(errorTitle, "style", asking);
        const auto nameExists = [&] { return to_.lookup.NameExists(newName, "STYLES"); };
        if (!CheckNewName("style", *oldName, newName, nameExists, asking)) return false;
        UnitOfWork unit(to_.database);
        to_.database.Execute("UPDATE STYLES SET NAME = ? WHERE ID = ?", {Trim(newName), id});
        to_.dates.TouchFolderOf(FolderKind::Styles, StyleKey(id, kStyleInFolder));
        unit.Commit();
        nodes_.RenameStyleNodes(id, newName);
        return true;
    });
}

}  // namespace tw
