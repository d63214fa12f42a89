// Deletes objects with everything that belongs to them. No deletion sets the modification date of the
// parent folder.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "store/RecipeFollower.h"
#include "tree/ObjectMoves.h"
#include "tree/ObjectServices.h"

namespace tw {

// Each deletion is one unit on the disk. Does nothing if there is no such object; raises the store's error.
class ObjectDeletions {
  public:
    // REQUIRES: moves and the objects of services outlive this object.
    ObjectDeletions(const ObjectServices& services, ObjectMoves& moves) : to_(services), moves_(moves) {}

    // Deletes the folder with all folders below it and their recipes or styles; recipes of deleted styles
    // lose their style.
    void DeleteFolder(FolderKind kind, std::int64_t id);
    // Deletes the recipe with its rows in RECIPE_GRAINS, RECIPE_HOPS, RECIPE_ADJUNCTS and RECIPE_LOG. Leaves
    // its rows in RECIPE_SALTS and RECIPE_SUGARS, on purpose: the stored form must not change. why is passed
    // on to what follows the recipe.
    void DeleteRecipeById(std::int64_t id, RecipeEnd why = RecipeEnd::Deleted);
    // Returns the id of the recipe; nullopt if there is none.
    std::optional<std::int64_t> DeleteRecipeByName(std::string_view name, RecipeEnd why = RecipeEnd::Deleted);
    // Deletes the style; its recipes lose their style.
    void DeleteStyleById(std::int64_t id);

  private:
    void DeleteTree(FolderKind kind, std::int64_t id);
    // Deletes the recipes or styles of a folder without subfolders, then its row and its entry.
    void DeleteEmptied(FolderKind kind, std::int64_t id);
    void DeleteRecipe(std::int64_t id, const std::string& name, RecipeEnd why);
    void DeleteStyle(std::int64_t id);

    ObjectServices to_;
    ObjectMoves& moves_;
};

}  // namespace tw
