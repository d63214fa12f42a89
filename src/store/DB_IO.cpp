#include "store/DB_IO.h"

#include "values/Text.h"

namespace tw {
namespace {

std::string ByName(std::string_view columns, std::string_view table, std::string_view name) {
    return "SELECT " + std::string(columns) + " FROM " + std::string(table) +
           " WHERE NAME = " + SqlText(Trim(name));
}

std::string NameQuery(std::int64_t id, std::string_view table) {
    return "SELECT NAME FROM " + std::string(table) + " WHERE ID = " + std::to_string(id);
}

}  // namespace

std::int64_t DB_IO::IdByName(std::string_view name, std::string_view table) {
    const Recordset rows = database_.OpenRecordset(ByName("ID", table, name));
    return rows.AtEnd() ? 0 : rows.Fields(0).Integer();
}

std::string DB_IO::NameById(std::int64_t id, std::string_view table) {
    const Recordset rows = database_.OpenRecordset(NameQuery(id, table));
    return rows.AtEnd() ? std::string() : rows.Fields(0).Text();
}

void DB_IO::DeleteRecipeById(std::int64_t id) {
    Recordset rows = database_.OpenRecordset(NameQuery(id, "RECIPES"));
    if (rows.AtEnd()) return;
    const std::string name = rows.Fields(0).Text();
    rows.Close();
    const std::string idText = std::to_string(id);
    UnitOfWork unit(database_);
    database_.Execute("DELETE FROM RECIPES WHERE ID = " + idText);
    database_.Execute("DELETE FROM RECIPE_GRAINS WHERE RECIPE_ID = " + idText);
    database_.Execute("DELETE FROM RECIPE_HOPS WHERE RECIPE_ID = " + idText);
    database_.Execute("DELETE FROM RECIPE_ADJUNCTS WHERE RECIPE_ID = " + idText);
    database_.Execute("DELETE FROM RECIPE_LOG WHERE RECIPE_ID = " + idText);
    unit.Commit();
    listener_.NotifyRecipeDeleted(name);
}

void DB_IO::DeleteRecipeByName(std::string_view name) {
    DeleteRecipeById(IdByName(name, "RECIPES"));
}

void DB_IO::AddRecipeNodesByName(std::string_view name) {
    Recordset rows = database_.OpenRecordset(ByName("ID, FOLDER_ID", "RECIPES", name));
    if (rows.AtEnd()) return;
    const std::int64_t folderId = rows.Fields(1).Integer();
    rows.Close();
    TouchRecipeFolder(folderId);
}

void DB_IO::TouchRecipeFolder(std::int64_t folderId) {
    database_.Execute("UPDATE FOLDERS SET MODIFIED_WHEN = '" + DateText(clock_.Now()) +
                      "' WHERE NOT STYLE AND ID = " + std::to_string(folderId));
}

}  // namespace tw
