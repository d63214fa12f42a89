// Looks up rows by name and by id. Names are trimmed and compared ignoring case.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "store/Database.h"

namespace tw {

// Returns the given columns, such as "ID, FOLDER_ID", of the rows of that name.
Recordset RowsByName(Database& database, std::string_view table, std::string_view columns,
                     std::string_view name);
// Returns the ID of the first row of that name, or 0 if there is none.
std::int64_t IdByName(Database& database, std::string_view table, std::string_view name);
// Returns the NAME of the row with that ID; nullopt if there is none.
std::optional<std::string> NameById(Database& database, std::string_view table, std::int64_t id);

}  // namespace tw
