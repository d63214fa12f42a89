#include "record/RecipeScaler.h"

#include "calc/Figures.h"
#include "platform/Error.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr int kDisplayDecimals = 0;  // FormatQuantity rounds to two decimals at most
constexpr int kGramDecimals = 3;

// Sets an amount: the cell's value, rounded, and its text with the unit appended.
void PutAmount(Grid& grid, int row, int col, CellValue value, int decimals, std::string_view unit) {
    RoundedQuantity rounded = FormatQuantity(value.number, decimals);
    value.number = rounded.value;
    grid.SetText(row, col, rounded.text.append(unit));
    grid.SetValue(row, col, value);
}

// Sets a volume in gallons and commits its text.
void PutVolume(TextBox& box, double gallons, std::string_view text) {
    box.SetValue(gallons);
    box.SetText(text);
    box.SetCommitted(text);
}

void PutRoundedVolume(TextBox& box, double gallons) {
    const RoundedQuantity rounded = FormatQuantity(gallons, kDisplayDecimals);
    PutVolume(box, rounded.value, rounded.text + " gal.");
}

}  // namespace

void RecipeScaler::ScaleGrainGrid(Grid& grid, double factor) {
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) {
        if (grid.Empty(row, GrainCol::Amount)) continue;
        const double pounds = Finite(grid.Number(row, GrainCol::Amount) * factor);
        PutAmount(grid, row, GrainCol::Amount, CellValue::Of(pounds), kDisplayDecimals, " lbs.");
    }
    calculator_.ShowGridTotal(grid);
}

void RecipeScaler::ScaleHops(double factor) {
    Grid& grid = r_.gridHops;
    using Kind = CellValue::Kind;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) {
        if (grid.Empty(row, HopCol::Amount)) continue;
        CellValue value = grid.At(row, HopCol::Amount).value;
        if (value.kind == Kind::None) value.kind = Kind::Number;
        value.number = Finite(value.number * factor);
        const std::string_view unit = value.kind == Kind::AlphaAcidUnits    ? " AAUs"
                                      : value.kind == Kind::BitternessUnits ? " IBUs"
                                                                            : " oz.";
        PutAmount(grid, row, HopCol::Amount, value, kDisplayDecimals, unit);
    }
    calculator_.ShowGridTotal(grid);
}

void RecipeScaler::ScaleTreatment(double factor) {
    Grid& grid = r_.gridTreatment;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) {
        if (grid.Empty(row, TreatmentCol::Amount)) continue;
        const double grams = Finite(grid.Number(row, TreatmentCol::Amount) * factor);
        PutAmount(grid, row, TreatmentCol::Amount, CellValue::Of(grams), kGramDecimals, " grams");
    }
}

std::optional<double> RecipeScaler::FinalVolumeFor(double newGallons) const {
    if (r_.txtFinalVol.Empty()) return std::nullopt;
    const double oldSize = r_.txtTotalVol.Value(), oldFinal = r_.txtFinalVol.Value();
    if (oldFinal == oldSize) return newGallons;
    // The loss between the two volumes is added to the new size instead of subtracted, so that the final
    // volume becomes larger than the total volume. This is kept on purpose, so that the results of resizing
    // stay the same.
    return FormatQuantity(Finite(newGallons + oldSize - oldFinal), kDisplayDecimals).value;
}

void RecipeScaler::ScaleVolumes(double newGallons, std::string_view sizeText, bool scaleBoilVol) {
    const double oldSize = r_.txtTotalVol.Value();
    if (scaleBoilVol && !r_.txtBoilVol.Empty())
        PutRoundedVolume(r_.txtBoilVol, Finite(r_.txtBoilVol.Value() * Divide(newGallons, oldSize)));
    if (const std::optional<double> finalVolume = FinalVolumeFor(newGallons)) {
        if (r_.txtFinalVol.Value() == oldSize)
            PutVolume(r_.txtFinalVol, newGallons, sizeText);
        else
            PutRoundedVolume(r_.txtFinalVol, *finalVolume);
    }
    PutVolume(r_.txtTotalVol, newGallons, sizeText);
}

RecipeScaler::CO2Outcome RecipeScaler::ScaleCO2(double volumes) {
    return r_.Bottled() ? ScaleSugars(volumes) : ScalePressure(volumes);
}

RecipeScaler::CO2Outcome RecipeScaler::ScalePressure(double volumes) {
    const double exactPsi = KegPressure(r_.txtTemp.Value(), volumes);
    if (exactPsi < 0) return CO2Outcome::TooLow;
    const RoundedQuantity psi = FormatQuantity(exactPsi, kDisplayDecimals);
    // As any pressure that is typed, it must have volumes.
    if (!calculator_.HasKegVolumes(psi.value)) return CO2Outcome::Unreasonable;
    r_.gridPressure.SetText(1, PressureCol::Pressure, psi.text + " psi");
    r_.gridPressure.SetValue(1, PressureCol::Pressure, CellValue::Of(psi.value));
    calculator_.PressureCommitted();
    return CO2Outcome::Done;
}

RecipeScaler::CO2Outcome RecipeScaler::ScaleSugars(double volumes) {
    const Grid& grid = r_.gridPriming;
    const double residual = grid.Number(grid.TotalsRow() - 1, PrimingCol::Volumes);
    if (volumes < residual) return CO2Outcome::TooLow;
    const double fromSugars = grid.Total(PrimingCol::Volumes) - residual;
    if (fromSugars <= 0) return FillFirstSugar(volumes - residual);
    const double factor = Divide(volumes - residual, fromSugars);
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
        if (!grid.Empty(row, PrimingCol::Amount) && grid.Number(row, PrimingCol::Amount) > 0)
            PutSugar(row, grid.Number(row, PrimingCol::Amount) * factor);
    return CO2Outcome::Done;
}

// volumes is the part that must come from the sugars.
RecipeScaler::CO2Outcome RecipeScaler::FillFirstSugar(double volumes) {
    const Grid& grid = r_.gridPriming;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) {
        const double fermentable = grid.Number(row, PrimingCol::Fermentable);
        if (grid.Empty(row, PrimingCol::Fermentable) || !(fermentable > 0)) continue;
        const bool hasFinal = r_.txtFinalVol.Value() > 0 && !r_.txtFinalVol.Empty();
        const TextBox& volume = hasFinal ? r_.txtFinalVol : r_.txtTotalVol;
        PutSugar(row, PrimingOunces(volumes, fermentable, volume.Value()));
        return CO2Outcome::Done;
    }
    return CO2Outcome::NoFermentable;
}

void RecipeScaler::PutSugar(int row, double ounces) {
    PutAmount(r_.gridPriming, row, PrimingCol::Amount, CellValue::Of(Finite(ounces)), kDisplayDecimals,
              " oz.");
    calculator_.PrimingCommitted(row);
}

}  // namespace tw
