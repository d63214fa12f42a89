// Keys, look-ups, the tree's entries, and what the operations share.
#include "tree/DB_IO.h"

#include <algorithm>

#include "store/RowNames.h"
#include "tree/NodeKey.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kSystemFolders[] = {kAllRecipesKey, kRecipeFoldersKey, kAllStylesKey,
                                               kStyleFoldersKey};

bool IsFolder(std::string_view key) {
    return IsRecipeFolderKey(key) || IsStyleFolderKey(key);
}

bool IsSystemFolder(std::string_view key) {
    return std::ranges::find(kSystemFolders, key) != std::end(kSystemFolders);
}

// The id that a row refers to; nobody's for NULL.
std::int64_t LinkOf(const Field& field) {
    return field.IsNull() ? kNoId : field.Integer();
}

}  // namespace

bool CanDeleteNode(std::string_view key) {
    if (IsFolder(key)) return !IsSystemFolder(key);
    return IsRecipeKey(key) || (IsStyleKey(key) && !IsNoStyleKey(key));
}

bool CanRenameNode(std::string_view key) {
    return CanDeleteNode(key);
}

bool CanHoldFolders(std::string_view key) {
    return IsFolder(key) && key != kAllRecipesKey && key != kAllStylesKey;
}

bool CanDropOn(std::string_view sourceKey, std::string_view destKey) {
    if (IsSystemFolder(sourceKey) || IsNoStyleKey(sourceKey) || sourceKey == destKey) return false;
    const bool ontoRecipeFolder = IsRecipeFolderKey(destKey) && destKey != kAllRecipesKey;
    const bool ontoStyleFolder = IsStyleFolderKey(destKey) && destKey != kAllStylesKey;
    if (IsRecipeFolderKey(sourceKey)) return ontoRecipeFolder;
    if (IsRecipeKey(sourceKey)) return ontoRecipeFolder || IsStyleKey(destKey);
    return (IsStyleFolderKey(sourceKey) || IsStyleKey(sourceKey)) && ontoStyleFolder;
}

bool DB_IO::IsSubFolder(std::string_view sourceKey, std::string_view destKey) const {
    return sourceKey == destKey || tree_.IsBelow(std::string(destKey), std::string(sourceKey));
}

bool DB_IO::MoveObject(std::string_view sourceKey, std::string_view destKey, bool silent) {
    if (IsSubFolder(sourceKey, destKey)) return RefuseSubFolder(silent);
    if (!CanDropOn(sourceKey, destKey)) return Refuse("Could not move object", "Invalid Destination", silent);
    const std::int64_t source = IdOfKey(sourceKey);
    const std::int64_t dest = IdOfKey(destKey);
    if (IsRecipeFolderKey(sourceKey)) return MoveRecipeFolder(source, dest, silent);
    if (IsStyleFolderKey(sourceKey)) return MoveStyleFolder(source, dest, silent);
    if (IsStyleKey(sourceKey)) return MoveStyleToFolder(source, dest, silent);
    return IsStyleKey(destKey) ? MoveRecipeToStyle(source, dest, silent)
                               : MoveRecipeToFolder(source, dest, silent);
}

bool DB_IO::RenameObject(std::string_view key, std::string_view newName, bool silent) {
    if (!CanRenameNode(key)) return Refuse("Could not rename object", "Invalid Object", silent);
    const std::int64_t id = IdOfKey(key);
    if (IsRecipeFolderKey(key)) return RenameRecipeFolder(id, newName, silent);
    if (IsStyleFolderKey(key)) return RenameStyleFolder(id, newName, silent);
    if (IsStyleKey(key)) return RenameStyle(id, newName, silent);
    return RenameRecipe(id, newName, silent);
}

void DB_IO::DeleteObject(std::string_view key) {
    if (!CanDeleteNode(key)) return;
    const std::int64_t id = IdOfKey(key);
    if (IsRecipeFolderKey(key)) return DeleteRecipeFolder(id);
    if (IsStyleFolderKey(key)) return DeleteStyleFolder(id);
    if (IsStyleKey(key)) return DeleteStyleById(id);
    DeleteRecipeById(id);
}

