// Deletes objects with all that hangs on them. The folder above is not touched, by any deletion.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tree/ObjectMoves.h"
#include "tree/ObjectServices.h"

namespace tw {

// Each is one unit on the disk. Does nothing for no object; an error rises.
class ObjectDeletions {
  public:
    // REQUIRES: moves lives for as long.
    ObjectDeletions(const ObjectServices& services, ObjectMoves& moves) : to_(services), moves_(moves) {}

    // With all folders below, and their recipes; or their styles, whose recipes lose their style.
    void DeleteFolder(FolderKind kind, std::int64_t id);
    // With its lines in RECIPE_GRAINS, RECIPE_HOPS, RECIPE_ADJUNCTS and RECIPE_LOG. The rows of RECIPE_SALTS
    // and RECIPE_SUGARS stay behind: intended. An id that names no recipe notifies nobody.
    void DeleteRecipeById(std::int64_t id);
    void DeleteRecipeByName(std::string_view name);
    // Its recipes lose their style.
    void DeleteStyleById(std::int64_t id);

  private:
    void DeleteTree(FolderKind kind, std::int64_t id);
    // What lies in the folder but its folders, the folder's row, its entry.
    void DeleteEmptied(FolderKind kind, std::int64_t id);
    void DeleteRecipe(std::int64_t id, const std::string& name);
    void DeleteStyle(std::int64_t id);

    ObjectServices to_;
    ObjectMoves& moves_;
};

}  // namespace tw
