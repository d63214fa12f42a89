// Gives folders, recipes and styles new names: in the database, in the tree, and before the open documents.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "tree/ObjectNodes.h"
#include "tree/ObjectServices.h"

namespace tw {

// Each is one unit on the disk and returns false when it was refused, which has been shown unless asking is
// Quietly. A change of case alone is allowed. The database takes the name trimmed, the tree as it is typed,
// until the next start: intended.
class ObjectRenames {
  public:
    // REQUIRES: nodes lives for as long.
    ObjectRenames(const ObjectServices& services, ObjectNodes& nodes) : to_(services), nodes_(nodes) {}

    bool RenameFolder(FolderKind kind, std::int64_t id, std::string_view newName, Asking asking);
    bool RenameRecipe(std::int64_t id, std::string_view newName, Asking asking);
    bool RenameStyle(std::int64_t id, std::string_view newName, Asking asking);

  private:
    // True if the rules of names let it pass; tells why not unless asking is Quietly. nameExists looks the
    // new name up.
    bool CheckNewName(const std::string& object, std::string_view oldName, std::string_view newName,
                      const std::function<bool()>& nameExists, Asking asking);

    ObjectServices to_;
    ObjectNodes& nodes_;
};

}  // namespace tw
