// Moves folders, recipes and styles in the database and in the tree, and notifies the open documents.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tree/ObjectServices.h"

namespace tw {

// Each move is one unit on the disk. Returns false if it was refused, after a message unless asking is
// Quietly, or if the object is there already.
class ObjectMoves {
  public:
    explicit ObjectMoves(const ObjectServices& services) : to_(services) {}

    bool MoveFolder(FolderKind kind, std::int64_t id, std::int64_t destId, Asking asking);
    // MoveRecipeToFolder and MoveStyleToFolder set the modification date of the old and the new folder.
    bool MoveRecipeToFolder(std::int64_t recipeId, std::int64_t folderId, Asking asking);
    // styleId 0 removes the style. Sets no modification date. Moves a recipe again that has the
    // style already.
    bool MoveRecipeToStyle(std::int64_t recipeId, std::int64_t styleId, Asking asking);
    bool MoveStyleToFolder(std::int64_t styleId, std::int64_t folderId, Asking asking);
    bool MoveStyleToFolderByName(std::string_view name, std::int64_t folderId, Asking asking);
    // Changes only the style, within another operation. Raises the store's error.
    void ChangeStyle(std::int64_t recipeId, const std::string& name, std::int64_t styleId);

  private:
    // Shows the recipes of a style below its entry in a folder, after the style was added to that folder.
    void ShowRecipesInFolderOf(std::int64_t styleId);

    ObjectServices to_;
};

}  // namespace tw
