#include "record/RecipeScaler.h"

#include "calc/Figures.h"
#include "platform/Error.h"
#include "record/CellRules.h"
#include "record/Entries.h"
#include "values/NumberText.h"
#include "values/ScaledText.h"

namespace tw {
namespace {

constexpr int kDisplayDecimals = 0;  // FormatQuantity rounds to two decimals at most
constexpr int kGramDecimals = 3;

// Sets a volume in gallons and commits its text.
void PutVolume(TextBox& box, double gallons, std::string_view text) {
    box.SetValue(gallons);
    box.SetText(text);
    box.SetCommitted(text);
}

AmountKind KindOf(CellTakes takes) {
    switch (takes) {
        case CellTakes::Pounds:
            return AmountKind::Pounds;
        case CellTakes::Grams:
            return AmountKind::Grams;
        case CellTakes::HopAmount:
            return AmountKind::HopAmount;
        case CellTakes::KegPsi:
            return AmountKind::Pressure;
        default:
            return AmountKind::Ounces;
    }
}

// Returns how the unit of the amount's column is written behind it, with a blank before.
std::string_view UnitOf(CellTakes takes, CellValue::Kind kind) {
    if (kind == CellValue::Kind::AlphaAcidUnits) return " AAUs";
    if (kind == CellValue::Kind::BitternessUnits) return " IBUs";
    if (takes == CellTakes::Pounds) return " lbs.";
    if (takes == CellTakes::Grams) return " grams";
    return takes == CellTakes::KegPsi ? " psi" : " oz.";
}

}  // namespace

// Returns the amount in the unit of its column.
RecipeScaler::Amount RecipeScaler::InUnitOfColumn(const Grid& grid, int col, CellValue wanted) {
    const CellTakes takes = RuleOf(grid, col).takes;
    RoundedQuantity rounded =
        FormatQuantity(wanted.number, takes == CellTakes::Grams ? kGramDecimals : kDisplayDecimals);
    wanted.number = rounded.value;
    return {wanted, rounded.text.append(UnitOf(takes, wanted.kind))};
}

// Returns the amount that replaces the one in a cell, which is multiplied by factor to become wanted.
RecipeScaler::Amount RecipeScaler::AmountFor(const Grid& grid, int row, int col, CellValue wanted,
                                             double factor) const {
    const Amount usual = InUnitOfColumn(grid, col, wanted);
    const std::string& typed = grid.Text(row, col);
    const std::optional<CellValue> told = keepUnits_ ? NumberTold(grid, row, col, typed) : std::nullopt;
    if (!told || told->kind != wanted.kind) return usual;
    // The cell may hold another number than its text tells.
    const bool tellsIt = told->number == grid.Number(row, col);
    if (!tellsIt && told->number == 0) return usual;
    const std::optional<std::string> text = ScaledText(
        typed, tellsIt ? factor : Divide(wanted.number, told->number), KindOf(RuleOf(grid, col).takes));
    const std::optional<CellValue> number = text ? NumberTold(grid, row, col, *text) : std::nullopt;
    return number && number->kind == wanted.kind ? Amount{*number, *text} : usual;
}

void RecipeScaler::Put(Grid& grid, int row, int col, const Amount& amount) {
    grid.SetText(row, col, amount.text);
    grid.SetValue(row, col, amount.value);
}

void RecipeScaler::ScaleAmount(Grid& grid, int row, int col, double factor) {
    CellValue value = grid.At(row, col).value;
    if (value.kind == CellValue::Kind::None) value.kind = CellValue::Kind::Number;
    value.number = Finite(value.number * factor);
    Put(grid, row, col, AmountFor(grid, row, col, value, factor));
}

void RecipeScaler::ScaleColumn(Grid& grid, int col, double factor) {
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
        if (!grid.Empty(row, col)) ScaleAmount(grid, row, col, factor);
}

void RecipeScaler::ScaleGrainGrid(Grid& grid, double factor) {
    ScaleColumn(grid, GrainCol::Amount, factor);
    calculator_.ShowGridTotal(grid);
}

void RecipeScaler::ScaleHops(double factor) {
    ScaleColumn(r_.gridHops, HopCol::Amount, factor);
    calculator_.ShowGridTotal(r_.gridHops);
}

void RecipeScaler::ScaleTreatment(double factor) {
    ScaleColumn(r_.gridTreatment, TreatmentCol::Amount, factor);
}

std::optional<double> RecipeScaler::FinalVolumeFor(double newGallons) const {
    if (r_.txtFinalVol.Empty()) return std::nullopt;
    if (r_.txtFinalVol.Value() == r_.txtTotalVol.Value()) return newGallons;
    return FormatQuantity(ExactFinalVolume(newGallons), kDisplayDecimals).value;
}

double RecipeScaler::ExactFinalVolume(double newGallons) const {
    const double oldSize = r_.txtTotalVol.Value(), oldFinal = r_.txtFinalVol.Value();
    // The loss between the two volumes is added to the new size instead of subtracted, so that the final
    // volume becomes larger than the total volume. This is kept on purpose, so that the results of resizing
    // stay the same.
    return Finite(newGallons + oldSize - oldFinal);
}

// Changes a volume to that many gallons, rounded as shown.
void RecipeScaler::PutRoundedVolume(TextBox& box, double gallons) {
    const std::optional<double> told = keepUnits_ ? NumberTold(box, box.Text()) : std::nullopt;
    const std::optional<std::string> text =
        told && *told > 0 ? ScaledText(box.Text(), Divide(gallons, *told), AmountKind::Volume) : std::nullopt;
    const std::optional<double> number = text ? NumberTold(box, *text) : std::nullopt;
    if (number) return PutVolume(box, *number, *text);
    const RoundedQuantity rounded = FormatQuantity(gallons, kDisplayDecimals);
    PutVolume(box, rounded.value, rounded.text + " gal.");
}

void RecipeScaler::ScaleVolumes(double newGallons, std::string_view sizeText, bool scaleBoilVol) {
    const double oldSize = r_.txtTotalVol.Value();
    if (scaleBoilVol && !r_.txtBoilVol.Empty())
        PutRoundedVolume(r_.txtBoilVol, Finite(r_.txtBoilVol.Value() * Divide(newGallons, oldSize)));
    if (!r_.txtFinalVol.Empty()) {
        if (r_.txtFinalVol.Value() == oldSize)
            PutVolume(r_.txtFinalVol, newGallons, sizeText);
        else
            PutRoundedVolume(r_.txtFinalVol, ExactFinalVolume(newGallons));
    }
    PutVolume(r_.txtTotalVol, newGallons, sizeText);
}

RecipeScaler::CO2Outcome RecipeScaler::ScaleCO2(double volumes) {
    return r_.Bottled() ? ScaleSugars(volumes) : ScalePressure(volumes);
}

RecipeScaler::CO2Outcome RecipeScaler::ScalePressure(double volumes) {
    const double exactPsi = KegPressure(r_.txtTemp.Value(), volumes);
    if (exactPsi < 0) return CO2Outcome::TooLow;
    Grid& grid = r_.gridPressure;
    const double oldPsi = grid.Number(1, PressureCol::Pressure);
    const CellValue wanted = CellValue::Of(exactPsi);
    const Amount pressure = oldPsi > 0
                                ? AmountFor(grid, 1, PressureCol::Pressure, wanted, Divide(exactPsi, oldPsi))
                                : InUnitOfColumn(grid, PressureCol::Pressure, wanted);
    // As any pressure that is typed, it must have volumes.
    if (!calculator_.HasKegVolumes(pressure.value.number)) return CO2Outcome::Unreasonable;
    Put(grid, 1, PressureCol::Pressure, pressure);
    calculator_.PressureCommitted();
    return CO2Outcome::Done;
}

RecipeScaler::CO2Outcome RecipeScaler::ScaleSugars(double volumes) {
    Grid& grid = r_.gridPriming;
    const double residual = grid.Number(grid.TotalsRow() - 1, PrimingCol::Volumes);
    if (volumes < residual) return CO2Outcome::TooLow;
    const double fromSugars = grid.Total(PrimingCol::Volumes) - residual;
    if (fromSugars <= 0) return FillFirstSugar(volumes - residual);
    const double factor = Divide(volumes - residual, fromSugars);
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) {
        if (grid.Empty(row, PrimingCol::Amount) || grid.Number(row, PrimingCol::Amount) <= 0) continue;
        ScaleAmount(grid, row, PrimingCol::Amount, factor);
        calculator_.PrimingCommitted(row);
    }
    return CO2Outcome::Done;
}

// volumes is the part that must come from the sugars.
RecipeScaler::CO2Outcome RecipeScaler::FillFirstSugar(double volumes) {
    Grid& grid = r_.gridPriming;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) {
        const double fermentable = grid.Number(row, PrimingCol::Fermentable);
        if (grid.Empty(row, PrimingCol::Fermentable) || !(fermentable > 0)) continue;
        const bool hasFinal = r_.txtFinalVol.Value() > 0 && !r_.txtFinalVol.Empty();
        const TextBox& volume = hasFinal ? r_.txtFinalVol : r_.txtTotalVol;
        const double ounces = Finite(PrimingOunces(volumes, fermentable, volume.Value()));
        Put(grid, row, PrimingCol::Amount, InUnitOfColumn(grid, PrimingCol::Amount, CellValue::Of(ounces)));
        calculator_.PrimingCommitted(row);
        return CO2Outcome::Done;
    }
    return CO2Outcome::NoFermentable;
}

}  // namespace tw
