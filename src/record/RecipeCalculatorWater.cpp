// What the brewing salts of a recipe add, and how near the water comes to its target.
#include <cmath>

#include "platform/Error.h"
#include "record/RecipeCalculator.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// Both numbers have two decimals at most, so that a smaller difference is a trace of binary arithmetic:
// exactly 2.5 PPM or 3% is close enough.
constexpr double kTrace = 1e-6;

}  // namespace

void RecipeCalculator::UpdateTreatmentNeeded() {
    Grid& water = r_.gridWater;
    for (int col = WaterCol::FirstIon; col < water.Cols(); ++col) {
        double needed = Finite(water.Number(WaterRow::Target, col) - water.Number(WaterRow::Source, col));
        const std::string text = FormatQuantity(needed, 0);
        water.SetValue(WaterRow::Needed, col, CellValue::Of(needed));
        water.SetText(WaterRow::Needed, col, text);
        MarkTreatmentTotal(col);
    }
}

// Bold says that this ion's treatment is close enough.
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
        double ppm =
            Divide(grid.Number(row, TreatmentCol::Amount) * grid.Number(row, col), r_.txtTotalVol.Value());
        grid.SetText(row, col, FormatQuantity(ppm, 0));
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
        total = Finite(total);
        const std::string text = FormatQuantity(total, 0);
        water.SetValue(WaterRow::Totals, col, CellValue::Of(total));
        water.SetText(WaterRow::Totals, col, text);
        MarkTreatmentTotal(col);
    }
}

void RecipeCalculator::RecalcTreatment() {
    for (int row = Grid::FixedRows(); row < r_.gridTreatment.EndOfData(); ++row)
        UpdateTreatmentRow(row, true);
    UpdateTreatmentTotals();
}

}  // namespace tw
