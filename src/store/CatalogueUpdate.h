// Updates a database in use with the catalogue rows that a newer version of the program adds or corrects, and
// leaves alone everything that its brewer has changed, renamed or deleted.
#pragma once

#include <optional>
#include <string>

#include "platform/DateTime.h"
#include "store/CatalogueSheets.h"
#include "store/Database.h"

namespace tw {

// Updates database with the catalogue in folder, as one unit of work:
// - A row never delivered to this database is added, unless a row of that name exists.
// - A row still as it was delivered gets the new values. A style moves to its new folder only if it is still
//   in the folder that it was delivered to.
// - A row still as it was delivered is deleted if the catalogue lists it as gone, unless it is a style used
//   by a recipe. A delivered folder that the catalogue no longer names is deleted once it is empty.
// - Everything else stays: rows that the brewer has changed, deleted or created.
//
// The other names and facts of rows belong to the program and are replaced as a whole.
// A new style goes into the delivered folder that the file names, even if that has been moved or renamed;
// into the root if that folder was deleted.
//
// In a database that remembers no delivery, all rows count as the brewer's: none is changed, and the present
// catalogue counts as delivered. In any database, the made-up dates that early releases gave to styles and
// style folders are removed. Nothing happens if these files were delivered last, if a newer version of them
// was, or if they are missing or faulty.
// Returns true if a row was added, corrected, moved or deleted. Raises the store's error if a statement
// fails; the changes made so far stay and are remembered, and the next call continues.
bool UpdateCatalogue(const std::string& folder, Database& database, const DateTime& now);

// Fills the empty catalogue tables of a new database from the files and remembers the delivery. created, or
// NULL, is written as both dates of styles and style folders. REQUIRES: the tables are empty and the
// catalogue has no problems.
void DeliverCatalogue(const std::string& folder, const CatalogueSheets& catalogue, Database& database,
                      const std::optional<DateTime>& created);

}  // namespace tw
