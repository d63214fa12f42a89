// When folders were changed last.
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
    // REQUIRES: all of them live for as long.
    FolderDates(Database& database, TreeObjects& tree, ClockPort& clock)
        : database_(database), tree_(tree), clock_(clock) {}

    // The present time as a date of a row.
    std::string Now() const;
    // MODIFIED_WHEN of that one folder becomes now; a folder id of 0 matches no row.
    void Touch(FolderKind kind, std::int64_t id);
    // Touches the folder that the entry stands in; none for an entry that is missing.
    void TouchFolderOf(FolderKind kind, const std::string& key);

  private:
    Database& database_;
    TreeObjects& tree_;
    ClockPort& clock_;
};

}  // namespace tw
