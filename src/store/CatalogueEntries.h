// The rows of the catalogue as the database holds them: each as the values of its columns.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/CatalogueSheets.h"
#include "store/Database.h"

namespace tw {

// One row of a catalogue table, apart from its keys and dates.
struct CatalogueEntry {
    std::string_view table;
    std::string name;
    // Column and value in the order of writing; the first is NAME. GRAIN_TYPE is given by the name of the
    // type.
    std::vector<std::pair<std::string, SqlValue>> values;
    std::string folder;  // of a style: the name of its folder under the root

    // REQUIRES: there is a value for the column.
    const SqlValue& ValueOf(std::string_view column) const;
};

// All rows of the catalogue but its grain types, in the order of writing.
std::vector<CatalogueEntry> EntriesOf(const CatalogueSheets& catalogue);

// The value of a column of the row that records stands on, given as in an entry.
SqlValue ValueOf(Database& database, const Recordset& records, std::string_view column);

// The ID of the grain type of that name, made when there is none.
SqlValue GrainTypeId(Database& database, const SqlValue& name, const SqlValue& isGrain);

// Inserts the row; folderId and when, both dates, are for a style.
void InsertEntry(Database& database, const CatalogueEntry& entry, const SqlValue& folderId,
                 const SqlValue& when);
// Gives the row of that ID the values of the entry. A style keeps its folder, and its date of change becomes
// when. A grain type that loses its last grain goes.
void UpdateEntry(Database& database, const CatalogueEntry& entry, const SqlValue& id, const SqlValue& when);

// Deletes the row of that ID. A grain type that loses its last grain goes.
void DeleteEntry(Database& database, std::string_view table, const SqlValue& id);

}  // namespace tw
