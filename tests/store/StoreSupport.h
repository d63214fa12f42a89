// Shared by the tests of the store: temporary files, the rows of a statement as text, and a recipe
// that fills every column.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "store/Database.h"
#include "store/RecipeRows.h"

namespace tw::test {

// A folder for one test, deleted with its contents at the end.
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
// Creates a database file with the full schema and closes it.
void MakeMainDatabase(const std::string& path);

// Returns the rows of a SELECT: cells by Field::Text, NULL as "NULL".
using Rows = std::vector<std::vector<std::string>>;
Rows Select(Database& database, std::string_view sql);
// Returns the first cell of the first row.
std::string Cell(Database& database, std::string_view sql);

// Runs action and returns the error that it raises; fails the test if there is none.
template <typename Action>
Error ErrorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error;
    }
    return {"", "no error was raised", -1};
}

// Returns a recipe with a value in every column and linesPerTable lines in every table.
StoredRecipe FullRecipe(const std::string& name, int linesPerTable = 2);
// Returns everything in a recipe except its id, for comparisons.
std::string Describe(const StoredRecipe& recipe);
// Returns all rows of all tables.
std::string Dump(Database& database);

}  // namespace tw::test
