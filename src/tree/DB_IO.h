// The one writer of folder links and of recipe and style names: each operation changes the database, then the
// tree in the same way, and then tells the open documents.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Ports.h"
#include "store/Database.h"
#include "tree/NewFolders.h"
#include "tree/ObjectDeletions.h"
#include "tree/ObjectListener.h"
#include "tree/ObjectMoves.h"
#include "tree/ObjectNodes.h"
#include "tree/ObjectRenames.h"
#include "tree/ObjectServices.h"
#include "tree/TreeObjects.h"

namespace tw {

// The rules of the keys, on their text alone: nothing is looked up.
bool CanDeleteNode(std::string_view key);
// The same rule.
bool CanRenameNode(std::string_view key);
bool CanHoldFolders(std::string_view key);
// Whether one may be moved onto the other. A recipe may be dropped on "(None)".
bool CanDropOn(std::string_view sourceKey, std::string_view destKey);

// Every operation is one unit on the disk. Asked Quietly it shows no message. Those that move, rename and
// create show a store's error in a box of their own and end with false, -1 or an empty key; from those that
// delete it rises. Either way what was done before the error stays, and the tree is read anew to show just
// that. A folder that the tree does not show, such as one of a ring of folders, is no folder here.
class DB_IO {
  public:
    // REQUIRES: all of them live for as long.
    DB_IO(Database& database, TreeObjects& tree, MessagePort& messages, ClockPort& clock,
          ObjectListener& listener);
    DB_IO(const DB_IO&) = delete;  // its parts refer to each other
    DB_IO& operator=(const DB_IO&) = delete;

    // By keys.

    // False, and nothing is changed, when it is there already.
    bool MoveObject(std::string_view sourceKey, std::string_view destKey, Asking asking = Asking::Aloud);
    bool RenameObject(std::string_view key, std::string_view newName, Asking asking = Asking::Aloud);
    // Asks nothing; does nothing for a key that CanDeleteNode refuses and for no object.
    void DeleteObject(std::string_view key);
    // The key of the new folder, empty when it was refused. For a blank name it takes the next free one of
    // "New Folder", "New Folder (2)", ...
    std::string CreateFolderObject(std::string_view parentKey, std::string_view name,
                                   Asking asking = Asking::Aloud);
    // Whether dest is source or stands somewhere below it in the tree.
    bool IsSubFolder(std::string_view sourceKey, std::string_view destKey) const {
        return lookup_.IsSubFolder(sourceKey, destKey);
    }

    // Look-ups. Names are trimmed.

    // ID of the row of that name in the table, 0 when there is none.
    std::int64_t IdByName(std::string_view name, std::string_view table) {
        return lookup_.IdByName(name, table);
    }
    // NAME of the row of that id, empty when there is none.
    std::string NameById(std::int64_t id, std::string_view table) { return lookup_.NameById(id, table); }
    std::int64_t StyleIdByName(std::string_view name) { return lookup_.IdByName(name, "STYLES"); }
    std::string StyleNameById(std::int64_t id) { return NameById(id, "STYLES"); }
    std::string RecipeNameById(std::int64_t id) { return NameById(id, "RECIPES"); }
    bool RecipeNameExists(std::string_view name) { return lookup_.NameExists(name, "RECIPES"); }
    bool StyleNameExists(std::string_view name) { return lookup_.NameExists(name, "STYLES"); }
    // Directly below that folder.
    bool RecipeFolderNameExists(std::int64_t parentId, std::string_view name) {
        return lookup_.FolderNameExists(FolderKind::Recipes, parentId, name);
    }
    bool StyleFolderNameExists(std::int64_t parentId, std::string_view name) {
        return lookup_.FolderNameExists(FolderKind::Styles, parentId, name);
    }

    // By ids.

    bool MoveRecipeFolder(std::int64_t folderId, std::int64_t destFolderId, Asking asking = Asking::Aloud) {
        return moves_.MoveFolder(FolderKind::Recipes, folderId, destFolderId, asking);
    }
    bool MoveStyleFolder(std::int64_t folderId, std::int64_t destFolderId, Asking asking = Asking::Aloud) {
        return moves_.MoveFolder(FolderKind::Styles, folderId, destFolderId, asking);
    }
    // Touches the old folder and the new one, as MoveStyleToFolder.
    bool MoveRecipeToFolder(std::int64_t recipeId, std::int64_t folderId, Asking asking = Asking::Aloud) {
        return moves_.MoveRecipeToFolder(recipeId, folderId, asking);
    }
    // Style 0 is none. Touches nothing.
    bool MoveRecipeToStyle(std::int64_t recipeId, std::int64_t styleId, Asking asking = Asking::Aloud) {
        return moves_.MoveRecipeToStyle(recipeId, styleId, asking);
    }
    bool MoveStyleToFolder(std::int64_t styleId, std::int64_t folderId, Asking asking = Asking::Aloud) {
        return moves_.MoveStyleToFolder(styleId, folderId, asking);
    }
    bool MoveStyleToFolderByName(std::string_view name, std::int64_t folderId,
                                 Asking asking = Asking::Aloud) {
        return moves_.MoveStyleToFolderByName(name, folderId, asking);
    }

