#include "tree/ObjectDeletions.h"

#include <optional>
#include <unordered_set>
#include <vector>

#include "store/RecipeRows.h"
#include "tree/NodeKey.h"

namespace tw {

void ObjectDeletions::DeleteFolder(FolderKind kind, std::int64_t id) {
    if (id != 0 && to_.lookup.IsFolder(kind, id)) to_.runner.RunDeletion([&] { DeleteTree(kind, id); });
}

// Depth first, without recursion, because the data decides how deeply folders are nested.
void ObjectDeletions::DeleteTree(FolderKind kind, std::int64_t id) {
    struct Level {
        std::int64_t id;
        std::vector<std::int64_t> folders;
        std::size_t next;
    };
    // If folders form a ring, each is deleted once. The ids of the system folders are excluded, as a row with
    // such an id would delete everything in that folder.
    std::unordered_set<std::int64_t> seen = {id, 0, kAllObjects};
    const auto open = [&](std::int64_t folder) -> Level {
        return {folder,
                to_.lookup.Ids("SELECT ID FROM FOLDERS WHERE " + FolderCondition(kind) + " AND PARENT_ID = ?",
                               {folder}),
                0};
    };
    std::vector<Level> levels = {open(id)};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == level.folders.size()) {
            DeleteEmptied(kind, level.id);
            levels.pop_back();
        } else if (const std::int64_t folder = level.folders[level.next++]; seen.insert(folder).second) {
            levels.push_back(open(folder));
        }
    }
}

void ObjectDeletions::DeleteEmptied(FolderKind kind, std::int64_t id) {
    const bool forStyles = kind == FolderKind::Styles;
    for (const std::int64_t object : to_.lookup.Ids(forStyles ? "SELECT ID FROM STYLES WHERE FOLDER_ID = ?"
                                                              : "SELECT ID FROM RECIPES WHERE FOLDER_ID = ?",
                                                    {id})) {
        if (forStyles)
            DeleteStyle(object);
        else
            DeleteRecipe(object, to_.lookup.RecipeName(object).value_or(""), RecipeEnd::Deleted);
    }
    to_.database.Execute("DELETE FROM FOLDERS WHERE " + FolderCondition(kind) + " AND ID = ?", {id});
    to_.tree.Remove(FolderKey(kind, id));
    if (!forStyles) to_.listener.NotifyRecipeFolderDeleted(id);
}

void ObjectDeletions::DeleteRecipeById(std::int64_t id, RecipeEnd why) {
    const std::optional<std::string> name = to_.lookup.RecipeName(id);
    if (name) to_.runner.RunDeletion([&] { DeleteRecipe(id, *name, why); });
}

std::optional<std::int64_t> ObjectDeletions::DeleteRecipeByName(std::string_view name, RecipeEnd why) {
    // The id 0 can mean that there is no such recipe, but can also be that of a recipe.
    const std::int64_t id = to_.lookup.IdByName(name, "RECIPES");
    if (id == 0 && !to_.lookup.NameExists(name, "RECIPES")) return std::nullopt;
    DeleteRecipeById(id, why);
    return id;
}

void ObjectDeletions::DeleteRecipe(std::int64_t id, const std::string& name, RecipeEnd why) {
    DeleteRecipeRows(to_.database, id, why);
    for (int copy = 0; copy < kRecipeCopies; ++copy) to_.tree.Remove(RecipeKey(id, copy));
    to_.listener.NotifyRecipeDeleted(name);
}

void ObjectDeletions::DeleteStyleById(std::int64_t id) {
    if (to_.lookup.StyleName(id)) to_.runner.RunDeletion([&] { DeleteStyle(id); });
}

void ObjectDeletions::DeleteStyle(std::int64_t id) {
    for (const std::int64_t recipe : to_.lookup.RecipesOfStyle(id))
        moves_.ChangeStyle(recipe, to_.lookup.RecipeName(recipe).value_or(""), 0);
    to_.database.Execute("DELETE FROM STYLES WHERE ID = ?", {id});
    for (int copy = 0; copy < kStyleCopies; ++copy) to_.tree.Remove(StyleKey(id, copy));
    to_.listener.NotifyStyleDeleted(id);
}

}  // namespace tw
