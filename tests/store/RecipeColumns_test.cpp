// Compares the tables of fields and cells with the schema: a column missing in one of them
// would silently be lost.
#include "store/RecipeColumns.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <string>

#include "record/CellRules.h"
#include "record/FieldRules.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using Names = std::set<std::string>;

Names ColumnsInSchema(std::string_view table) {
    Names names;
    for (const TableSchema& schema : MainSchema())
        if (schema.name == table)
            for (const ColumnDef& column : schema.columns) names.emplace(column.name);
    return names;
}

Names NamesOf(const std::vector<RecipeColumn>& columns) {
    Names names;
    for (const RecipeColumn& column : columns) names.emplace(column.name);
    return names;
}

// Adds the columns that store the cell of a rule, each name with a prefix.
void AddColumns(Names& names, const CellRule& rule, std::string_view prefix) {
    if (rule.stored == CellStored::No) return;
    const std::string name = std::string(prefix) + std::string(rule.column);
    names.insert(name);
    if (rule.stored == CellStored::Quantity) names.insert(name + "_DATA");
}

TEST(RecipeColumns, AreAllThatTheSchemaHasOfARecipe) {
    Names wanted = ColumnsInSchema("RECIPES");
    for (const char* const own : {"ID", "NAME", "STYLE_ID", "FOLDER_ID", "CREATED_WHEN", "MODIFIED_WHEN"})
        EXPECT_EQ(wanted.erase(own), 1U) << own;
    EXPECT_EQ(NamesOf(RecipeColumns()), wanted);
    for (const GridRule& grid : GridRules()) {
        if (grid.lines.name.empty()) continue;
        Names lines = ColumnsInSchema(grid.lines.name);
        for (const std::string_view own :
             {std::string_view("RECIPE_ID"), std::string_view("ROW_ID"), grid.lines.flagColumn})
            lines.erase(std::string(own));
        EXPECT_EQ(NamesOf(LineColumns(grid.id)), lines) << grid.name;
    }
}

TEST(RecipeColumns, AreAllThatTheRulesStore) {
    Names wanted{"IBU_METHOD", "BOTTLED"};
    for (const FieldRule& rule : FieldRules()) {
        if (rule.stored == FieldStored::Name) continue;
        wanted.emplace(rule.column);
        if (rule.stored == FieldStored::Quantity) wanted.insert(std::string(rule.column) + "_DATA");
    }
    for (const GridRule& grid : GridRules()) {
        for (const std::string_view prefix : grid.prefixes)
            for (const CellRule& rule : grid.columns) AddColumns(wanted, rule, prefix);
        if (grid.lines.name.empty()) continue;
        Names lines;
        for (const CellRule& rule : grid.columns) AddColumns(lines, rule, "");
        EXPECT_EQ(NamesOf(LineColumns(grid.id)), lines) << grid.name;
    }
    EXPECT_EQ(NamesOf(RecipeColumns()), wanted);
}

TEST(RecipeColumns, StandInTheOrderOfTheSchema) {
    std::vector<std::string> hops;
    for (const RecipeColumn& column : LineColumns(GridId::Hops)) hops.emplace_back(column.name);
    EXPECT_THAT(hops, ElementsAre("NAME", "HOP_FORM", "HOP_SOCK", "AMOUNT", "AMOUNT_DATA", "AA", "AA_DATA",
                                  "DURATION", "DURATION_DATA", "DRY"));
}

}  // namespace
}  // namespace tw::test
