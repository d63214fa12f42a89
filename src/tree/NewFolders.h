// Makes folders: in the database, then in the tree.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tree/ObjectServices.h"

namespace tw {

class NewFolders {
  public:
    explicit NewFolders(const ObjectServices& services) : to_(services) {}

    // The new id, -1 when it was refused, which has been shown unless asking is Quietly. For a blank name it
    // takes the next free one of "New Folder", "New Folder (2)", ... The parent is not touched.
    std::int64_t CreateFolder(FolderKind kind, std::int64_t parentId, std::string_view name, Asking asking);

  private:
    std::int64_t InsertFolder(FolderKind kind, std::int64_t parentId, const std::string& name);
    std::string NextNewFolderName(const std::string& parentKey) const;

    ObjectServices to_;
};

}  // namespace tw