std::string DB_IO::CreateFolderObject(std::string_view parentKey, std::string_view name, bool silent) {
    if (!CanHoldFolders(parentKey)) {
        Refuse("Could not create new folder", "Invalid Parent Object", silent);
        return {};
    }
    const FolderKind kind = IsRecipeFolderKey(parentKey) ? FolderKind::Recipes : FolderKind::Styles;
    const std::int64_t id = CreateFolder(kind, IdOfKey(parentKey), name, silent);
    return id < 0 ? std::string() : FolderKey(kind, id);
}

std::int64_t DB_IO::IdByName(std::string_view name, std::string_view table) {
    return tw::IdByName(database_, table, name);
}

std::string DB_IO::NameById(std::int64_t id, std::string_view table) {
    return tw::NameById(database_, table, id).value_or("");
}

bool DB_IO::RecipeNameExists(std::string_view name) {
    return !RowsByName(database_, "RECIPES", "*", name).AtEnd();
}

bool DB_IO::StyleNameExists(std::string_view name) {
    return !RowsByName(database_, "STYLES", "*", name).AtEnd();
}

bool DB_IO::RecipeFolderNameExists(std::int64_t parentId, std::string_view name) {
    return FolderNameExists(FolderKind::Recipes, parentId, name);
}

bool DB_IO::StyleFolderNameExists(std::int64_t parentId, std::string_view name) {
    return FolderNameExists(FolderKind::Styles, parentId, name);
}

bool DB_IO::FolderNameExists(FolderKind kind, std::int64_t parentId, std::string_view name) {
    return !database_
                .OpenRecordset(
                    "SELECT * FROM FOLDERS WHERE " + Condition(kind) + " AND PARENT_ID = ? AND NAME = ?",
                    {parentId, Trim(name)})
                .AtEnd();
}

std::vector<std::int64_t> DB_IO::Ids(const std::string& sql, const SqlValues& values) {
    std::vector<std::int64_t> ids;
    for (Recordset rows = database_.OpenRecordset(sql, values); !rows.AtEnd(); rows.MoveNext())
        ids.push_back(rows.Fields(0).Integer());
    return ids;
}

std::vector<std::int64_t> DB_IO::RecipesOfStyle(std::int64_t styleId) {
    return Ids("SELECT ID FROM RECIPES WHERE STYLE_ID = ?", {styleId});
}

std::string DB_IO::FolderKey(FolderKind kind, std::int64_t id) {
    return kind == FolderKind::Styles ? StyleFolderKey(id) : RecipeFolderKey(id);
}

std::optional<std::string> DB_IO::ObjectName(const std::string& key, std::string_view table,
                                             std::int64_t id) {
    if (auto name = tree_.NameOf(key)) return name;
    return tw::NameById(database_, table, id);
}

std::optional<std::string> DB_IO::RecipeName(std::int64_t id) {
    return ObjectName(RecipeKey(id, 0), "RECIPES", id);
}

std::optional<std::string> DB_IO::StyleName(std::int64_t id) {
    // 0 is "(None)".
    return id == 0 ? std::nullopt : ObjectName(StyleKey(id, 0), "STYLES", id);
}

bool DB_IO::IsFolder(FolderKind kind, std::int64_t id) const {
    return id != kAllObjects && tree_.NameOf(FolderKey(kind, id)).has_value();
}

void DB_IO::AddRecipeNodes(std::int64_t id, std::string_view name, std::int64_t folderId,
                           std::int64_t styleId) {
    const std::string text(name);
    tree_.Place(RecipeKey(id, 0), std::string(kAllRecipesKey), text);
    for (int copy = 0; copy < kStyleCopies; ++copy)
        tree_.Place(RecipeKey(id, copy + 1), StyleKey(styleId, copy), text);
    if (IsFolder(FolderKind::Recipes, folderId))
        tree_.Place(RecipeKey(id, kCopyInFolder), FolderKey(FolderKind::Recipes, folderId), text);
    TouchRecipeFolder(folderId);
}