    // A change of case alone is allowed. The database takes the name trimmed, the tree as it is typed, until
    // the next start: intended.
    bool RenameRecipeFolder(std::int64_t id, std::string_view newName, Asking asking = Asking::Aloud) {
        return renames_.RenameFolder(FolderKind::Recipes, id, newName, asking);
    }
    bool RenameStyleFolder(std::int64_t id, std::string_view newName, Asking asking = Asking::Aloud) {
        return renames_.RenameFolder(FolderKind::Styles, id, newName, asking);
    }
    bool RenameRecipe(std::int64_t id, std::string_view newName, Asking asking = Asking::Aloud) {
        return renames_.RenameRecipe(id, newName, asking);
    }
    bool RenameStyle(std::int64_t id, std::string_view newName, Asking asking = Asking::Aloud) {
        return renames_.RenameStyle(id, newName, asking);
    }

    // With all folders and recipes below. The folder above is not touched, by any deletion.
    void DeleteRecipeFolder(std::int64_t id) { deletions_.DeleteFolder(FolderKind::Recipes, id); }
    // With all folders and styles below; their recipes lose their style.
    void DeleteStyleFolder(std::int64_t id) { deletions_.DeleteFolder(FolderKind::Styles, id); }
    // With its lines in RECIPE_GRAINS, RECIPE_HOPS, RECIPE_ADJUNCTS and RECIPE_LOG. The rows of RECIPE_SALTS
    // and RECIPE_SUGARS stay behind: intended. An id that names no recipe notifies nobody.
    void DeleteRecipeById(std::int64_t id) { deletions_.DeleteRecipeById(id); }
    void DeleteRecipeByName(std::string_view name) { deletions_.DeleteRecipeByName(name); }
    // Its recipes lose their style.
    void DeleteStyleById(std::int64_t id) { deletions_.DeleteStyleById(id); }

    // The new id, -1 when it was refused. The parent is not touched.
    std::int64_t CreateRecipeFolder(std::int64_t parentId, std::string_view name,
                                    Asking asking = Asking::Aloud) {
        return newFolders_.CreateFolder(FolderKind::Recipes, parentId, name, asking);
    }
    std::int64_t CreateStyleFolder(std::int64_t parentId, std::string_view name,
                                   Asking asking = Asking::Aloud) {
        return newFolders_.CreateFolder(FolderKind::Styles, parentId, name, asking);
    }

    // Bring the tree in step with a row that has just been written, and touch its folder. ByName looks the
    // row up and does nothing when there is none.
    void AddRecipeNodes(std::int64_t id, std::string_view name, std::int64_t folderId, std::int64_t styleId) {
        nodes_.AddRecipeNodes(id, name, folderId, styleId);
    }
    void AddRecipeNodesByName(std::string_view name) { nodes_.AddRecipeNodesByName(name); }
    void AddStyleNodes(std::int64_t id, std::string_view name, std::int64_t folderId) {
        nodes_.AddStyleNodes(id, name, folderId);
    }
    void AddStyleNodesByName(std::string_view name) { nodes_.AddStyleNodesByName(name); }
    // The name in the tree and in the open documents. ByName: of the style that still has the old name.
    void RenameStyleNodes(std::int64_t id, std::string_view newName) { nodes_.RenameStyleNodes(id, newName); }
    void RenameStyleNodesByName(std::string_view oldName, std::string_view newName) {
        nodes_.RenameStyleNodes(StyleIdByName(oldName), newName);
    }
    // Tells the open documents that the row of a style has just been written.
    void StyleStored() { services_.listener.NotifyStyleStored(); }
    // MODIFIED_WHEN of that one folder becomes now; a folder id of 0 matches no row.
    void TouchRecipeFolder(std::int64_t folderId) { dates_.Touch(FolderKind::Recipes, folderId); }
    void TouchStyleFolder(std::int64_t folderId) { dates_.Touch(FolderKind::Styles, folderId); }

  private:
    ObjectLookup lookup_;
    OperationRunner runner_;
    FolderDates dates_;
    ObjectServices services_;
    ObjectNodes nodes_;
    ObjectMoves moves_;
    ObjectRenames renames_;
    NewFolders newFolders_;
    ObjectDeletions deletions_;
};

}  // namespace tw
