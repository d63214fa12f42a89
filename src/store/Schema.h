// The schema of the program's database: tables, columns, types, counter keys, and the indexes that
// reading needs.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "store/Database.h"

namespace tw {

struct ColumnDef {
    std::string_view name;
    FieldType type;
    bool counter = false;  // a key assigned by the store and never reused after a delete
};

struct TableSchema {
    std::string_view name;
    std::span<const ColumnDef> columns;
};

// Returns the rules that follow the type in a column's declaration: the collation of a text and, for a date,
// the check of its form.
std::string ColumnRules(std::string_view name, FieldType type);
// All tables of the main database, in the order in which they are created.
std::span<const TableSchema> MainSchema();
// Creates all tables and indexes of the main database. REQUIRES: the database has none of them.
void CreateSchema(Database& database);
// Creates a database in memory with all tables and no rows.
std::unique_ptr<Database> CreateMainDatabaseInMemory();
// Raises an Error that names the first table or column missing from the database.
void CheckSchema(Database& database);
// Opens the main database exclusively and checks its schema. Raises the errors of OpenDatabase and
// CheckSchema, which leave the file untouched.
std::unique_ptr<Database> OpenMainDatabase(const std::string& path);

}  // namespace tw
