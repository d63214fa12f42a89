// Maps the columns of a recipe's tables to its values: the rules of fields and cells in the order of
// the schema.
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

// One column and the value that it stores.
struct RecipeColumn {
    enum class Holds : std::uint8_t {
        Text,      // the trimmed text
        Number,    // the number
        BareText,  // the text, which must be a number; NULL if blank
        Whole,     // the number as an integer
        Flag       // the number as TRUE or FALSE
    };
    std::string_view name;
    Holds holds;
    // What the value belongs to: a field, an option or a cell. For a grid stored in the recipe's own row,
    // line is the index of its line; otherwise the column stores the cell of each line in turn.
    enum class Owner : std::uint8_t { Field, Option, Cell };
    Owner owner;
    FieldId field = FieldId::Name;
    OptionId option = OptionId::IbuMethod;
    GridId grid = GridId::Grain;
    std::size_t line = 0;
    std::size_t cell = 0;
};

// The columns of RECIPES other than the ID, name, style, folder and dates.
const std::vector<RecipeColumn>& RecipeColumns();
// The columns of a grid's own table other than those that identify the line; none for a grid without a table.
const std::vector<RecipeColumn>& LineColumns(GridId grid);

}  // namespace tw
