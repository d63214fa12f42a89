#include "store/RecipeColumns.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "record/CellRules.h"
#include "record/FieldRules.h"
#include "store/Schema.h"

namespace tw {
namespace {

using Holds = RecipeColumn::Holds;
using Owner = RecipeColumn::Owner;

constexpr std::string_view kNumberSuffix = "_DATA";

// True if name is the column with the number that belongs to the text in column.
bool IsNumberOf(std::string_view name, std::string_view column) {
    return name.size() == column.size() + kNumberSuffix.size() && name.starts_with(column) &&
           name.ends_with(kNumberSuffix);
}

std::optional<Holds> HeldIn(std::string_view name, std::string_view column, FieldStored stored) {
    if (stored == FieldStored::Name) return std::nullopt;
    if (name == column) return Holds::Text;
    if (stored == FieldStored::Quantity && IsNumberOf(name, column)) return Holds::Number;
    return std::nullopt;
}

std::optional<Holds> HeldIn(std::string_view name, std::string_view column, CellStored stored) {
    if (stored == CellStored::Quantity && IsNumberOf(name, column)) return Holds::Number;
    if (column.empty() || name != column) return std::nullopt;
    switch (stored) {
        case CellStored::Text:
        case CellStored::Quantity:
            return Holds::Text;
        case CellStored::Number:
            return Holds::Number;
        case CellStored::BareText:
            return Holds::BareText;
        case CellStored::Form:
            return Holds::Whole;
        case CellStored::Flag:
            return Holds::Flag;
        case CellStored::No:
            break;
    }
    return std::nullopt;
}

std::optional<RecipeColumn> FieldColumn(std::string_view name) {
    for (const FieldRule& rule : FieldRules())
        if (const auto holds = HeldIn(name, rule.column, rule.stored))
            return RecipeColumn{.name = name, .holds = *holds, .owner = Owner::Field, .field = rule.id};
    return std::nullopt;
}

std::optional<RecipeColumn> OptionColumn(std::string_view name) {
    if (name == "IBU_METHOD")
        return RecipeColumn{
            .name = name, .holds = Holds::Whole, .owner = Owner::Option, .option = OptionId::IbuMethod};
    if (name == "BOTTLED")
        return RecipeColumn{
            .name = name, .holds = Holds::Flag, .owner = Owner::Option, .option = OptionId::Packaging};
    return std::nullopt;
}

// Finds a column of a cell; prefix precedes its name in the recipe's own row.
std::optional<RecipeColumn> CellColumn(std::string_view name, const GridRule& grid, std::string_view prefix,
                                       std::size_t line) {
    if (!name.starts_with(prefix)) return std::nullopt;
    for (std::size_t cell = 0; cell < grid.columns.size(); ++cell) {
        const CellRule& rule = grid.columns[cell];
        if (const auto holds = HeldIn(name.substr(prefix.size()), rule.column, rule.stored))
            return RecipeColumn{.name = name,
                                .holds = *holds,
                                .owner = Owner::Cell,
                                .grid = grid.id,
                                .line = line,
                                .cell = cell};
    }
    return std::nullopt;
}

std::optional<RecipeColumn> OwnRowColumn(std::string_view name) {
    if (auto column = FieldColumn(name)) return column;
    if (auto column = OptionColumn(name)) return column;
    for (const GridRule& grid : GridRules())
        for (std::size_t line = 0; line < grid.prefixes.size(); ++line)
            if (auto column = CellColumn(name, grid, grid.prefixes[line], line)) return column;
    return std::nullopt;
}

template <class Find>
std::vector<RecipeColumn> ColumnsOf(std::string_view table, Find find) {
    std::vector<RecipeColumn> columns;
    const auto schema = MainSchema();
    const auto found = std::ranges::find(schema, table, &TableSchema::name);
    if (found == schema.end()) return columns;
    for (const ColumnDef& def : found->columns)
        if (const std::optional<RecipeColumn> column = find(def.name)) columns.push_back(*column);
    return columns;
}

}  // namespace

const std::vector<RecipeColumn>& RecipeColumns() {
    static const std::vector<RecipeColumn> kColumns = ColumnsOf("RECIPES", OwnRowColumn);
    return kColumns;
}

const std::vector<RecipeColumn>& LineColumns(GridId grid) {
    static const auto kColumns = [] {
        std::array<std::vector<RecipeColumn>, kGrids> columns;
        for (const GridRule& rule : GridRules())
            columns[static_cast<std::size_t>(rule.id)] = ColumnsOf(
                rule.lines.name, [&](std::string_view name) { return CellColumn(name, rule, "", 0); });
        return columns;
    }();
    return kColumns[static_cast<std::size_t>(grid)];
}

}  // namespace tw
