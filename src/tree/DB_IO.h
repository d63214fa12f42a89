// The only writer of folder links and of recipe and style names. Each operation changes the database, then
// updates the tree, and then notifies the open documents.
#pragma once

#include <cstdint>
#include <optional>
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

// These rules depend on the text of the keys only; nothing is looked up.
bool CanDeleteNode(std::string_view key);
// CanRenameNode follows the same rule as CanDeleteNode.
bool CanRenameNode(std::string_view key);
bool CanHoldFolders(std::string_view key);
// True if the source may be moved onto the destination. A recipe may be dropped on "(None)".
bool CanDropOn(std::string_view sourceKey, std::string_view destKey);

// Every operation is one unit on the disk. With Asking::Quietly it shows no messages. Operations that move,
// rename or create show a store's error in a message box and return false, -1 or an empty key; those that
// delete raise the error. In both cases, what was done before the error is kept, and the tree is read again
// to show exactly that. A folder that the tree does not show, such as one in a ring of folders, counts
// as missing.
class DB_IO {
  public:
    // REQUIRES: all arguments outlive the object.
    DB_IO(Database& database, TreeObjects& tree, MessagePort& messages, ClockPort& clock,
          ObjectListener& listener);
    DB_IO(const DB_IO&) = delete;  // its parts refer to each other
    DB_IO& operator=(const DB_IO&) = delete;

    // Operations on keys.

    // Moves the object. False, without a change, if the move is refused or the object is there already; a
    // recipe moved to the style that it has is moved again.
    bool MoveObject(std::string_view sourceKey, std::string_view destKey, Asking asking = Asking::Aloud);
    bool RenameObject(std::string_view key, std::string_view newName, Asking asking = Asking::Aloud);
    // Deletes without asking. Does nothing for a key that CanDeleteNode refuses, or if there is no
    // such object.
    void DeleteObject(std::string_view key);
    // Returns the key of the new folder; empty if the folder was refused. A blank name becomes the next
    // unused one of "New Folder", "New Folder (2)", ...
    std::string CreateFolderObject(std::string_view parentKey, std::string_view name,
                                   Asking asking = Asking::Aloud);
    // True if dest is source or is below it in the tree.
    bool IsSubFolder(std::string_view sourceKey, std::string_view destKey) const {
        return lookup_.IsSubFolder(sourceKey, destKey);
    }

    // Look-ups. Names are trimmed.

    // Returns the ID of the row of that name in the table; 0 if there is none.
    std::int64_t IdByName(std::string_view name, std::string_view table) {
        return lookup_.IdByName(name, table);
    }
    // Returns the NAME of the row of that id; empty if there is none.
    std::string NameById(std::int64_t id, std::string_view table) { return lookup_.NameById(id, table); }
    std::int64_t StyleIdByName(std::string_view name) { return lookup_.IdByName(name, "STYLES"); }
    std::string StyleNameById(std::int64_t id) { return NameById(id, "STYLES"); }
    std::string RecipeNameById(std::int64_t id) { return NameById(id, "RECIPES"); }
    bool RecipeNameExists(std::string_view name) { return lookup_.NameExists(name, "RECIPES"); }
    bool StyleNameExists(std::string_view name) { return lookup_.NameExists(name, "STYLES"); }
    // True if a folder of that name is directly below the parent.
    bool RecipeFolderNameExists(std::int64_t parentId, std::string_view name) {
        return lookup_.FolderNameExists(FolderKind::Recipes, parentId, name);
    }
    bool StyleFolderNameExists(std::int64_t parentId, std::string_view name) {
        return lookup_.FolderNameExists(FolderKind::Styles, parentId, name);
    }

    // Operations on ids.

