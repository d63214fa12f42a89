// Deleting objects with all that hangs on them.
#include <unordered_set>

#include "tree/DB_IO.h"
#include "tree/NodeKey.h"
#include "values/Text.h"

namespace tw {

void DB_IO::RunDeletion(const std::function<void()>& deletion) {
    try {
        UnitOfWork unit(database_);
        deletion();
        unit.Commit();
    } catch (const Error&) {
        ShowWhatIsLeft(true);
        throw;
    }
    tree_.CatchUp();
    listener_.DeletionEnded();
}

void DB_IO::DeleteRecipeFolder(std::int64_t id) {
    if (id != 0 && IsFolder(FolderKind::Recipes, id))
        RunDeletion([&] { DeleteFolder(FolderKind::Recipes, id); });
}

void DB_IO::DeleteStyleFolder(std::int64_t id) {
    if (id != 0 && IsFolder(FolderKind::Styles, id))
        RunDeletion([&] { DeleteFolder(FolderKind::Styles, id); });
}

// Depth first, with a list instead of a recursion: how deep folders lie in each other is up to the data.
void DB_IO::DeleteFolder(FolderKind kind, std::int64_t id) {
    struct Level {
        std::int64_t id;
        std::vector<std::int64_t> folders;
        std::size_t next;
    };
    // Of folders that have come to lie in a ring, each goes once. A row with the id of a system folder would
    // take all that lies in that one along.
    std::unordered_set<std::int64_t> seen = {id, 0, kAllObjects};
    const auto open = [&](std::int64_t folder) -> Level {
        return {folder,
                Ids("SELECT ID FROM FOLDERS WHERE " + Condition(kind) + " AND PARENT_ID = ?", {folder}), 0};
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

void DB_IO::DeleteEmptied(FolderKind kind, std::int64_t id) {
    const bool forStyles = kind == FolderKind::Styles;
    for (const std::int64_t object : Ids(forStyles ? "SELECT ID FROM STYLES WHERE FOLDER_ID = ?"
                                                   : "SELECT ID FROM RECIPES WHERE FOLDER_ID = ?",
                                         {id})) {
        if (forStyles)
            DeleteStyle(object);
        else
            DeleteRecipe(object, RecipeName(object).value_or(""));
    }
    database_.Execute("DELETE FROM FOLDERS WHERE " + Condition(kind) + " AND ID = ?", {id});
    tree_.Remove(FolderKey(kind, id));
    if (!forStyles) listener_.NotifyRecipeFolderDeleted(id);
}

void DB_IO::DeleteRecipeById(std::int64_t id) {
    const std::optional<std::string> name = RecipeName(id);
    if (name) RunDeletion([&] { DeleteRecipe(id, *name); });
}

void DB_IO::DeleteRecipeByName(std::string_view name) {
    // 0 stands for no such recipe, but may be the id of one.
    const std::int64_t id = IdByName(name, "RECIPES");
    if (id != 0 || RecipeNameExists(name)) DeleteRecipeById(id);
}

void DB_IO::DeleteRecipe(std::int64_t id, const std::string& name) {
    database_.Execute("DELETE FROM RECIPES WHERE ID = ?", {id});
    for (const char* lines : {"RECIPE_GRAINS", "RECIPE_HOPS", "RECIPE_ADJUNCTS", "RECIPE_LOG"})
        database_.Execute("DELETE FROM " + std::string(lines) + " WHERE RECIPE_ID = ?", {id});
    for (int copy = 0; copy < kRecipeCopies; ++copy) tree_.Remove(RecipeKey(id, copy));
    listener_.NotifyRecipeDeleted(name);
}

void DB_IO::DeleteStyleById(std::int64_t id) {
    if (StyleName(id)) RunDeletion([&] { DeleteStyle(id); });
}

void DB_IO::DeleteStyle(std::int64_t id) {
    for (const std::int64_t recipe : RecipesOfStyle(id))
        ChangeStyle(recipe, RecipeName(recipe).value_or(""), 0);
    database_.Execute("DELETE FROM STYLES WHERE ID = ?", {id});
    for (int copy = 0; copy < kStyleCopies; ++copy) tree_.Remove(StyleKey(id, copy));
    listener_.NotifyStyleDeleted(id);
}

}  // namespace tw
