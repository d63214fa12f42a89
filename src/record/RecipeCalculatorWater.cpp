// The effect of a recipe's brewing salts, and how close the water comes to its target.
#include <cmath>

#include "platform/Error.h"
#include "record/RecipeCalculator.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// Tolerance for rounding errors of binary arithmetic. Both numbers have at most two decimals, so any smaller
// difference is such an error; exactly 2.5 PPM or 3% counts as close enough.
constexpr double kTrace = 1e-6;

}  // namespace

void RecipeCalculator::UpdateTreatmentNeeded() {
    Grid& water = r_.gridWater;
    for (int col = WaterCol::FirstIon; col < water.Cols(); ++col) {
        const RoundedQuantity needed = FormatQuantity(
            Finite(water.Number(WaterRow::Target, col) - water.Number(WaterRow::Source, col)), 0);
        water.SetValue(WaterRow::Needed, col, CellValue::Of(needed.value));
        water.SetText(WaterRow::Needed, col, needed.text);
        MarkTreatmentTotal(col);
    }
}

// Bold means that the treatment comes close enough to what this ion needs.
void RecipeCalculator::MarkTreatmentTotal(int col) {
    Grid& water = r_.gridWater;
    const double needed = water.Number(WaterRow::Needed, col);
    const double miss = std::abs(needed - water.Number(WaterRow::Totals, col));
    water.SetBold(WaterRow::Totals, col, miss <= 2.5 + kTrace || miss <= 0.03 * needed + kTrace);
}

void RecipeCalculator::UpdateTreatmentRow(int row, bool skipTotals) {
    Grid& grid = r_.gridTreatment;
    const bool known = !IsBlank(grid.Text(row, TreatmentCol::Amount)) && !IsBlank(r_.txtTotalVol.Text());
    for (int col = TreatmentCol::FirstIon; col < grid.Cols(); ++col) {
        if (!known) {
            grid.SetText(row, col, "");
            continue;
        }
        // The cell's own number is the salt's factor, so only the text is written.
        const double ppm =
            Divide(grid.Number(row, TreatmentCol::Amount) * grid.Number(row, col), r_.txtTotalVol.Value());
        grid.SetText(row, col, FormatQuantity(ppm, 0).text);
    }
    if (!skipTotals) UpdateTreatmentTotals();
}

void RecipeCalculator::UpdateTreatmentTotals() {
    Grid& water = r_.gridWater;
    const Grid& grid = r_.gridTreatment;
    const bool known = !IsBlank(r_.txtTotalVol.Text());
    for (int col = TreatmentCol::FirstIon; col < grid.Cols(); ++col) {
        double total = 0;
        if (known)
            for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
                if (!grid.Empty(row, col))
                    total += Divide(grid.Number(row, TreatmentCol::Amount) * grid.Number(row, col),
                                    r_.txtTotalVol.Value());
        const RoundedQuantity rounded = FormatQuantity(Finite(total), 0);
        water.SetValue(WaterRow::Totals, col, CellValue::Of(rounded.value));
        water.SetText(WaterRow::Totals, col, rounded.text);
        MarkTreatmentTotal(col);
    }
}

void RecipeCalculator::RecalcTreatment() {
    for (int row = Grid::FixedRows(); row < r_.gridTreatment.EndOfData(); ++row)
        UpdateTreatmentRow(row, true);
    UpdateTreatmentTotals();
}

}  // namespace tw
