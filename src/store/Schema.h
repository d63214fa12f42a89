// The tables of the program's database: columns, types, counter keys and the indexes that the reads need.
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
    bool counter = false;  // a counter key: assigned by the store, never used again after a delete
};

struct TableSchema {
    std::string_view name;
    std::span<const ColumnDef> columns;
};

// What stands behind the type in the declaration of a column of that name: its order of texts, and for a date
// the check of its form.
std::string ColumnRules(std::string_view name, FieldType type);
// All tables of the main database, in the order in which they are made.
std::span<const TableSchema> MainSchema();
// Makes every table and index of the main database. REQUIRES: the database holds none of them.
void CreateSchema(Database& database);
// Raises an error that names the first table or column that the database lacks.
void CheckSchema(Database& database);
// Opens the main database exclusively and checks its schema. Raises the errors of both; the file is untouched
// then.
std::unique_ptr<Database> OpenMainDatabase(const std::string& path);

}  // namespace tw
