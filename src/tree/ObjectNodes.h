// Brings the tree in step with a row that has just been written.
#pragma once

#include <cstdint>
#include <string_view>

#include "tree/ObjectServices.h"

namespace tw {

class ObjectNodes {
  public:
    explicit ObjectNodes(const ObjectServices& services) : to_(services) {}

    // Each touches the folder too. ByName looks the row up and does nothing when there is none.
    void AddRecipeNodes(std::int64_t id, std::string_view name, std::int64_t folderId, std::int64_t styleId);
    void AddRecipeNodesByName(std::string_view name);
    void AddStyleNodes(std::int64_t id, std::string_view name, std::int64_t folderId);
    void AddStyleNodesByName(std::string_view name);
    // Shows the new name in the tree and in the open documents.
    void RenameStyleNodes(std::int64_t id, std::string_view newName);

  private:
    ObjectServices to_;
};

}  // namespace tw
