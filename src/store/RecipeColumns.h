// Which column of a recipe's tables holds what: the rules of fields and cells in the order of the schema.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "record/Controls.h"
#include "record/Grid.h"

namespace tw {

struct StoredRecipe;
struct StoredValue;

// One column and the value behind it.
struct RecipeColumn {
    enum class Holds : std::uint8_t {
        Text,      // the trimmed text
        Number,    // the number
        BareText,  // the text, which is a number; NULL for a blank one
        Whole,     // the number as a whole one
        Flag       // the number as TRUE or FALSE
    };
    std::string_view name;
    Holds holds;
    // Whose value it is: a field's, an option's, or that of a cell: of the line of that place in a grid that
    // the recipe's own row stores, otherwise of each line in its turn.
    enum class Owner : std::uint8_t { Field, Option, Cell };
    Owner owner;
    FieldId field = FieldId::Name;
    OptionId option = OptionId::IbuMethod;
    GridId grid = GridId::Grain;
    std::size_t line = 0;
    std::size_t cell = 0;
};

// The columns of RECIPES behind those that identify and date the row.
const std::vector<RecipeColumn>& RecipeColumns();
// The columns of the grid's own table behind those that identify the line. None for a grid without a table.
const std::vector<RecipeColumn>& LineColumns(GridId grid);

}  // namespace tw
