// The rows of the catalogue as the database holds them: each as the SQL literals of its columns.
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
    // Column and literal in the order of writing; the first is NAME. GRAIN_TYPE is given by the name of the
    // type.
    std::vector<std::pair<std::string, std::string>> values;
    std::string folder;  // of a style: the name of its folder under the root

    const std::string& Literal(std::string_view column) const;
};

// All rows of the catalogue but its grain types, in the order of writing.
std::vector<CatalogueEntry> EntriesOf(const CatalogueSheets& catalogue);

// The literal of a column of the row that records stands on, written as in an entry.
std::string LiteralOf(Database& database, const Recordset& records, std::string_view column);

// The ID of the grain type of that name, made when there is none; name and isGrain are literals.
std::string GrainTypeId(Database& database, const std::string& name, const std::string& isGrain);

// Inserts the row; folderId and when (a literal, both dates) are for a style.
void InsertEntry(Database& database, const CatalogueEntry& entry, const std::string& folderId,
                 const std::string& when);
// Gives the row of that ID the values of the entry. A style keeps its folder, and its date of change becomes
// when (a literal). A grain type that loses its last grain goes.
void UpdateEntry(Database& database, const CatalogueEntry& entry, const std::string& id,
                 const std::string& when);

// Deletes the row of that ID. A grain type that loses its last grain goes.
void DeleteEntry(Database& database, std::string_view table, const std::string& id);

}  // namespace tw