    bool MoveRecipeFolder(std::int64_t folderId, std::int64_t destFolderId, Asking asking = Asking::Aloud) {
        return moves_.MoveFolder(FolderKind::Recipes, folderId, destFolderId, asking);
    }
    bool MoveStyleFolder(std::int64_t folderId, std::int64_t destFolderId, Asking asking = Asking::Aloud) {
        return moves_.MoveFolder(FolderKind::Styles, folderId, destFolderId, asking);
    }
    // MoveRecipeToFolder and MoveStyleToFolder set the modification date of the old and the new folder.
    bool MoveRecipeToFolder(std::int64_t recipeId, std::int64_t folderId, Asking asking = Asking::Aloud) {
        return moves_.MoveRecipeToFolder(recipeId, folderId, asking);
    }
    // styleId 0 removes the style. Sets no modification date.
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

    // A name may change in case only. The database stores the name trimmed, whereas the tree shows it as it
    // was typed until it is read again.
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

    // Deletes the folder with all folders and recipes below it. No deletion sets the modification date of the
    // parent folder.
    void DeleteRecipeFolder(std::int64_t id) { deletions_.DeleteFolder(FolderKind::Recipes, id); }
    // Deletes the folder with all folders and styles below it; recipes of these styles lose their style.
    void DeleteStyleFolder(std::int64_t id) { deletions_.DeleteFolder(FolderKind::Styles, id); }
    // Deletes the recipe with its rows in RECIPE_GRAINS, RECIPE_HOPS, RECIPE_ADJUNCTS and RECIPE_LOG. Leaves
    // its rows in RECIPE_SALTS and RECIPE_SUGARS, on purpose: the stored form must not change. Does nothing
    // if there is no such recipe. why is passed on to what follows the recipe (store/RecipeFollowers.h).
    void DeleteRecipeById(std::int64_t id, RecipeEnd why = RecipeEnd::Deleted) {
        deletions_.DeleteRecipeById(id, why);
    }
    // Returns the id of the recipe; nullopt if there is none.
    std::optional<std::int64_t> DeleteRecipeByName(std::string_view name,
                                                   RecipeEnd why = RecipeEnd::Deleted) {
        return deletions_.DeleteRecipeByName(name, why);
    }
    // Deletes the style; its recipes lose their style.
    void DeleteStyleById(std::int64_t id) { deletions_.DeleteStyleById(id); }

    // Returns the new id; -1 if the folder was refused. The parent's modification date is not set.
    std::int64_t CreateRecipeFolder(std::int64_t parentId, std::string_view name,
                                    Asking asking = Asking::Aloud) {
        return newFolders_.CreateFolder(FolderKind::Recipes, parentId, name, asking);
    }
    std::int64_t CreateStyleFolder(std::int64_t parentId, std::string_view name,
                                   Asking asking = Asking::Aloud) {
        return newFolders_.CreateFolder(FolderKind::Styles, parentId, name, asking);
    }

    // Add the nodes of a row that has just been written to the tree, and set the modification date of its
    // folder. The functions ByName look up the row, and do nothing if there is none.
    void AddRecipeNodes(std::int64_t id, std::string_view name, std::int64_t folderId, std::int64_t styleId) {
        nodes_.AddRecipeNodes(id, name, folderId, styleId);
    }
    void AddRecipeNodesByName(std::string_view name) { nodes_.AddRecipeNodesByName(name); }
    void AddStyleNodes(std::int64_t id, std::string_view name, std::int64_t folderId) {
        nodes_.AddStyleNodes(id, name, folderId);
    }
    void AddStyleNodesByName(std::string_view name) { nodes_.AddStyleNodesByName(name); }
    // Change the name in the tree and in the open documents. RenameStyleNodesByName changes the style that is
    // still stored under oldName.
    void RenameStyleNodes(std::int64_t id, std::string_view newName) { nodes_.RenameStyleNodes(id, newName); }
    void RenameStyleNodesByName(std::string_view oldName, std::string_view newName) {
        nodes_.RenameStyleNodes(StyleIdByName(oldName), newName);
    }
    // Notifies the open documents that the row of a style has just been written.
    void StyleStored() { services_.listener.NotifyStyleStored(); }
    // Set the folder's MODIFIED_WHEN to the present time; do nothing for the root, whose id 0 has no row.
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
