// Updates the tree for a row that has just been written.
#pragma once

#include <cstdint>
#include <string_view>

#include "tree/ObjectServices.h"

namespace tw {

class ObjectNodes {
  public:
    explicit ObjectNodes(const ObjectServices& services) : to_(services) {}

    // These functions add the object's entries and set the modification date of its folder. The functions
    // ByName look up the row, and do nothing if there is none.
    void AddRecipeNodes(std::int64_t id, std::string_view name, std::int64_t folderId, std::int64_t styleId);
    void AddRecipeNodesByName(std::string_view name);
    void AddStyleNodes(std::int64_t id, std::string_view name, std::int64_t folderId);
    void AddStyleNodesByName(std::string_view name);
    // Changes the name in the tree and in the open documents.
    void RenameStyleNodes(std::int64_t id, std::string_view newName);

  private:
    ObjectServices to_;
};

}  // namespace tw
