// Creates folders in the database and in the tree.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tree/ObjectServices.h"

namespace tw {

class NewFolders {
  public:
    explicit NewFolders(const ObjectServices& services) : to_(services) {}

    // Returns the new id; -1 if the folder was refused, after a message unless asking is Quietly. A blank
    // name becomes the next unused one of "New Folder", "New Folder (2)", ... The parent's modification date
    // is not set.
    std::int64_t CreateFolder(FolderKind kind, std::int64_t parentId, std::string_view name, Asking asking);

  private:
    std::int64_t InsertFolder(FolderKind kind, std::int64_t parentId, const std::string& name);
    std::string NextNewFolderName(const std::string& parentKey) const;

    ObjectServices to_;
};

}  // namespace tw
