#include "store/Schema.h"

#include <array>
#include <set>
#include <sqlite3.h>

#include "platform/Error.h"

namespace tw {
namespace {

using enum FieldType;

constexpr ColumnDef kFolders[] = {
    {"ID", Long, true}, {"PARENT_ID", Long},    {"NAME", Text},
    {"STYLE", Boolean}, {"CREATED_WHEN", Date}, {"MODIFIED_WHEN", Date},
};

constexpr ColumnDef kRecipes[] = {
    {"ID", Long, true},
    {"NAME", Text},
    {"STYLE_ID", Long},
    {"FOLDER_ID", Long},
    {"CREATED_WHEN", Date},
    {"MODIFIED_WHEN", Date},
    {"BV", Text},
    {"BV_DATA", Double},
    {"TV", Text},
    {"TV_DATA", Double},
    {"DILUTIONS", Text},
    {"DILUTIONS_DATA", Double},
    {"FV", Text},
    {"FV_DATA", Double},
    {"BG", Text},
    {"BG_DATA", Double},
    {"OG", Text},
    {"OG_DATA", Double},
    {"FG", Text},
    {"FG_DATA", Double},
    {"ABV", Text},
    {"COLOR", Text},
    {"IBU", Text},
    {"NOTES", Memo},
    {"NUMBATCHES", Text},
    {"GRAIN_EXTRACT", Text},
    {"GRAIN_EXTRACT_DATA", Double},
    {"IBU_METHOD", Long},
    {"HOP_EXTRACT", Text},
    {"HOP_EXTRACT_DATA", Double},
    {"BOTTLED", Boolean},
    {"KEG_PSI", Text},
    {"KEG_PSI_DATA", Double},
    {"KEG_VOLS", Double},
    {"TEMPERATURE", Text},
    {"TEMPERATURE_DATA", Double},
    {"CO2_VOLS", Text},
    {"SRC_PROFILE_NAME", Text},
    {"SRC_CA", Double},
    {"SRC_CO3", Double},
    {"SRC_CL", Double},
    {"SRC_MG", Double},
    {"SRC_NA", Double},
    {"SRC_SO4", Double},
    {"TRG_PROFILE_NAME", Text},
    {"TRG_CA", Double},
    {"TRG_CO3", Double},
    {"TRG_CL", Double},
    {"TRG_MG", Double},
    {"TRG_NA", Double},
    {"TRG_SO4", Double},
};

constexpr ColumnDef kRecipeGrains[] = {
    {"GRAIN", Boolean}, {"RECIPE_ID", Long},     {"ROW_ID", Long}, {"NAME", Text},
    {"AMOUNT", Text},   {"AMOUNT_DATA", Double}, {"PPG", Text},    {"PPG_DATA", Double},
    {"COLOR", Text},    {"COLOR_DATA", Double},
};

constexpr ColumnDef kRecipeHops[] = {
    {"RECIPE_ID", Long},
    {"ROW_ID", Long},
    {"NAME", Text},
    {"HOP_FORM", Long},
    {"HOP_SOCK", Boolean},
    {"AMOUNT", Text},
    {"AMOUNT_DATA", Double},
    {"AA", Text},
    {"AA_DATA", Double},
    {"DURATION", Text},
    {"DURATION_DATA", Double},
    {"DRY", Boolean},
};

constexpr ColumnDef kRecipeSalts[] = {
    {"RECIPE_ID", Long},     {"ROW_ID", Long}, {"NAME", Text},  {"AMOUNT", Text},
    {"AMOUNT_DATA", Double}, {"CA", Double},   {"CO3", Double}, {"CL", Double},
    {"MG", Double},          {"NA", Double},   {"SO4", Double},
};

constexpr ColumnDef kRecipeSugars[] = {
    {"RECIPE_ID", Long},      {"ROW_ID", Long}, {"NAME", Text},          {"FERMENT", Text},
    {"FERMENT_DATA", Double}, {"AMOUNT", Text}, {"AMOUNT_DATA", Double},
};

constexpr ColumnDef kRecipeAdjuncts[] = {
    {"RECIPE_ID", Long}, {"ROW_ID", Long},   {"NAME", Text},
    {"AMOUNT", Text},    {"DURATION", Text}, {"WHEN", Text},
};

constexpr ColumnDef kRecipeLog[] = {
    {"RECIPE_ID", Long}, {"ROW_ID", Long}, {"LOGDATE", Text}, {"ACTION", Text}, {"NOTES", Text},
};

constexpr ColumnDef kStyles[] = {
    {"ID", Long, true},      {"NAME", Text},     {"FOLDER_ID", Long},  {"CREATED_WHEN", Date},
    {"MODIFIED_WHEN", Date}, {"DESCR", Memo},    {"TYPE", Long},       {"WATER_PROFILE", Text},
    {"OG_LO", Double},       {"OG_HI", Double},  {"FG_LO", Double},    {"FG_HI", Double},
    {"ABV_LO", Double},      {"ABV_HI", Double}, {"COLOR_LO", Double}, {"COLOR_HI", Double},
    {"IBU_LO", Double},      {"IBU_HI", Double}, {"CO2_LO", Double},   {"CO2_HI", Double},
};

constexpr ColumnDef kGrains[] = {
    {"ID", Long, true}, {"GRAIN", Boolean}, {"NAME", Text},       {"GRAIN_TYPE", Long}, {"DESCR", Memo},
    {"PPG_LO", Double}, {"PPG_HI", Double}, {"COLOR_LO", Double}, {"COLOR_HI", Double},
};

constexpr ColumnDef kGrainTypes[] = {{"ID", Long, true}, {"NAME", Text}, {"GRAIN", Boolean}};

constexpr ColumnDef kHops[] = {
    {"ID", Long, true}, {"NAME", Text},    {"USAGE", Text},
    {"DESCR", Memo},    {"AA_LO", Double}, {"AA_HI", Double},
};

constexpr ColumnDef kYeast[] = {
    {"ID", Long, true}, {"NAME", Text},    {"DESCR", Text},   {"FLOC", Text},      {"FULL_DESCR", Memo},
    {"TYPE", Long},     {"AA_LO", Double}, {"AA_HI", Double}, {"TEMP_LO", Double}, {"TEMP_HI", Double},
};

// The columns of WATER_PROFILES and of SALTS, which one editor writes.
constexpr ColumnDef kIons[] = {
    {"ID", Long, true}, {"NAME", Text}, {"DESCR", Memo}, {"CA", Double},  {"CO3", Double},
    {"CL", Double},     {"MG", Double}, {"NA", Double},  {"SO4", Double},
};

constexpr ColumnDef kSugars[] = {
    {"ID", Long, true}, {"NAME", Text}, {"DESCR", Memo}, {"FERMENT_LO", Double}, {"FERMENT_HI", Double},
};

constexpr TableSchema kTables[] = {
    {"FOLDERS", kFolders},
    {"RECIPES", kRecipes},
    {"RECIPE_GRAINS", kRecipeGrains},
    {"RECIPE_HOPS", kRecipeHops},
    {"RECIPE_SALTS", kRecipeSalts},
    {"RECIPE_SUGARS", kRecipeSugars},
    {"RECIPE_ADJUNCTS", kRecipeAdjuncts},
    {"RECIPE_LOG", kRecipeLog},
    {"STYLES", kStyles},
    {"GRAINS", kGrains},
    {"GRAIN_TYPES", kGrainTypes},
    {"HOPS", kHops},
    {"YEAST", kYeast},
    {"WATER_PROFILES", kIons},
    {"SALTS", kIons},
    {"SUGARS", kSugars},
};

struct IndexDef {
    std::string_view table;
    std::string_view columns;
};

// For finding the rows of one recipe, looking up names, and reading the nodes of the tree in the order of
// their names.
constexpr IndexDef kIndexes[] = {
    {"RECIPE_GRAINS", "RECIPE_ID"},
    {"RECIPE_HOPS", "RECIPE_ID"},
    {"RECIPE_SALTS", "RECIPE_ID"},
    {"RECIPE_SUGARS", "RECIPE_ID"},
    {"RECIPE_ADJUNCTS", "RECIPE_ID"},
    {"RECIPE_LOG", "RECIPE_ID"},
    {"RECIPES", "NAME, STYLE_ID, FOLDER_ID"},
    {"RECIPES", "STYLE_ID, NAME"},
    {"RECIPES", "FOLDER_ID, NAME"},
    {"STYLES", "NAME"},
    {"STYLES", "FOLDER_ID, NAME"},
    {"FOLDERS", "PARENT_ID, NAME, STYLE"},
    {"GRAINS", "NAME"},
    {"GRAIN_TYPES", "NAME"},
    {"HOPS", "NAME"},
    {"YEAST", "NAME"},
    {"WATER_PROFILES", "NAME"},
    {"SALTS", "NAME"},
    {"SUGARS", "NAME"},
};

std::string_view TypeOf(const ColumnDef& column) {
    if (column.counter) return "INTEGER PRIMARY KEY AUTOINCREMENT";
    switch (column.type) {
        case Boolean:
            return "BOOLEAN";
        case Long:
            return "INTEGER";
        case Double:
            return "DOUBLE";
        case Date:
            return "DATETIME";
        case Memo:
            return "LONGTEXT";
        default:
            return "TEXT";
    }
}

std::string Declaration(const ColumnDef& column) {
    // The name is quoted, since one column is named like a keyword.
    std::string declaration = "\"";
    declaration.append(column.name).append("\" ").append(TypeOf(column));
    return declaration + ColumnRules(column.name, column.type);
}

std::string CreateTable(const TableSchema& table) {
    std::string sql = "CREATE TABLE " + std::string(table.name) + " (";
    for (const ColumnDef& column : table.columns) {
        if (&column != table.columns.data()) sql += ", ";
        sql += Declaration(column);
    }
    return sql + ");\n";
}

// Names the index after its table and columns: RECIPES_STYLE_ID_NAME.
std::string CreateIndex(const IndexDef& index) {
    std::string name(index.table);
    name += '_';
    for (const char c : index.columns)
        if (c != ' ') name += c == ',' ? '_' : c;
    return "CREATE INDEX " + name + " ON " + std::string(index.table) + " (" + std::string(index.columns) +
           ");\n";
}

// Returns "TABLE" for each table and "TABLE.COLUMN" for each column of the database.
std::set<std::string> NamesIn(Database& database) {
    std::set<std::string> names;
    for (Recordset rows = database.OpenRecordset("SELECT T.name, C.name FROM sqlite_schema AS T, "
                                                 "pragma_table_info(T.name) AS C WHERE T.type = 'table'");
         !rows.AtEnd(); rows.MoveNext()) {
        const std::string table = rows.Fields(0).Text();
        names.insert(table);
        names.insert(table + "." + rows.Fields(1).Text());
    }
    return names;
}

[[noreturn]] void RaiseMissing(const Database& database, const std::string& what) {
    throw Error("Database", "'" + database.Path() + "' is no Tunwright database: it has no " + what + ".",
                SQLITE_SCHEMA);
}

}  // namespace

std::string ColumnRules(std::string_view name, FieldType type) {
    if (type == Text || type == Memo) return " COLLATE TWTEXT";
    if (type != Date) return {};
    std::string rules = " COLLATE TWDATE CHECK (\"";
    return rules.append(name).append(
        "\" GLOB '[01][0-9]/[0-3][0-9]/[0-9][0-9][0-9][0-9] [0-2][0-9]:[0-5][0-9]:[0-5][0-9]')");
}

std::span<const TableSchema> MainSchema() {
    return kTables;
}

void CreateSchema(Database& database) {
    std::string sql;
    for (const TableSchema& table : kTables) sql += CreateTable(table);
    for (const IndexDef& index : kIndexes) sql += CreateIndex(index);
    const UnitOfWork unit(database);
    database.ExecuteNative(sql);
}

std::unique_ptr<Database> CreateMainDatabaseInMemory() {
    std::unique_ptr<Database> database = Database::FromImage({});
    CreateSchema(*database);
    return database;
}

void CheckSchema(Database& database) {
    const std::set<std::string> names = NamesIn(database);
    for (const TableSchema& table : kTables) {
        const std::string tableName(table.name);
        if (!names.contains(tableName)) RaiseMissing(database, "table " + tableName);
        for (const ColumnDef& column : table.columns) {
            const std::string columnName = tableName + "." + std::string(column.name);
            if (!names.contains(columnName)) RaiseMissing(database, "column " + columnName);
        }
    }
}

std::unique_ptr<Database> OpenMainDatabase(const std::string& path) {
    std::unique_ptr<Database> database = Database::OpenDatabase(path, true);
    CheckSchema(*database);
    return database;
}

}  // namespace tw
