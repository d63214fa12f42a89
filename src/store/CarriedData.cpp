#include "store/CarriedData.h"

#include <algorithm>
#include <array>

#include "store/Schema.h"

namespace tw {
namespace {

// True if the database has the table. A table of another shape is somebody else's and is left alone.
bool HasTable(const Database& database) {
    constexpr std::array<const char*, 6> kColumns = {"ID",     "RECIPE_ID", "FORMAT",
                                                     "SOURCE", "IMPORTED",  "CONTENT"};
    return std::ranges::all_of(kColumns,
                               [&](const char* column) { return database.HasColumn("CARRIED", column); });
}

void Delete(Database& database, std::int64_t recipeId) {
    if (HasTable(database)) database.Execute("DELETE FROM CARRIED WHERE RECIPE_ID = ?", {recipeId});
}

void Ended(Database& database, std::int64_t id, RecipeEnd why) {
    if (why != RecipeEnd::SavedAnew) Delete(database, id);
}

void Saved(Database& database, std::optional<std::int64_t> fromId, std::int64_t newId) {
    if (fromId && HasTable(database))
        database.Execute("UPDATE CARRIED SET RECIPE_ID = ? WHERE RECIPE_ID = ?", {newId, *fromId});
}

void Copied(Database& database, std::int64_t fromId, std::int64_t newId) {
    if (HasTable(database))
        database.Execute(
            "INSERT INTO CARRIED (RECIPE_ID, FORMAT, SOURCE, IMPORTED, CONTENT) "
            "SELECT ?, FORMAT, SOURCE, IMPORTED, CONTENT FROM CARRIED WHERE RECIPE_ID = ? ORDER BY ID",
            {newId, fromId});
}

void MakeTable(Database& database) {
    database.ExecuteNative(
        "CREATE TABLE IF NOT EXISTS CARRIED (ID INTEGER PRIMARY KEY AUTOINCREMENT, RECIPE_ID INTEGER NOT "
        "NULL,"
        " FORMAT TEXT NOT NULL, SOURCE TEXT NOT NULL, IMPORTED DATETIME NOT NULL" +
        ColumnRules("IMPORTED", FieldType::Date) +
        ", CONTENT LONGTEXT NOT NULL);"
        "CREATE INDEX IF NOT EXISTS CARRIED_RECIPE_ID ON CARRIED (RECIPE_ID);");
}

}  // namespace

const RecipeFollower kCarriedDataFollower = {.ended = Ended, .saved = Saved, .copied = Copied};

void CarriedData::Keep(std::int64_t recipeId, std::string_view format, std::string_view source,
                       const DateTime& when, std::string_view content) {
    UnitOfWork unit(database_);
    if (!HasTable(database_)) MakeTable(database_);
    database_.Execute(
        "INSERT INTO CARRIED (RECIPE_ID, FORMAT, SOURCE, IMPORTED, CONTENT) VALUES (?, ?, ?, ?, ?)",
        {recipeId, format, source, DateText(when), content});
    unit.Commit();
}

bool CarriedData::IsThere() const {
    return HasTable(database_);
}

bool CarriedData::IsCarriedFor(std::int64_t recipeId) const {
    return HasTable(database_) &&
           !database_.OpenRecordset("SELECT ID FROM CARRIED WHERE RECIPE_ID = ?", {recipeId}).AtEnd();
}

std::vector<CarriedFragment> CarriedData::Of(std::int64_t recipeId) const {
    std::vector<CarriedFragment> fragments;
    if (!HasTable(database_)) return fragments;
    for (Recordset rows = database_.OpenRecordset(
             "SELECT FORMAT, SOURCE, IMPORTED, CONTENT FROM CARRIED WHERE RECIPE_ID = ? ORDER BY ID DESC",
             {recipeId});
         !rows.AtEnd(); rows.MoveNext())
        fragments.push_back(
            {rows.Fields(0).Text(), rows.Fields(1).Text(), rows.Fields(2).Text(), rows.Fields(3).Text()});
    return fragments;
}

void CarriedData::Drop(std::int64_t recipeId) {
    UnitOfWork unit(database_);
    Delete(database_, recipeId);
    unit.Commit();
}

}  // namespace tw
