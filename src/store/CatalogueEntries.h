// The rows of the catalogue in the form of the database: each row as the values of its columns.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/CatalogueSheets.h"
#include "store/Database.h"

namespace tw {

// One row of a catalogue table, without its key and dates.
struct CatalogueEntry {
    std::string_view table;
    std::string name;
    // The columns with their values, in the order in which they are written; the first is NAME. GRAIN_TYPE
    // contains the name of the type instead of its ID.
    std::vector<std::pair<std::string, SqlValue>> values;
    std::string folder;  // for a style, the name of its folder below the root; else empty

    // REQUIRES: the entry has a value for the column.
    const SqlValue& ValueOf(std::string_view column) const;
};

// Returns all rows of the catalogue except the grain types, in the order in which they are written.
std::vector<CatalogueEntry> EntriesOf(const CatalogueSheets& catalogue);

// Returns the value of a column in the current row of records, in the form in which an entry holds it.
SqlValue ValueOf(Database& database, const Recordset& records, std::string_view column);

// Returns the ID of the grain type of that name, inserting the type if it is missing.
SqlValue GrainTypeId(Database& database, const SqlValue& name, const SqlValue& isGrain);

// Inserts the row. folderId and when, which is used for both dates, apply only to a style.
void InsertEntry(Database& database, const CatalogueEntry& entry, const SqlValue& folderId,
                 const SqlValue& when);
// Updates the row of that ID with the values of the entry. A style stays in its folder, and its modification
// date is set to when. A grain type that is no longer used is deleted.
void UpdateEntry(Database& database, const CatalogueEntry& entry, const SqlValue& id, const SqlValue& when);

// Deletes the row of that ID. A grain type that is no longer used is deleted, too.
void DeleteEntry(Database& database, std::string_view table, const SqlValue& id);

}  // namespace tw
