#include "store/RowNames.h"

#include "values/Text.h"

namespace tw {

Recordset RowsByName(Database& database, std::string_view table, std::string_view columns,
                     std::string_view name) {
    return database.OpenRecordset(
        "SELECT " + std::string(columns) + " FROM " + std::string(table) + " WHERE NAME = ?", {Trim(name)});
}

std::int64_t IdByName(Database& database, std::string_view table, std::string_view name) {
    const Recordset rows = RowsByName(database, table, "ID", name);
    return rows.AtEnd() ? 0 : rows.Fields(0).Integer();
}

std::optional<std::string> NameById(Database& database, std::string_view table, std::int64_t id) {
    const Recordset rows =
        database.OpenRecordset("SELECT NAME FROM " + std::string(table) + " WHERE ID = ?", {id});
    if (rows.AtEnd()) return std::nullopt;
    return rows.Fields(0).Text();
}

}  // namespace tw
