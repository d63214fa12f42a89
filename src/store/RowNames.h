// Looking rows up by their names and ids. Names are trimmed and compared without regard to case.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "store/Database.h"

namespace tw {

// The rows of that name in the table, with the columns, such as "ID, FOLDER_ID".
Recordset RowsByName(Database& database, std::string_view table, std::string_view columns,
                     std::string_view name);
// ID of the first of them, 0 when there is none.
std::int64_t IdByName(Database& database, std::string_view table, std::string_view name);
// NAME of the row of that id; nothing when there is none.
std::optional<std::string> NameById(Database& database, std::string_view table, std::int64_t id);

}  // namespace tw
