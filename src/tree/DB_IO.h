// The one writer of folder links and of recipe and style names: each operation changes the database, then the
// tree in the same way, and then tells the open documents.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Ports.h"
#include "store/Database.h"
#include "tree/TreeObjects.h"

namespace tw {

// Follows the operations of DB_IO: the shell forwards each notice to every open document. Each notice comes
// after the change in the database and in the tree.
class ObjectListener {
  public:
    virtual ~ObjectListener() = default;
    virtual void NotifyRecipeMoved(const std::string& name, std::int64_t folderId) = 0;
    virtual void NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) = 0;
    // The new name as it was typed.
    virtual void NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) = 0;
    virtual void NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) = 0;
    virtual void NotifyRecipeDeleted(const std::string& name) = 0;
    // Once for each folder of a deleted subtree, after its recipes.
    virtual void NotifyRecipeFolderDeleted(std::int64_t folderId) = 0;
    virtual void NotifyStyleDeleted(std::int64_t styleId) = 0;
    // A style was added, or its figures changed.
    virtual void NotifyStyleStored() {}
    // Once at the end of an operation that deletes, also of one that an error ends; raises nothing.
    virtual void DeletionEnded() {}
};

// The rules of the keys, on their text alone: nothing is looked up.
bool CanDeleteNode(std::string_view key);
// The same rule.
bool CanRenameNode(std::string_view key);
bool CanHoldFolders(std::string_view key);
// Whether one may be moved onto the other. A recipe may be dropped on "(None)".
bool CanDropOn(std::string_view sourceKey, std::string_view destKey);

// Every operation is one unit on the disk. silent shows no message. Those that move, rename and create show a
// store's error in a box of their own and end with false, -1 or an empty key; from those that delete it
// rises. Either way what was done before the error stays, and the tree is read anew to show just that.
// A folder that the tree does not show, such as one of a ring of folders, is no folder here.
class DB_IO {
  public:
    // REQUIRES: all of them live for as long.
    DB_IO(Database& database, TreeObjects& tree, MessagePort& messages, ClockPort& clock,
          ObjectListener& listener)
        : database_(database), tree_(tree), messages_(messages), clock_(clock), listener_(listener) {}

    // By keys.

    // False, and nothing is changed, when it is there already.
    bool MoveObject(std::string_view sourceKey, std::string_view destKey, bool silent);
    bool RenameObject(std::string_view key, std::string_view newName, bool silent);
    // Asks nothing; does nothing for a key that CanDeleteNode refuses and for no object.
    void DeleteObject(std::string_view key);
    // The key of the new folder, empty when it was refused. For a blank name it takes the next free one of
    // "New Folder", "New Folder (2)", ...
    std::string CreateFolderObject(std::string_view parentKey, std::string_view name, bool silent);
    // Whether dest is source or stands somewhere below it in the tree.
    bool IsSubFolder(std::string_view sourceKey, std::string_view destKey) const;

    // Look-ups. Names are trimmed.

    // ID of the row of that name in the table, 0 when there is none.
    std::int64_t IdByName(std::string_view name, std::string_view table);
    // NAME of the row of that id, empty when there is none.
    std::string NameById(std::int64_t id, std::string_view table);
    std::int64_t StyleIdByName(std::string_view name) { return IdByName(name, "STYLES"); }
    std::string StyleNameById(std::int64_t id) { return NameById(id, "STYLES"); }
    std::string RecipeNameById(std::int64_t id) { return NameById(id, "RECIPES"); }
    bool RecipeNameExists(std::string_view name);
    bool StyleNameExists(std::string_view name);
    // Directly below that folder.
    bool RecipeFolderNameExists(std::int64_t parentId, std::string_view name);
    bool StyleFolderNameExists(std::int64_t parentId, std::string_view name);

    // By ids.

    bool MoveRecipeFolder(std::int64_t folderId, std::int64_t destFolderId, bool silent);
    bool MoveStyleFolder(std::int64_t folderId, std::int64_t destFolderId, bool silent);
    // Touches the old folder and the new one, as MoveStyleToFolder.
    bool MoveRecipeToFolder(std::int64_t recipeId, std::int64_t folderId, bool silent);
    // Style 0 is none. Touches nothing.
    bool MoveRecipeToStyle(std::int64_t recipeId, std::int64_t styleId, bool silent);
    bool MoveStyleToFolder(std::int64_t styleId, std::int64_t folderId, bool silent);
    bool MoveStyleToFolderByName(std::string_view name, std::int64_t folderId, bool silent);

    // A change of case alone is allowed. The database takes the name trimmed, the tree as it is typed, until
    // the next start: intended.
    bool RenameRecipeFolder(std::int64_t id, std::string_view newName, bool silent);
    bool RenameStyleFolder(std::int64_t id, std::string_view newName, bool silent);
    bool RenameRecipe(std::int64_t id, std::string_view newName, bool silent);
    bool RenameStyle(std::int64_t id, std::string_view newName, bool silent);

