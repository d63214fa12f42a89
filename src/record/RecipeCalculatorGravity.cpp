// Gravity, alcohol and colour of a recipe.
#include "calc/Figures.h"
#include "platform/Error.h"
#include "record/RecipeCalculator.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr std::string_view kGravityPattern = "0.##0";

}  // namespace

void RecipeCalculator::CalcPoints(Grid& grid, int row, bool useGrainExtraction, bool skipTotal) {
    if (grid.Empty(row, GrainCol::Amount) || grid.Empty(row, GrainCol::Ppg) || r_.txtTotalVol.Empty()) {
        grid.Clear(row, GrainCol::Points);
    } else {
        double efficiency = 1;
        if (useGrainExtraction) {
            if (r_.txtExtract.Empty()) {
                // The total is deliberately left unchanged here: the commit of the extraction rate
                // recalculates all rows and then empties the total.
                grid.Clear(row, GrainCol::Points);
                return;
            }
            efficiency = r_.txtExtract.Value() / 100;
        }
        grid.SetComputed(
            row, GrainCol::Points,
            Divide(grid.Number(row, GrainCol::Amount) * grid.Number(row, GrainCol::Ppg) * efficiency,
                   r_.txtTotalVol.Value()));
    }
    if (!skipTotal) TotalPoints(grid);
}

void RecipeCalculator::TotalPoints(Grid& grid) {
    TotalColumn(grid, GrainCol::Points);
}

void RecipeCalculator::RecalcPoints(Grid& grid, bool useGrainExtraction) {
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
        CalcPoints(grid, row, useGrainExtraction, true);
    TotalPoints(grid);
}

void RecipeCalculator::CalcHCU(Grid& grid, int row, bool skipTotal) {
    if (grid.Empty(row, GrainCol::Amount) || grid.Empty(row, GrainCol::Color) || r_.txtTotalVol.Empty())
        grid.Clear(row, GrainCol::Hcu);
    else
        grid.SetComputed(row, GrainCol::Hcu,
                         Divide(grid.Number(row, GrainCol::Amount) * grid.Number(row, GrainCol::Color),
                                r_.txtTotalVol.Value()));
    if (!skipTotal) TotalHCU(grid);
}

void RecipeCalculator::TotalHCU(Grid& grid) {
    TotalColumn(grid, GrainCol::Hcu);
}

void RecipeCalculator::RecalcHCU(Grid& grid) {
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) CalcHCU(grid, row, true);
    TotalHCU(grid);
}

void RecipeCalculator::CalcOG() {
    const Grid& grain = r_.gridGrain;
    const Grid& extract = r_.gridExtract;
    if (grain.Empty(grain.TotalsRow(), GrainCol::Points) &&
        extract.Empty(extract.TotalsRow(), GrainCol::Points)) {
        r_.txtOG.SetText("");
    } else {
        r_.txtOG.SetValue(
            Finite(1 + (grain.Total(GrainCol::Points) + extract.Total(GrainCol::Points)) / 1000));
        r_.txtOG.SetText(FormatNumber(r_.txtOG.Value(), kGravityPattern));
    }
    commands_.EnableChangeStrength(!r_.txtOG.Empty());
    CalcBG();
    CalcABV();
    RecalcHops();
}

void RecipeCalculator::CalcBG() {
    if (r_.txtBoilVol.Empty() || r_.txtTotalVol.Empty() || r_.txtOG.Empty()) {
        r_.txtBG.SetText("");
        return;
    }
    r_.txtBG.SetValue(1 + Divide((r_.txtOG.Value() - 1) * r_.txtTotalVol.Value(), r_.txtBoilVol.Value()));
    r_.txtBG.SetText(FormatNumber(r_.txtBG.Value(), kGravityPattern));
}

void RecipeCalculator::CalcABV() {
    const bool known = !r_.txtFG.Empty() && !r_.txtOG.Empty();
    r_.cmdStrengthDetails.SetEnabled(known);
    r_.cmdFinalVolDetails.SetEnabled(known);
    if (!known) {
        r_.txtABV.SetText("");
        return;
    }
    const AlcoholFigures figures = ComputeAlcohol(r_.txtOG.Value(), r_.txtFG.Value());
    r_.txtABV.SetText(FormatNumber(figures.byVolume / 100, "0.0% abv"));
}

void RecipeCalculator::CalcOGAndColor() {
    CalcOG();
    CalcColor();
}

void RecipeCalculator::CalcColor() {
    const Grid& grain = r_.gridGrain;
    const Grid& extract = r_.gridExtract;
    if (grain.Empty(grain.TotalsRow(), GrainCol::Hcu) && extract.Empty(extract.TotalsRow(), GrainCol::Hcu)) {
        r_.txtColor.SetText("");
        r_.SetSwatch({255, 255, 255});
        return;
    }
    const double hcu = grain.Total(GrainCol::Hcu) + extract.Total(GrainCol::Hcu);
    const double srm = HCUToSRM(hcu);
    const std::string hcuText = FormatNumber(hcu, "0") + " HCU)";
    r_.txtColor.SetText(srm <= 50 ? FormatNumber(srm, "0") + " SRM (" + hcuText : ">50 SRM (" + hcuText);
    r_.SetSwatch(colors_.HCUToColor(hcu));
}

void RecipeCalculator::RecalcFermentables() {
    RecalcHCU(r_.gridGrain);
    RecalcPoints(r_.gridGrain, true);
    RecalcHCU(r_.gridExtract);
    RecalcPoints(r_.gridExtract, false);
    CalcOGAndColor();
}

}  // namespace tw
