#include "record/RecipeCalculator.h"

#include "platform/Error.h"
#include "values/Text.h"

namespace tw {

void RecipeCalculator::BoilVolCommitted() {
    CalcBG();
    RecalcHops();
}

void RecipeCalculator::TotalVolCommitted() {
    RecalcPoints(r_.gridGrain, true);
    RecalcHCU(r_.gridGrain);
    RecalcPoints(r_.gridExtract, false);
    RecalcHCU(r_.gridExtract);
    CalcOGAndColor();
    RecalcTreatment();
    if (r_.txtFinalVol.Empty()) RecalcPriming();
    RefreshCarbonationCommand();
    commands_.EnableResizeRecipe(!r_.txtTotalVol.Empty());
    r_.cmdCalcTreatment.SetEnabled(!IsBlank(r_.txtTotalVol.Text()));
}

void RecipeCalculator::FinalVolCommitted() {
    RecalcPriming();
    RefreshCarbonationCommand();
}

void RecipeCalculator::ExtractCommitted() {
    RecalcPoints(r_.gridGrain, true);
    CalcOG();
}

void RecipeCalculator::HopExtractionCommitted() {
    RecalcHops();
}

void RecipeCalculator::FGCommitted() {
    CalcABV();
}

Commit RecipeCalculator::TempCommitted() {
    if (!CalcCarbonation())
        return Commit::Refused({kCarbonationFailed, "Please enter a more reasonable temperature."});
    RefreshCarbonationCommand();
    return Commit::Accepted();
}

void RecipeCalculator::FermentableCommitted(Grid& grid, int row, int col) {
    const bool useGrainExtraction = grid.Id() == GridId::Grain;
    switch (col) {
        case kWholeRow:
        case GrainCol::Amount:
            CalcPoints(grid, row, useGrainExtraction, false);
            CalcHCU(grid, row, false);
            ShowGridTotal(grid);
            CalcOGAndColor();
            break;
        case GrainCol::Ppg:
            CalcPoints(grid, row, useGrainExtraction, false);
            CalcOG();
            break;
        case GrainCol::Color:
            CalcHCU(grid, row, false);
            CalcColor();
            break;
        default:
            break;
    }
}

void RecipeCalculator::HopCommitted(int row) {
    CalcHopIBU(r_.gridHops, row, false);
    ShowGridTotal(r_.gridHops);
    ShowIBU();
}

void RecipeCalculator::PrimingCommitted(int row) {
    CalcPrimingVolumes(row, false);
    RefreshCarbonationCommand();
}

void RecipeCalculator::PressureCommitted() {
    CalcKegVolumes();
    ShowCO2();
}

void RecipeCalculator::TreatmentCommitted(int row) {
    UpdateTreatmentRow(row, false);
}

void RecipeCalculator::PackagingChosen() {
    ShowCO2();
    RefreshCarbonationCommand();
}

void RecipeCalculator::RefreshCommands() {
    commands_.EnableResizeRecipe(!r_.txtTotalVol.Empty());
    commands_.EnableChangeStrength(!r_.txtOG.Empty());
    commands_.EnableChangeBitterness(!r_.txtIBU.Empty());
    RefreshCarbonationCommand();
}

void RecipeCalculator::TotalColumn(Grid& grid, int col) {
    double sum = 0;
    bool counted = false;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) {
        if (grid.Empty(row, col)) continue;
        sum += grid.Number(row, col);
        counted = true;
    }
    if (counted)
        grid.SetComputed(grid.TotalsRow(), col, Finite(sum));
    else
        grid.Clear(grid.TotalsRow(), col);
}

}  // namespace tw