    // With all folders and recipes below. The folder above is not touched, by any deletion.
    void DeleteRecipeFolder(std::int64_t id);
    // With all folders and styles below; their recipes lose their style.
    void DeleteStyleFolder(std::int64_t id);
    // With its lines in RECIPE_GRAINS, RECIPE_HOPS, RECIPE_ADJUNCTS and RECIPE_LOG. The rows of RECIPE_SALTS
    // and RECIPE_SUGARS stay behind: intended. An id that names no recipe notifies nobody.
    void DeleteRecipeById(std::int64_t id);
    void DeleteRecipeByName(std::string_view name);
    // Its recipes lose their style.
    void DeleteStyleById(std::int64_t id);

    // The new id, -1 when it was refused. The parent is not touched.
    std::int64_t CreateRecipeFolder(std::int64_t parentId, std::string_view name, bool silent);
    std::int64_t CreateStyleFolder(std::int64_t parentId, std::string_view name, bool silent);

    // Bring the tree in step with a row that has just been written, and touch its folder. ByName looks the
    // row up and does nothing when there is none.
    void AddRecipeNodes(std::int64_t id, std::string_view name, std::int64_t folderId, std::int64_t styleId);
    void AddRecipeNodesByName(std::string_view name);
    void AddStyleNodes(std::int64_t id, std::string_view name, std::int64_t folderId);
    void AddStyleNodesByName(std::string_view name);
    // The name in the tree and in the open documents. ByName: of the style that still has the old name.
    void RenameStyleNodes(std::int64_t id, std::string_view newName);
    void RenameStyleNodesByName(std::string_view oldName, std::string_view newName);
    // Tells the open documents that the row of a style has just been written.
    void StyleStored() { listener_.NotifyStyleStored(); }
    // MODIFIED_WHEN of that one folder becomes now; a folder id of 0 matches no row.
    void TouchRecipeFolder(std::int64_t folderId);
    void TouchStyleFolder(std::int64_t folderId);

  private:
    enum class FolderKind { Recipes, Styles };
    using Operation = std::function<bool()>;
    // Of the errors that tell of a missing object.
    static constexpr int kMissingNumber = 5;
    static std::string FolderKey(FolderKind kind, std::int64_t id);
    // What tells the rows of these folders from the others.
    static std::string Condition(FolderKind kind) {
        return kind == FolderKind::Styles ? "STYLE" : "NOT STYLE";
    }
    static std::string FolderWord(FolderKind kind) {
        return kind == FolderKind::Styles ? "style folder" : "recipe folder";
    }

    // Runs the operation; an error in it is shown, unless silent, and gives false.
    bool Trap(const std::string& title, bool silent, const Operation& operation);
    // Shows what an error has left. Within a unit of the caller's that is known behind its end.
    void ShowWhatIsLeft(bool deletion);
    // Runs a deletion as one unit.
    void RunDeletion(const std::function<void()>& deletion);
    // Shows the message unless silent. False.
    bool Refuse(std::string_view title, std::string_view text, bool silent);
    bool RefuseSubFolder(bool silent);
    // Refuses in the form of an error: there is no such object.
    bool RefuseMissing(std::string_view title, std::string_view object, bool silent);

    // The first column of all rows.
    std::vector<std::int64_t> Ids(const std::string& sql, const SqlValues& values);
    std::vector<std::int64_t> RecipesOfStyle(std::int64_t styleId);
    // The name in the tree, else in the table; nothing when neither holds the object.
    std::optional<std::string> ObjectName(const std::string& key, std::string_view table, std::int64_t id);
    std::optional<std::string> RecipeName(std::int64_t id);
    std::optional<std::string> StyleName(std::int64_t id);
    // Whether the tree shows that folder; the root, 0, is one too.
    bool IsFolder(FolderKind kind, std::int64_t id) const;
    bool FolderNameExists(FolderKind kind, std::int64_t parentId, std::string_view name);
    void Touch(FolderKind kind, std::int64_t id);
    // Touches the folder that the entry stands in; none for an entry that is missing.
    void TouchFolderOf(FolderKind kind, const std::string& key);

    bool MoveFolder(FolderKind kind, std::int64_t id, std::int64_t destId, bool silent);
    void ChangeStyle(std::int64_t recipeId, const std::string& name, std::int64_t styleId);
    // Shows the recipes of a style that has come into a folder below its entry there.
    void ShowRecipesInFolderOf(std::int64_t styleId);
    bool RenameFolder(FolderKind kind, std::int64_t id, std::string_view newName, bool silent);
    // Whether the rules of names let it pass; tells why not unless silent. nameExists looks the new name up.
    bool CheckNewName(const std::string& object, std::string_view oldName, std::string_view newName,
                      const Operation& nameExists, bool silent);
    std::int64_t CreateFolder(FolderKind kind, std::int64_t parentId, std::string_view name, bool silent);
    std::int64_t InsertFolder(FolderKind kind, std::int64_t parentId, const std::string& name);
    std::string NextNewFolderName(const std::string& parentKey) const;
    void DeleteFolder(FolderKind kind, std::int64_t id);
    // What lies in the folder but its folders, the folder's row, its entry.
    void DeleteEmptied(FolderKind kind, std::int64_t id);
    void DeleteRecipe(std::int64_t id, const std::string& name);
    void DeleteStyle(std::int64_t id);

    Database& database_;
    TreeObjects& tree_;
    MessagePort& messages_;
    ClockPort& clock_;
    ObjectListener& listener_;
};

}  // namespace tw
