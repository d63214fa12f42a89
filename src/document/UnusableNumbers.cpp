#include "document/UnusableNumbers.h"

#include <cmath>

namespace tw {
namespace {

// More than any recipe has of anything; products of such numbers overflow.
constexpr double kMostOfAnything = 1e9;
constexpr std::size_t kMostNamed = 6;

bool IsAnAmount(double number) {
    return std::isfinite(number) && number >= 0 && number < kMostOfAnything;
}
bool IsAVolumeOrGravity(double number) {
    return IsAnAmount(number) && number > 0;
}
bool IsATemperature(double fahrenheit) {
    return fahrenheit >= 0 && fahrenheit <= 212;
}

struct BoxRule {
    TextBox RecipeRecord::*box;
    const char* label;
    bool (*usable)(double);
};

constexpr BoxRule kBoxRules[] = {
    {&RecipeRecord::txtBoilVol, "Boil Volume", IsAVolumeOrGravity},
    {&RecipeRecord::txtTotalVol, "Total Volume", IsAVolumeOrGravity},
    {&RecipeRecord::txtOG, "Original Gravity", IsAVolumeOrGravity},
    {&RecipeRecord::txtFG, "Finished Gravity", IsAVolumeOrGravity},
    {&RecipeRecord::txtExtract, "Extraction Rate", IsAnAmount},
    {&RecipeRecord::txtHopExtraction, "Extraction Constant", IsAnAmount},
    {&RecipeRecord::txtBG, "Boil Gravity", IsAVolumeOrGravity},
    {&RecipeRecord::txtTemp, "Temperature", IsATemperature},
    {&RecipeRecord::txtDilutions, "Dilution Additions", IsAnAmount},
    {&RecipeRecord::txtFinalVol, "Final Volume", IsAVolumeOrGravity},
};

// "Grain row 2", "Source Water", "" for a grid of one row.
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
    for (const BoxRule& rule : kBoxRules) {
        const TextBox& box = record.*rule.box;
        if (!box.Empty() && !rule.usable(box.Value())) fields.emplace_back(rule.label);
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
