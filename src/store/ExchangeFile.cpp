#include "store/ExchangeFile.h"

#include <algorithm>
#include <filesystem>
#include <sqlite3.h>
#include <string>
#include <utility>

#include "platform/Error.h"
#include "store/Schema.h"
#include "values/Text.h"

namespace tw {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kStyleId = "STYLE_ID";
constexpr std::string_view kStyleName = "STYLE_NAME";

// Returns a name quoted for SQLite, whatever it contains.
std::string Quoted(std::string_view name) {
    return "\"" + ReplaceAll(name, "\"", "\"\"") + "\"";
}

// True for RECIPES.STYLE_ID, the only column that differs in the exchange file.
bool IsStyleId(std::string_view table, std::string_view column) {
    return CompareNoCase(table, "RECIPES") == 0 && CompareNoCase(column, kStyleId) == 0;
}

// column is a row of pragma_table_info.
std::string ColumnSql(std::string_view table, const Recordset& column, bool counter) {
    const std::string name = column.Fields("name").Text();
    // The size is declared but not enforced: a longer style name is stored whole.
    if (IsStyleId(table, name))
        return Quoted(kStyleName) + " TEXT(50)" + ColumnRules(kStyleName, FieldType::Text) + " DEFAULT ''";
    const std::string declared = column.Fields("type").Text();
    std::string sql = Quoted(name) + " " + declared;
    if (column.Fields("pk").Boolean()) sql += counter ? " PRIMARY KEY AUTOINCREMENT" : " PRIMARY KEY";
    sql += ColumnRules(name, FieldTypeOf(declared));
    if (column.Fields("notnull").Boolean()) sql += " NOT NULL";
    const Field value = column.Fields("dflt_value");
    if (!value.IsNull()) sql += " DEFAULT (" + value.Text() + ")";
    return sql;
}

std::string TableSql(Database& main, const std::string& table, bool counter) {
    std::string columns;
    for (Recordset column = main.OpenRecordset("SELECT * FROM pragma_table_info(?) ORDER BY cid", {table});
         !column.AtEnd(); column.MoveNext()) {
        if (!columns.empty()) columns += ", ";
        columns += ColumnSql(table, column, counter);
    }
    return "CREATE TABLE " + Quoted(table) + " (" + columns + ");\n";
}

// Returns the columns of an index; empty if one of them is an expression.
std::string IndexedColumns(Database& main, const std::string& table, const std::string& index) {
    std::string columns;
    for (Recordset column = main.OpenRecordset(
             "SELECT name, [desc] FROM pragma_index_xinfo(?) WHERE [key] = 1 ORDER BY seqno", {index});
         !column.AtEnd(); column.MoveNext()) {
        const std::string name = column.Fields("name").Text();
        if (name.empty()) return {};
        if (!columns.empty()) columns += ", ";
        columns += Quoted(IsStyleId(table, name) ? kStyleName : name);
        if (column.Fields("desc").Boolean()) columns += " DESC";
    }
    return columns;
}

// Includes only indexes made by CREATE INDEX over whole tables; key indexes come with their table.
std::string IndexesSql(Database& main, const std::string& table) {
    std::string sql;
    for (Recordset index =
             main.OpenRecordset("SELECT name, [unique] FROM pragma_index_list(?) WHERE origin = 'c' "
                                "AND NOT partial ORDER BY seq DESC",
                                {table});
         !index.AtEnd(); index.MoveNext()) {
        const std::string name = index.Fields("name").Text();
        const std::string columns = IndexedColumns(main, table, name);
        if (columns.empty()) continue;
        sql += index.Fields("unique").Boolean() ? "CREATE UNIQUE INDEX " : "CREATE INDEX ";
        sql += Quoted(name) + " ON " + Quoted(table) + " (" + columns + ");\n";
    }
    return sql;
}

// The files that SQLite keeps beside a database while writing it. If a crash leaves them, they belong to the
// content of that file, and would corrupt another file put under its name.
constexpr const char* kBesides[] = {"-journal", "-wal", "-shm"};

bool HasBesides(const std::string& path) {
    std::error_code failure;
    return std::ranges::any_of(kBesides,
                               [&](const char* suffix) { return fs::exists(path + suffix, failure); });
}

// Rolls back or completes the old file, which stays in use if the new one cannot replace it.
void CompleteOld(const std::string& path) {
    try {
        Database::OpenDatabase(path, false)->ExecuteNative("PRAGMA journal_mode=DELETE");
    } catch (const Error& error) {
        if (error.Number() == SQLITE_BUSY || error.Number() == SQLITE_LOCKED) throw;
        // It is not a readable database: there is nothing to complete.
    }
}

void RemoveBesides(const TargetFile& target) {
    if (!HasBesides(target.Path())) return;
    std::error_code failure;
    if (fs::exists(target.Path(), failure)) CompleteOld(target.Path());
    for (const char* suffix : kBesides)
        if (!fs::remove(target.Path() + suffix, failure) && failure)
            throw Error("Database", "'" + target.Name() + "' cannot be replaced: " + failure.message() + ".",
                        SQLITE_CANTOPEN);
}

}  // namespace

void CreateExchangeTables(Database& main, Database& file) {
    std::string sql;
    for (Recordset table = main.OpenRecordset(
             "SELECT name, sql LIKE '%AUTOINCREMENT%' FROM sqlite_schema WHERE type = 'table' AND "
             "UCASE(SUBSTR(name, 1, 6)) = 'RECIPE' ORDER BY rowid");
         !table.AtEnd(); table.MoveNext()) {
        const std::string name = table.Fields(0).Text();
        sql += TableSql(main, name, table.Fields(1).Boolean());
        sql += IndexesSql(main, name);
    }
    UnitOfWork unit(file);
    file.ExecuteNative(sql);
    unit.Commit();
}

ExchangeCopy::ExchangeCopy(Database& main) : contents_(Database::FromImage({})) {
    contents_->ExecuteNative("PRAGMA user_version=1");
    CreateExchangeTables(main, *contents_);
}

ExchangeCopy::ExchangeCopy(std::unique_ptr<Database> old) : old_(std::move(old)) {
    // All of its content is then in the one file, and stays unchanged until that is replaced.
    old_->ExecuteNative("PRAGMA journal_mode=DELETE; BEGIN IMMEDIATE");
    contents_ = Database::ForeignFromImage(old_->Image());
}

void ExchangeCopy::Save(const TargetFile& target) const {
    // An old file that is open here was completed already and has no such files.
    if (!old_) RemoveBesides(target);
    target.Replace(contents_->Image());
}

}  // namespace tw
