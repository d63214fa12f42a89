// Sets the modification dates of folders.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Ports.h"
#include "store/Database.h"
#include "tree/ObjectLookup.h"
#include "tree/TreeObjects.h"

namespace tw {

class FolderDates {
  public:
    // REQUIRES: all arguments outlive the object.
    FolderDates(Database& database, TreeObjects& tree, ClockPort& clock)
        : database_(database), tree_(tree), clock_(clock) {}

    // Returns the present time in the form in which rows store dates.
    std::string Now() const;
    // Sets the folder's MODIFIED_WHEN to the present time; does nothing for the root, whose id 0 has no row.
    void Touch(FolderKind kind, std::int64_t id);
    // Calls Touch for the folder that contains the entry; does nothing if the entry is missing.
    void TouchFolderOf(FolderKind kind, const std::string& key);

  private:
    Database& database_;
    TreeObjects& tree_;
    ClockPort& clock_;
};

}  // namespace tw
