#include "document/UnusableNumbers.h"

#include <cmath>

#include "record/FieldRules.h"

namespace tw {
namespace {

// Greater than any number in a recipe; products of numbers like this could overflow.
constexpr double kMostOfAnything = 1e9;
constexpr std::size_t kMostNamed = 6;

bool IsAnAmount(double number) {
    return std::isfinite(number) && number >= 0 && number < kMostOfAnything;
}
// True if a formula can work with the number of a field, which depends on the field's unit.
bool IsUsable(double number, const FieldRule& rule) {
    if (rule.takes == FieldTakes::Fahrenheit) return number >= 0 && number <= 212;
    return IsAnAmount(number) && (number > 0 || rule.mayBeZero);
}

// Returns, for example, "Grain row 2" or "Source Water"; empty for a grid with one row.
std::string RowName(const Grid& grid, int row) {
    if (grid.RowsCanChange())
        return grid.ColumnAt(0).header + " row " + std::to_string(row - Grid::FixedRows() + 1);
    return grid.ColumnAt(0).readOnly ? grid.Text(row, 0) : std::string();
}

void AddCells(const Grid& grid, std::vector<std::string>& fields) {
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
        for (int col = 0; col < grid.Cols(); ++col) {
            if (grid.IsReadOnly(row, col) || grid.Empty(row, col) || IsAnAmount(grid.Number(row, col)))
                continue;
            const std::string name = RowName(grid, row);
            fields.push_back(name.empty() ? grid.ColumnAt(col).header
                                          : name + ", " + grid.ColumnAt(col).header);
        }
}

}  // namespace

std::vector<std::string> UnusableNumbers(const RecipeRecord& record) {
    std::vector<std::string> fields;
    for (const TextBox* const box : record.TextBoxes()) {
        const FieldRule& rule = RuleOf(*box);
        if (rule.stored == FieldStored::Quantity && !box->Empty() && !IsUsable(box->Value(), rule))
            fields.push_back(PlainCaption(rule));
    }
    for (const Grid* grid : record.Grids()) AddCells(*grid, fields);
    return fields;
}

std::string UnusableNumbersText(std::string_view recipe, const std::vector<std::string>& fields) {
    std::string text = "The recipe '";
    text.append(recipe).append("' is open, but some of its stored numbers cannot be used:\r\n");
    for (std::size_t i = 0; i < fields.size() && i < kMostNamed; ++i)
        text.append(i > 0 ? "; " : "").append(fields[i]);
    if (fields.size() > kMostNamed)
        text.append("; and " + std::to_string(fields.size() - kMostNamed) + " more");
    return text.append(
        ".\r\nFigures that need them are not up to date. Correct these entries, then save the recipe.");
}

}  // namespace tw
