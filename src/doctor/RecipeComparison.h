// Finds the rows of a recipe that still say what the lines of its original said when they were typed.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "doctor/RecipePlan.h"
#include "document/RecipeDocument.h"

namespace tw {

// A row of the recipe and the planned line that it was.
struct ComparedRow {
    const Grid* grid = nullptr;  // never nullptr in a comparison
    int row = 0;
    const PlannedLine* line = nullptr;  // nullptr for a row that the brewer has added
    bool unchanged = false;
};

struct RecipeComparison {
    std::vector<ComparedRow> rows;         // all rows that an export writes, in the order of the grids
    std::vector<const PlannedLine*> gone;  // the lines whose rows the brewer has deleted
    // The number of rows that are unchanged.
    std::size_t Unchanged() const;
};

// Pairs rows and lines of the same name in their order. REQUIRES: the plan outlives the result.
RecipeComparison Compare(const RecipeRecord& record, const RecipePlan& plan);

}  // namespace tw
