// Moving, renaming and creating objects.
#include "tree/DB_IO.h"
#include "tree/NodeKey.h"
#include "values/Text.h"

namespace tw {

bool DB_IO::MoveRecipeFolder(std::int64_t folderId, std::int64_t destFolderId, bool silent) {
    return MoveFolder(FolderKind::Recipes, folderId, destFolderId, silent);
}

bool DB_IO::MoveStyleFolder(std::int64_t folderId, std::int64_t destFolderId, bool silent) {
    return MoveFolder(FolderKind::Styles, folderId, destFolderId, silent);
}

bool DB_IO::MoveFolder(FolderKind kind, std::int64_t id, std::int64_t destId, bool silent) {
    const std::string word = FolderWord(kind);
    const std::string errorTitle = "Error moving " + word;
    return Trap(errorTitle, silent, [&] {
        const std::string key = FolderKey(kind, id);
        const std::string destKey = FolderKey(kind, destId);
        if (id == 0 || !IsFolder(kind, id) || !IsFolder(kind, destId))
            return RefuseMissing(errorTitle, word, silent);
        if (tree_.ParentOf(key) == destKey) return false;
        // A folder below itself would be a ring that nobody could reach.
        if (IsSubFolder(key, destKey)) return RefuseSubFolder(silent);
        const std::string name = tree_.NameOf(key).value_or("");
        if (FolderNameExists(kind, destId, name))
            return Refuse("Could not move " + word,
                          "The destination folder already contains a folder with that name", silent);
        UnitOfWork unit(database_);
        database_.Execute("UPDATE FOLDERS SET PARENT_ID = ? WHERE " + Condition(kind) + " AND ID = ?",
                          {destId, id});
        TouchFolderOf(kind, key);
        Touch(kind, destId);
        unit.Commit();
        tree_.Place(key, destKey, name);
        return true;
    });
}

bool DB_IO::MoveRecipeToFolder(std::int64_t recipeId, std::int64_t folderId, bool silent) {
    const std::string errorTitle = "Error moving recipe to folder";
    return Trap(errorTitle, silent, [&] {
        const std::optional<std::string> name = RecipeName(recipeId);
        if (!name) return RefuseMissing(errorTitle, "recipe", silent);
        if (!IsFolder(FolderKind::Recipes, folderId))
            return RefuseMissing(errorTitle, "recipe folder", silent);
        const std::string key = RecipeKey(recipeId, kCopyInFolder);
        const std::string folderKey = FolderKey(FolderKind::Recipes, folderId);
        if (tree_.ParentOf(key) == folderKey) return false;
        UnitOfWork unit(database_);
        database_.Execute("UPDATE RECIPES SET FOLDER_ID = ? WHERE ID = ?", {folderId, recipeId});
        TouchFolderOf(FolderKind::Recipes, key);
        TouchRecipeFolder(folderId);
        unit.Commit();
        tree_.Place(key, folderKey, *name);
        listener_.NotifyRecipeMoved(*name, folderId);
        return true;
    });
}

bool DB_IO::MoveRecipeToStyle(std::int64_t recipeId, std::int64_t styleId, bool silent) {
    const std::string errorTitle = "Error moving recipe to style";
    return Trap(errorTitle, silent, [&] {
        const std::optional<std::string> name = RecipeName(recipeId);
        if (!name) return RefuseMissing(errorTitle, "recipe", silent);
        if (styleId != 0 && !StyleName(styleId)) return RefuseMissing(errorTitle, "style", silent);
        ChangeStyle(recipeId, *name, styleId);
        return true;
    });
}

void DB_IO::ChangeStyle(std::int64_t recipeId, const std::string& name, std::int64_t styleId) {
    database_.Execute("UPDATE RECIPES SET STYLE_ID = ? WHERE ID = ?", {styleId, recipeId});
    for (int copy = 0; copy < kStyleCopies; ++copy)
        tree_.Place(RecipeKey(recipeId, copy + 1), StyleKey(styleId, copy), name);
    listener_.NotifyRecipeNewStyle(name, styleId);
}

bool DB_IO::MoveStyleToFolder(std::int64_t styleId, std::int64_t folderId, bool silent) {
    const std::string errorTitle = "Error moving style";
    return Trap(errorTitle, silent, [&] {
        const std::optional<std::string> name = StyleName(styleId);
        if (!name) return RefuseMissing(errorTitle, "style", silent);
        if (!IsFolder(FolderKind::Styles, folderId)) return RefuseMissing(errorTitle, "style folder", silent);
        const std::string key = StyleKey(styleId, kStyleInFolder);
        const std::string folderKey = FolderKey(FolderKind::Styles, folderId);
        const bool wasNowhere = !tree_.NameOf(key);
        if (tree_.ParentOf(key) == folderKey) return false;
        UnitOfWork unit(database_);
        database_.Execute("UPDATE STYLES SET FOLDER_ID = ? WHERE ID = ?", {folderId, styleId});
        TouchFolderOf(FolderKind::Styles, key);
        TouchStyleFolder(folderId);
        unit.Commit();
        tree_.Place(key, folderKey, *name);
        if (wasNowhere) ShowRecipesInFolderOf(styleId);
        return true;
    });
}

void DB_IO::ShowRecipesInFolderOf(std::int64_t styleId) {
    for (const std::int64_t recipe : RecipesOfStyle(styleId))
        tree_.Place(RecipeKey(recipe, 2), StyleKey(styleId, kStyleInFolder), RecipeName(recipe).value_or(""));
}

bool DB_IO::MoveStyleToFolderByName(std::string_view name, std::int64_t folderId, bool silent) {
    std::int64_t id = 0;
    return Trap("Error moving style", silent,
                [&] {
                    id = StyleIdByName(name);
                    return true;
                }) &&
           MoveStyleToFolder(id, folderId, silent);
}

bool DB_IO::CheckNewName(const std::string& object, std::string_view oldName, std::string_view newName,
                         const Operation& nameExists, bool silent) {
    const std::string title = "Could not rename " + object;
    if (IsBlank(newName)) return Refuse(title, "You must type a name", silent);
    if (!nameExists() || SameName(newName, oldName)) return true;
    const std::string word = object.ends_with("folder") ? "folder" : object;
    return Refuse(title, "A " + word + " with that name already exists", silent);
}

bool DB_IO::RenameRecipeFolder(std::int64_t id, std::string_view newName, bool silent) {
    return RenameFolder(FolderKind::Recipes, id, newName, silent);
}

bool DB_IO::RenameStyleFolder(std::int64_t id, std::string_view newName, bool silent) {
    return RenameFolder(FolderKind::Styles, id, newName, silent);
}

bool DB_IO::RenameFolder(FolderKind kind, std::int64_t id, std::string_view newName, bool silent) {
    const std::string word = FolderWord(kind);
    const std::string errorTitle = "Error renaming " + word;
    return Trap(errorTitle, silent, [&] {
        const std::string key = FolderKey(kind, id);
        if (id == 0 || !IsFolder(kind, id)) return RefuseMissing(errorTitle, word, silent);
        const auto nameExists = [&] { return FolderNameExists(kind, IdOfKey(tree_.ParentOf(key)), newName); };
        if (!CheckNewName(word, tree_.NameOf(key).value_or(""), newName, nameExists, silent)) return false;
        UnitOfWork unit(database_);
        database_.Execute("UPDATE FOLDERS SET NAME = ? WHERE " + Condition(kind) + " AND ID = ?",
                          {Trim(newName), id});
        TouchFolderOf(kind, key);
        unit.Commit();
        tree_.Rename(key, std::string(newName));
        return true;
    });
}

bool DB_IO::RenameRecipe(std::int64_t id, std::string_view newName, bool silent) {
    const std::string errorTitle = "Error renaming recipe";
    return Trap(errorTitle, silent, [&] {
        const std::optional<std::string> oldName = RecipeName(id);
        if (!oldName) return RefuseMissing(errorTitle, "recipe", silent);
        const auto nameExists = [&] { return RecipeNameExists(newName); };
        if (!CheckNewName("recipe", *oldName, newName, nameExists, silent)) return false;
        UnitOfWork unit(database_);
        database_.Execute("UPDATE RECIPES SET NAME = ? WHERE ID = ?", {Trim(newName), id});
        TouchFolderOf(FolderKind::Recipes, RecipeKey(id, kCopyInFolder));
        unit.Commit();
        const std::string text(newName);
        for (int copy = 0; copy < kRecipeCopies; ++copy) tree_.Rename(RecipeKey(id, copy), text);
        listener_.NotifyRecipeRenamed(*oldName, text);
        return true;
    });
}

bool DB_IO::RenameStyle(std::int64_t id, std::string_view newName, bool silent) {
    const std::string errorTitle = "Error renaming style";
    return Trap(errorTitle, silent, [&] {
        const std::optional<std::string> oldName = StyleName(id);
        if (!oldName) return RefuseMissing(errorTitle, "style", silent);
        const auto nameExists = [&] { return StyleNameExists(newName); };
        if (!CheckNewName("style", *oldName, newName, nameExists, silent)) return false;
        UnitOfWork unit(database_);
        database_.Execute("UPDATE STYLES SET NAME = ? WHERE ID = ?", {Trim(newName), id});
        TouchFolderOf(FolderKind::Styles, StyleKey(id, kStyleInFolder));
        unit.Commit();
        RenameStyleNodes(id, newName);
        return true;
    });
}

std::int64_t DB_IO::CreateRecipeFolder(std::int64_t parentId, std::string_view name, bool silent) {
    return CreateFolder(FolderKind::Recipes, parentId, name, silent);
}

std::int64_t DB_IO::CreateStyleFolder(std::int64_t parentId, std::string_view name, bool silent) {
    return CreateFolder(FolderKind::Styles, parentId, name, silent);
}

std::int64_t DB_IO::CreateFolder(FolderKind kind, std::int64_t parentId, std::string_view name, bool silent) {
    const std::string word = FolderWord(kind);
    const std::string errorTitle = "Error creating new " + word;
    std::int64_t id = -1;
    const bool created = Trap(errorTitle, silent, [&] {
        if (!IsFolder(kind, parentId)) return RefuseMissing(errorTitle, word, silent);
        const std::string parentKey = FolderKey(kind, parentId);
        const std::string text = IsBlank(name) ? NextNewFolderName(parentKey) : std::string(Trim(name));
        if (FolderNameExists(kind, parentId, text))
            return Refuse("Could not create new " + word, "A folder with that name already exists", silent);
        id = InsertFolder(kind, parentId, text);
        tree_.Place(FolderKey(kind, id), parentKey, text);
        return true;
    });
    return created ? id : -1;
}

std::int64_t DB_IO::InsertFolder(FolderKind kind, std::int64_t parentId, const std::string& name) {
    const std::string now = DateText(clock_.Now());
    UnitOfWork unit(database_);
    database_.Execute(
        "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE, CREATED_WHEN, MODIFIED_WHEN) VALUES (?, ?, ?, ?, ?)",
        {parentId, name, kind == FolderKind::Styles, now, now});
    const std::vector<std::int64_t> ids =
        Ids("SELECT ID FROM FOLDERS WHERE " + Condition(kind) + " AND PARENT_ID = ? AND NAME = ?",
            {parentId, name});
    unit.Commit();
    if (ids.empty()) throw Error("DB_IO", "The new folder cannot be found.", kMissingNumber);
    return ids.front();
}

std::string DB_IO::NextNewFolderName(const std::string& parentKey) const {
    std::string name = "New Folder";
    for (int counter = 2; tree_.ChildNameExists(parentKey, name); ++counter)
        name = "New Folder (" + std::to_string(counter) + ")";
    return name;
}

}  // namespace tw