void DB_IO::AddRecipeNodesByName(std::string_view name) {
    struct Row {
        std::int64_t id, folderId, styleId;
        std::string name;
    };
    std::vector<Row> found;
    // The name is one recipe's, unless another program has written the file.
    for (Recordset rows = RowsByName(database_, "RECIPES", "ID, FOLDER_ID, STYLE_ID, NAME", name);
         !rows.AtEnd(); rows.MoveNext())
        found.push_back({rows.Fields(0).Integer(), LinkOf(rows.Fields(1)), LinkOf(rows.Fields(2)),
                         rows.Fields(3).Text()});
    for (const Row& row : found)
        if (!tree_.NameOf(RecipeKey(row.id, 0))) AddRecipeNodes(row.id, row.name, row.folderId, row.styleId);
}

void DB_IO::AddStyleNodes(std::int64_t id, std::string_view name, std::int64_t folderId) {
    const std::string text(name);
    tree_.Place(StyleKey(id, 0), std::string(kAllStylesKey), text);
    if (IsFolder(FolderKind::Styles, folderId))
        tree_.Place(StyleKey(id, kStyleInFolder), FolderKey(FolderKind::Styles, folderId), text);
    TouchStyleFolder(folderId);
}

void DB_IO::AddStyleNodesByName(std::string_view name) {
    Recordset rows = RowsByName(database_, "STYLES", "ID, FOLDER_ID", name);
    if (rows.AtEnd()) return;
    const std::int64_t id = rows.Fields(0).Integer();
    const std::int64_t folderId = LinkOf(rows.Fields(1));
    rows.Close();
    AddStyleNodes(id, Trim(name), folderId);
}

void DB_IO::RenameStyleNodes(std::int64_t id, std::string_view newName) {
    // 0 is "(None)".
    if (id == 0) return;
    const std::string text(newName);
    for (int copy = 0; copy < kStyleCopies; ++copy) tree_.Rename(StyleKey(id, copy), text);
    listener_.NotifyStyleRenamed(id, text);
}

void DB_IO::RenameStyleNodesByName(std::string_view oldName, std::string_view newName) {
    RenameStyleNodes(StyleIdByName(oldName), newName);
}

void DB_IO::TouchRecipeFolder(std::int64_t folderId) {
    Touch(FolderKind::Recipes, folderId);
}

void DB_IO::TouchStyleFolder(std::int64_t folderId) {
    Touch(FolderKind::Styles, folderId);
}

void DB_IO::Touch(FolderKind kind, std::int64_t id) {
    database_.Execute("UPDATE FOLDERS SET MODIFIED_WHEN = ? WHERE " + Condition(kind) + " AND ID = ?",
                      {DateText(clock_.Now()), id});
}

void DB_IO::TouchFolderOf(FolderKind kind, const std::string& key) {
    const std::string parentKey = tree_.ParentOf(key);
    if (!parentKey.empty()) Touch(kind, IdOfKey(parentKey));
}

bool DB_IO::Refuse(std::string_view title, std::string_view text, bool silent) {
    if (!silent) messages_.ShowMessage(title, text);
    return false;
}

bool DB_IO::RefuseSubFolder(bool silent) {
    return Refuse("Could not move folder", "The destination folder is a sub-folder of the source folder",
                  silent);
}

bool DB_IO::RefuseMissing(std::string_view title, std::string_view object, bool silent) {
    const Error error("DB_IO", "There is no such " + std::string(object) + ".", kMissingNumber);
    return Refuse(title, error.WithSource(), silent);
}

bool DB_IO::Trap(const std::string& title, bool silent, const Operation& operation) {
    try {
        const bool done = operation();
        tree_.CatchUp();
        return done;
    } catch (const Error& error) {
        ShowWhatIsLeft(false);
        return Refuse(title, error.WithSource(), silent);
    }
}

void DB_IO::ShowWhatIsLeft(bool deletion) {
    database_.AfterUnit([&tree = tree_, &listener = listener_, deletion] {
        tree.Reload();
        if (deletion) listener.DeletionEnded();
    });
}

}  // namespace tw
