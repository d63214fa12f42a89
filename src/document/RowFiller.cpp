#include "document/RowFiller.h"

#include "calc/Figures.h"
#include "document/RecipeFields.h"
#include "record/CellRules.h"
#include "record/Entries.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// Sets a number of the catalogue as the cell's text and number; a number that the catalogue leaves open
// empties the cell.
void PutFigure(Grid& grid, int row, int col, std::optional<double> number) {
    if (!number) {
        grid.Clear(row, col);
    } else {
        grid.SetText(row, col, NumberText(*number));
        grid.SetValue(row, col, CellValue::Of(*number));
    }
    MarkOwnNumber(grid, row, col);
}

}  // namespace

bool PitchesYeast(const Grid& log, int row) {
    return SameName(log.Text(row, LogCol::Action), kPitchedYeast);
}

std::optional<int> PitchingRow(const Grid& log) {
    for (int row = log.EndOfData() - 1; row >= Grid::FixedRows(); --row)
        if (PitchesYeast(log, row)) return row;
    return std::nullopt;
}

std::string_view PitchedYeastName(std::string_view notes) {
    return Trim(notes.substr(0, notes.find(" - ")));
}

FillEffects RowFiller::Fill(Grid& grid, int row, int col) {
    switch (RuleOf(grid, col).names) {
        case CellNames::Grains:
        case CellNames::Extracts:
            return {FillFermentable(grid, row), {}};
        case CellNames::Hops:
            return {FillHop(grid, row), {}};
        case CellNames::Sugars:
            return {FillSugar(grid, row), {}};
        case CellNames::Salts:
            return {FillSalt(grid, row), {}};
        case CellNames::Waters:
            return {FillWater(grid, row), {}};
        case CellNames::PitchedYeast:
            return {false, Pitch(grid, row)};
        default:
            return {};
    }
}

bool RowFiller::FillFermentable(Grid& grid, int row) {
    const CatalogueKind kind = grid.Id() == GridId::Grain ? CatalogueKind::Grain : CatalogueKind::Extract;
    const auto figures = catalogue_.Fermentable(kind, grid.Text(row, GrainCol::Name));
    if (!figures) return false;
    PutFigure(grid, row, GrainCol::Ppg, figures->ppg);
    PutFigure(grid, row, GrainCol::Color, figures->lovibond);
    return true;
}

bool RowFiller::FillHop(Grid& grid, int row) {
    const auto figures = catalogue_.Hop(grid.Text(row, HopCol::Variety));
    if (figures) PutFigure(grid, row, HopCol::AlphaAcid, figures->alphaAcid);
    return figures.has_value();
}

bool RowFiller::FillSugar(Grid& grid, int row) {
    const auto figures = catalogue_.Sugar(grid.Text(row, PrimingCol::Sugar));
    if (figures) PutFigure(grid, row, PrimingCol::Fermentable, figures->fermentable);
    return figures.has_value();
}

bool RowFiller::FillWater(Grid& grid, int row) {
    const auto ppm = catalogue_.Water(grid.Text(row, WaterCol::Profile));
    if (!ppm) return false;
    for (int ion = 0; ion < kIons; ++ion)
        PutFigure(grid, row, WaterCol::FirstIon + ion, (*ppm)[static_cast<std::size_t>(ion)]);
    return true;
}

// Sets the numbers behind the ion cells of a treatment row: what one gram of the salt adds to one gallon,
// in PPM.
bool RowFiller::FillSalt(Grid& grid, int row) {
    const auto ppm = catalogue_.Salt(grid.Text(row, TreatmentCol::Name));
    for (int ion = 0; ion < kIons; ++ion)
        grid.SetValue(row, TreatmentCol::FirstIon + ion,
                      ppm ? CellValue::Of((*ppm)[static_cast<std::size_t>(ion)]) : CellValue{});
    return true;
}

// Sets the final gravity from the apparent attenuation of a pitched yeast. Returns what txtFG held before;
// nullopt if it stays unchanged.
std::optional<EditValue> RowFiller::Pitch(const Grid& log, int row) {
    if (!PitchesYeast(log, row)) return std::nullopt;
    RecipeRecord& r = recipe_.record;
    const auto yeast = catalogue_.Yeast(PitchedYeastName(log.Text(row, LogCol::Notes)));
    if (!yeast || !yeast->attenuation || r.txtOG.Empty()) return std::nullopt;
    const double gravity = AttenuatedGravity(r.txtOG.Value(), *yeast->attenuation);
    // Raises, before anything has changed, if the alcohol cannot be calculated with that attenuation.
    ComputeAlcohol(r.txtOG.Value(), gravity);
    TextBox& fg = r.txtFG;
    EditValue before = fg.Text() == fg.Committed()
                           ? RecipeFields::StateOf(fg)
                           : EditValue::OfTextAndNumber(fg.Text(), CellValue::Of(fg.Value()));
    fg.SetValue(gravity);
    fg.SetText(FormatNumber(gravity, "0.##0"));
    fg.SetCommitted(fg.Text());
    fg.SetOwnNumber(NumberTold(fg, fg.Text()) != gravity);
    recipe_.calculator.CalcABV();
    return before;
}

}  // namespace tw
