// Renames folders, recipes and styles in the database and in the tree, and notifies the open documents.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "tree/ObjectNodes.h"
#include "tree/ObjectServices.h"

namespace tw {

// Each renaming is one unit on the disk and returns false if it was refused, after a message unless asking is
// Quietly. A name may change in case only. The database stores the name trimmed, whereas the tree shows it as
// it was typed until it is read again.
class ObjectRenames {
  public:
    // REQUIRES: nodes and the objects of services outlive this object.
    ObjectRenames(const ObjectServices& services, ObjectNodes& nodes) : to_(services), nodes_(nodes) {}

    bool RenameFolder(FolderKind kind, std::int64_t id, std::string_view newName, Asking asking);
    bool RenameRecipe(std::int64_t id, std::string_view newName, Asking asking);
    bool RenameStyle(std::int64_t id, std::string_view newName, Asking asking);

  private:
    // True if the new name is allowed; otherwise shows why not, unless asking is Quietly. nameExists looks up
    // the new name.
    bool CheckNewName(const std::string& object, std::string_view oldName, std::string_view newName,
                      const std::function<bool()>& nameExists, Asking asking);

    ObjectServices to_;
    ObjectNodes& nodes_;
};

}  // namespace tw
