#include "document/GridAsides.h"

#include "values/NumberText.h"

namespace tw {
namespace {

double Pounds(const Grid& grid) {
    double sum = 0;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
        sum += grid.Number(row, GrainCol::Amount);
    return sum;
}

}  // namespace

bool ShowsShares(const Grid& grid) {
    return grid.Id() == GridId::Grain || grid.Id() == GridId::Extract;
}

std::string ShareText(const RecipeRecord& record, const Grid& grid, int row) {
    if (!grid.IsDataRow(row) || grid.Empty(row, GrainCol::Amount)) return {};
    const double all = Pounds(record.gridGrain) + Pounds(record.gridExtract);
    if (all <= 0) return {};
    return FormatNumber(grid.Number(row, GrainCol::Amount) / all * 100, "0.0");
}

std::string HopWeightText(const RecipeCalculator& calculator, const Grid& grid, int row, int col) {
    if (grid.Id() != GridId::Hops || col != HopCol::Amount || !grid.IsDataRow(row)) return {};
    const CellValue::Kind kind = grid.At(row, col).value.kind;
    if (kind != CellValue::Kind::AlphaAcidUnits && kind != CellValue::Kind::BitternessUnits) return {};
    const std::optional<double> ounces = calculator.HopOunces(row);
    return ounces ? "= " + FormatNumber(*ounces, "0.00 oz") : std::string();
}

}  // namespace tw
