// Brings the rows that a newer version of the product adds or corrects into a database that is in use, and
// leaves alone whatever its brewer has changed, renamed or removed.
#pragma once

#include <optional>
#include <string>

#include "platform/DateTime.h"
#include "store/CatalogueSheets.h"
#include "store/Database.h"

namespace tw {

// Brings the catalogue of folder into database, as one unit of work:
// - a row that the product never delivered to this database is added, unless a row of that name is there;
// - a row that stands as it was delivered takes the new values; a style that is in another folder than the
//   one delivered stays there, the others follow a change of folder;
// - a row that stands as it was delivered goes when the catalogue says that it is gone, unless a recipe has
//   that style; so does a delivered folder that the catalogue no longer names, once it is empty;
// - everything else stays: rows that were changed, are gone, or are the brewer's own.
// The other names and facts of the rows are the product's own and are replaced as a whole.
// A new style goes into the folder delivered under the name that the file gives, wherever that is now and
// whatever its name; under the root when that folder is gone.
// A database that remembers no delivery takes its rows for the brewer's: none of them changes, and what the
// product holds now counts as delivered. In any database the dates go that the product once made up for its
// styles and their folders. Nothing happens when these very files came last, when a newer version of them
// did, or when they are missing or faulty.
// Gives whether a row was added, corrected, moved or taken out. Raises the store's error when a statement
// fails; what was done so far is remembered, and the next call goes on.
bool UpdateCatalogue(const std::string& folder, Database& database, const DateTime& now);

// Fills the empty catalogue tables of a new database from the files and remembers the delivery. REQUIRES:
// the tables are empty and the catalogue has no problems. Styles and folders get created as both their
// dates, or none.
void DeliverCatalogue(const std::string& folder, const CatalogueSheets& catalogue, Database& database,
                      const std::optional<DateTime>& created);

}  // namespace tw
