#include "tree/DB_IO.h"

#include <algorithm>

#include "tree/NodeKey.h"

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

DB_IO::DB_IO(Database& database, TreeObjects& tree, MessagePort& messages, ClockPort& clock,
             ObjectListener& listener)
    : lookup_(database, tree),
      runner_(database, tree, messages, listener),
      dates_(database, tree, clock),
      services_{database, tree, listener, lookup_, runner_, dates_},
      nodes_(services_),
      moves_(services_),
      renames_(services_, nodes_),
      newFolders_(services_),
      deletions_(services_, moves_) {}

bool DB_IO::MoveObject(std::string_view sourceKey, std::string_view destKey, Asking asking) {
    if (IsSubFolder(sourceKey, destKey)) return runner_.RefuseSubFolder(asking);
    if (!CanDropOn(sourceKey, destKey))
        return runner_.Refuse("Could not move object", "Invalid Destination", asking);
    const std::int64_t source = IdOfKey(sourceKey);
    const std::int64_t dest = IdOfKey(destKey);
    if (IsRecipeFolderKey(sourceKey)) return MoveRecipeFolder(source, dest, asking);
    if (IsStyleFolderKey(sourceKey)) return MoveStyleFolder(source, dest, asking);
    if (IsStyleKey(sourceKey)) return MoveStyleToFolder(source, dest, asking);
    return IsStyleKey(destKey) ? MoveRecipeToStyle(source, dest, asking)
                               : MoveRecipeToFolder(source, dest, asking);
}

bool DB_IO::RenameObject(std::string_view key, std::string_view newName, Asking asking) {
    if (!CanRenameNode(key)) return runner_.Refuse("Could not rename object", "Invalid Object", asking);
    const std::int64_t id = IdOfKey(key);
    if (IsRecipeFolderKey(key)) return RenameRecipeFolder(id, newName, asking);
    if (IsStyleFolderKey(key)) return RenameStyleFolder(id, newName, asking);
    if (IsStyleKey(key)) return RenameStyle(id, newName, asking);
    return RenameRecipe(id, newName, asking);
}

void DB_IO::DeleteObject(std::string_view key) {
    if (!CanDeleteNode(key)) return;
    const std::int64_t id = IdOfKey(key);
    if (IsRecipeFolderKey(key)) return DeleteRecipeFolder(id);
    if (IsStyleFolderKey(key)) return DeleteStyleFolder(id);
    if (IsStyleKey(key)) return DeleteStyleById(id);
    DeleteRecipeById(id);
}

std::string DB_IO::CreateFolderObject(std::string_view parentKey, std::string_view name, Asking asking) {
    if (!CanHoldFolders(parentKey)) {
        runner_.Refuse("Could not create new folder", "Invalid Parent Object", asking);
        return {};
    }
    const FolderKind kind = IsRecipeFolderKey(parentKey) ? FolderKind::Recipes : FolderKind::Styles;
    const std::int64_t id = newFolders_.CreateFolder(kind, IdOfKey(parentKey), name, asking);
    return id < 0 ? std::string() : FolderKey(kind, id);
}

}  // namespace tw
