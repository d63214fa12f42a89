// One recipe as the rows of its tables: what a save writes and an opening reads. Plain data; which column
// holds what is said by FieldRules.h and CellRules.h alone. The document maps its controls to it and back.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"
#include "record/CellRules.h"
#include "record/FieldRules.h"
#include "store/Database.h"

namespace tw {

// What the columns of a field or a cell hold. Each half is absent when its column is NULL, or when there is
// none: a column of text has no number, an option, a hop form and a check mark (1 or 0) have no text.
struct StoredValue {
    std::optional<std::string> text;
    std::optional<double> number;
    bool operator==(const StoredValue&) const = default;
};

// One data row of a grid.
struct StoredLine {
    int rowId = 0;                   // its place among the data rows, from 0
    std::vector<StoredValue> cells;  // by column of the grid
};

struct StoredRecipe {
    StoredRecipe();

    std::string name;  // trimmed
    std::int64_t id = 0;
    std::optional<std::int64_t> styleId, folderId;
    std::optional<DateTime> createdWhen;
    DateTime modifiedWhen;
    std::optional<std::int64_t> ibuMethod;
    std::optional<bool> bottled;

    // The name's own value is not among them.
    StoredValue& operator[](FieldId field) { return fields[static_cast<std::size_t>(field)]; }
    const StoredValue& operator[](FieldId field) const { return fields[static_cast<std::size_t>(field)]; }
    // The lines of a grid; those of a grid that the recipe's own row stores are all there, in their order.
    std::vector<StoredLine>& operator[](GridId grid) { return grids[static_cast<std::size_t>(grid)]; }
    const std::vector<StoredLine>& operator[](GridId grid) const {
        return grids[static_cast<std::size_t>(grid)];
    }

    std::array<StoredValue, kFields> fields;
    std::array<std::vector<StoredLine>, kGrids> grids;
};

// A line of that place with as many empty cells as the grid has columns.
StoredLine EmptyLine(GridId grid, int rowId);

// Writes a recipe as a new row with its lines. A value without a number writes 0. Returns false when the new
// row cannot be found again or an UPDATE touches no row; what was written until then stays. Raises the
// store's errors. REQUIRES: createdWhen is set.
bool InsertRecipe(Database& database, const StoredRecipe& recipe);

// Reads the recipe of that name (without regard to case) with all its lines, each list by descending rowId;
// nothing when there is none.
std::optional<StoredRecipe> ReadRecipe(Database& database, std::string_view name);

// True when a recipe of that name (trimmed, without regard to case) exists.
bool RecipeExists(Database& database, std::string_view name);

}  // namespace tw
