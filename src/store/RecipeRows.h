// One recipe as the rows of its tables, as saving writes and opening reads them. Plain data; FieldRules.h and
// CellRules.h define which column stores what, and the document maps its controls to it and back.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"
#include "record/CellRules.h"
#include "record/FieldRules.h"
#include "store/Database.h"
#include "store/RecipeFollowers.h"

namespace tw {

// What the columns of a field or cell contain. A part is absent if its column is NULL or does not exist: a
// text column has no number; an option, a hop form and a check mark (1 or 0) have no text.
struct StoredValue {
    std::optional<std::string> text;
    std::optional<double> number;
    bool operator==(const StoredValue&) const = default;
};

// One data row of a grid.
struct StoredLine {
    int rowId = 0;                   // index among the data rows, from 0
    std::vector<StoredValue> cells;  // one per column of the grid
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

    // The entry of FieldId::Name is unused; see name.
    StoredValue& operator[](FieldId field) { return fields[static_cast<std::size_t>(field)]; }
    const StoredValue& operator[](FieldId field) const { return fields[static_cast<std::size_t>(field)]; }
    // The lines of a grid. For a grid stored in the recipe's own row, all lines exist, in order.
    std::vector<StoredLine>& operator[](GridId grid) { return grids[static_cast<std::size_t>(grid)]; }
    const std::vector<StoredLine>& operator[](GridId grid) const {
        return grids[static_cast<std::size_t>(grid)];
    }

    std::array<StoredValue, kFields> fields;
    std::array<std::vector<StoredLine>, kGrids> grids;
};

// Returns a line with that rowId and an empty cell for each column of the grid.
StoredLine EmptyLine(GridId grid, int rowId);

// Writes a recipe as a new row with its lines and returns the id of the row. An absent number is written as
// 0. rowWritten is called with the id as soon as the row exists, since an error later leaves the row there.
// Returns nullopt if the new row cannot be found again or an UPDATE changes no row; what was written before
// stays. Raises the store's errors and those of rowWritten. REQUIRES: createdWhen is set.
using RowWritten = std::function<void(std::int64_t id)>;
std::optional<std::int64_t> InsertRecipe(Database& database, const StoredRecipe& recipe,
                                         const RowWritten& rowWritten = {});

// Deletes the recipe's row and its lines in RECIPE_GRAINS, RECIPE_HOPS, RECIPE_ADJUNCTS and RECIPE_LOG, and
// tells what follows it. Leaves its lines in RECIPE_SALTS and RECIPE_SUGARS, on purpose: the stored form must
// not change. Raises the store's errors.
void DeleteRecipeRows(Database& database, std::int64_t id, RecipeEnd why);

// Reads the recipe of that name, ignoring case, with all its lines, those of each grid table in descending
// order of rowId; nullopt if there is none.
std::optional<StoredRecipe> ReadRecipe(Database& database, std::string_view name);

// Returns the id of the recipe of that name, ignoring case and spaces at the ends of name; nullopt if there
// is none.
std::optional<std::int64_t> RecipeId(Database& database, std::string_view name);
// True if a recipe of that name exists, compared as by RecipeId.
bool RecipeExists(Database& database, std::string_view name);

}  // namespace tw
