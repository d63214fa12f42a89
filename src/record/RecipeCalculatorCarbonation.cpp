// Carbonation, priming and the keg.
#include "calc/Figures.h"
#include "platform/Error.h"
#include "record/RecipeCalculator.h"
#include "values/NumberText.h"

namespace tw {
namespace {

int ResidualRow(const Grid& priming) {
    return priming.TotalsRow() - 1;
}

}  // namespace

void RecipeCalculator::CalcPrimingVolumes(int row, bool skipTotal) {
    Grid& grid = r_.gridPriming;
    if (grid.Empty(row, PrimingCol::Fermentable) || grid.Empty(row, PrimingCol::Amount) ||
        (r_.txtFinalVol.Empty() && r_.txtTotalVol.Empty())) {
        grid.Clear(row, PrimingCol::Volumes);
    } else {
        const double gallons =
            r_.txtFinalVol.Committed().empty() ? r_.txtTotalVol.Value() : r_.txtFinalVol.Value();
        grid.SetComputed(row, PrimingCol::Volumes,
                         PrimingVolumes(grid.Number(row, PrimingCol::Amount),
                                        grid.Number(row, PrimingCol::Fermentable), gallons));
    }
    if (!skipTotal) TotalPrimingVolumes();
}

void RecipeCalculator::TotalPrimingVolumes() {
    Grid& grid = r_.gridPriming;
    const int residual = ResidualRow(grid);
    if (grid.Empty(residual, PrimingCol::Volumes)) {
        grid.Clear(grid.TotalsRow(), PrimingCol::Volumes);
    } else {
        double sum = 0;
        for (int row = Grid::FixedRows(); row <= residual; ++row)
            if (!grid.Empty(row, PrimingCol::Volumes)) sum += grid.Number(row, PrimingCol::Volumes);
        grid.SetComputed(grid.TotalsRow(), PrimingCol::Volumes, Finite(sum));
    }
    ShowCO2();
}

void RecipeCalculator::RecalcPriming() {
    for (int row = Grid::FixedRows(); row < r_.gridPriming.EndOfData(); ++row) CalcPrimingVolumes(row, true);
    TotalPrimingVolumes();
}

void RecipeCalculator::ShowCO2() {
    const bool bottled = r_.Bottled();
    const Grid& grid = bottled ? r_.gridPriming : r_.gridPressure;
    const int row = bottled ? grid.TotalsRow() : 1;
    const int col = bottled ? static_cast<int>(PrimingCol::Volumes) : static_cast<int>(PressureCol::Volumes);
    r_.txtCO2.SetText(grid.Empty(row, col) ? "" : FormatNumber(grid.Number(row, col), "0.00 volumes"));
}

bool RecipeCalculator::HasKegVolumes(double psi) const {
    return KegVolumes(r_.txtTemp.Value(), psi).has_value();
}

bool RecipeCalculator::CalcKegVolumes() {
    Grid& grid = r_.gridPressure;
    // Without a pressure or a temperature, the keg's volumes are unknown.
    if (grid.Empty(1, PressureCol::Pressure) || r_.txtTemp.Empty()) {
        grid.Clear(1, PressureCol::Volumes);
        return true;
    }
    const std::optional<double> volumes =
        KegVolumes(r_.txtTemp.Value(), grid.Number(1, PressureCol::Pressure));
    if (!volumes) return false;
    grid.SetComputed(1, PressureCol::Volumes, *volumes);
    return true;
}

bool RecipeCalculator::CalcCarbonation() {
    Grid& priming = r_.gridPriming;
    if (r_.txtTemp.Empty()) {
        r_.gridPressure.Clear(1, PressureCol::Volumes);
        priming.Clear(ResidualRow(priming), PrimingCol::Volumes);
    } else {
        if (!CalcKegVolumes()) return false;
        priming.SetComputed(ResidualRow(priming), PrimingCol::Volumes, ResidualCO2(r_.txtTemp.Value()));
    }
    TotalPrimingVolumes();
    return true;
}

bool RecipeCalculator::CanEnableCO2() const {
    if (r_.txtTemp.Empty()) return false;
    if (!r_.Bottled()) return true;
    if (r_.txtFinalVol.Empty() && r_.txtTotalVol.Empty()) return false;
    const Grid& grid = r_.gridPriming;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
        if (!grid.Empty(row, PrimingCol::Fermentable) && grid.Number(row, PrimingCol::Fermentable) > 0)
            return true;
    return false;
}

double RecipeCalculator::CO2Volumes() const {
    if (r_.txtCO2.Empty()) return 0;
    if (r_.Bottled()) return r_.gridPriming.Total(PrimingCol::Volumes);
    return r_.gridPressure.Number(1, PressureCol::Volumes);
}

}  // namespace tw
