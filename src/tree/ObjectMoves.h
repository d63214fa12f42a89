// Moves folders, recipes and styles: in the database, in the tree, and before the open documents.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tree/ObjectServices.h"

namespace tw {

// Each is one unit on the disk and returns false when it was refused, which has been shown unless asking is
// Quietly, or when nothing had to be moved.
class ObjectMoves {
  public:
    explicit ObjectMoves(const ObjectServices& services) : to_(services) {}

    bool MoveFolder(FolderKind kind, std::int64_t id, std::int64_t destId, Asking asking);
    // Touches the old folder and the new one, as MoveStyleToFolder.
    bool MoveRecipeToFolder(std::int64_t recipeId, std::int64_t folderId, Asking asking);
    // Style 0 is none. Touches nothing. Done again for a recipe that has the style already.
    bool MoveRecipeToStyle(std::int64_t recipeId, std::int64_t styleId, Asking asking);
    bool MoveStyleToFolder(std::int64_t styleId, std::int64_t folderId, Asking asking);
    bool MoveStyleToFolderByName(std::string_view name, std::int64_t folderId, Asking asking);
    // The move to a style alone, for an operation that is under way: an error rises.
    void ChangeStyle(std::int64_t recipeId, const std::string& name, std::int64_t styleId);

  private:
    // Shows the recipes of a style that has come into a folder below its entry there.
    void ShowRecipesInFolderOf(std::int64_t styleId);

    ObjectServices to_;
};

}  // namespace tw
