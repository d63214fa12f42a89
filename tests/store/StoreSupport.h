// What the tests of the store share: temporary files, the rows of a statement as text, and a recipe that
// fills every column.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "store/Database.h"
#include "store/RecipeRows.h"

namespace tw::test {

// A folder of its own for one test, removed with everything in it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    std::string File(std::string_view name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, std::string_view bytes);
// Makes a closed database file of the full schema.
void MakeMainDatabase(const std::string& path);

// The rows of a SELECT: cells by Field::Text, NULL as "NULL".
using Rows = std::vector<std::vector<std::string>>;
Rows Select(Database& database, std::string_view sql);
// The first cell of the first row.
std::string Cell(Database& database, std::string_view sql);

// Runs action and returns the error that it raises; fails the test when there is none.
template <typename Action>
Error ErrorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error;
    }
    return {"", "no error was raised", -1};
}

// A recipe with a value in every column and `linesPerTable` lines in every table.
StoredRecipe FullRecipe(const std::string& name, int linesPerTable = 2);
// Everything that a recipe holds but its id, for comparing two.
std::string Describe(const StoredRecipe& recipe);
// All rows of all tables.
std::string Dump(Database& database);

}  // namespace tw::test
