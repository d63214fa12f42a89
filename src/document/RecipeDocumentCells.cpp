// The life of a cell: its list, its validation, its commit.
#include "document/RecipeDocument.h"
#include "values/ParserValidater.h"
#include "values/Text.h"

namespace tw {
namespace {

// A quantity's validator by grid and column; nullptr where the cell takes something else.
Validator QuantityOf(const RecipeRecord& r, const Grid& grid, int col) {
    if ((&grid == &r.gridGrain || &grid == &r.gridExtract) && col == GrainCol::Amount) return ValidatePounds;
    if (&grid == &r.gridHops && col == HopCol::AlphaAcid) return ValidatePercent;
    if (&grid == &r.gridHops && col == HopCol::Time) return ValidateMinutes;
    if (&grid == &r.gridPriming && col == PrimingCol::Fermentable) return ValidatePercent;
    if (&grid == &r.gridPriming && col == PrimingCol::Amount) return ValidateOunces;
    if (&grid == &r.gridTreatment && col == TreatmentCol::Amount) return ValidateGrams;
    return nullptr;
}

// The kind of plain number that the cell takes, as its messages name it; empty where it takes something else.
std::string_view NumberKind(const RecipeRecord& r, const Grid& grid, int col) {
    if (&grid == &r.gridGrain || &grid == &r.gridExtract) {
        if (col == GrainCol::Ppg) return "PPG";
        if (col == GrainCol::Color) return "Color";
    }
    if (&grid == &r.gridWater && col >= WaterCol::FirstIon) return "PPM/Gal";
    return {};
}

bool IsHopForm(const RecipeRecord& r, const Grid& grid, int col) {
    return &grid == &r.gridHops && col == HopCol::Form;
}

bool IsHopAmount(const RecipeRecord& r, const Grid& grid, int col) {
    return &grid == &r.gridHops && col == HopCol::Amount;
}

// True when the column takes any text: names, the brew log, the adjuncts.
bool TakesFreeText(const RecipeRecord& r, const Grid& grid, int col) {
    return !QuantityOf(r, grid, col) && NumberKind(r, grid, col).empty() && !IsHopForm(r, grid, col) &&
           !IsHopAmount(r, grid, col) && &grid != &r.gridPressure;
}

}  // namespace

bool RecipeDocument::CanEdit(const Grid& grid, int row, int col) const {
    return grid.HasCell(row, col) && grid.IsDataRow(row) && !grid.IsReadOnly(row, col);
}

bool RecipeDocument::ValidateCell(const Grid& grid, int row, int col, std::string_view text, bool quiet,
                                  CellValue& value) {
    value = {};
    // An empty text is always valid and means 0 or unset.
    if (IsBlank(text)) return true;
    if (IsHopForm(record_, grid, col)) return ValidateHopForm(text, value);
    if (IsHopAmount(record_, grid, col)) return ValidateHopAmount(text, quiet, value);
    // The time of a dry-hopped row is free text without a value: days in the hopper, for instance.
    if (&grid == &record_.gridHops && col == HopCol::Time && grid.Checked(row, HopCol::DryHopped))
        return true;
    if (&grid == &record_.gridPressure) return ValidateKegPressure(text, quiet, value);
    const std::string_view kind = NumberKind(record_, grid, col);
    if (!kind.empty()) return ValidateNumber(text, kind, quiet, value);
    const Validator validate = QuantityOf(record_, grid, col);
    if (!validate) return true;
    double number = 0;
    if (!validate(text, number, quiet ? nullptr : &platform_.messages)) return false;
    value = CellValue::Of(number);
    return true;
}

bool RecipeDocument::Refuse(std::string_view message, bool quiet) {
    if (!quiet) platform_.messages.ShowMessage(kInvalidEntry, message);
    return false;
}

bool RecipeDocument::ValidateNumber(std::string_view text, std::string_view kind, bool quiet,
                                    CellValue& value) {
    double number = 0;
    if (!ParseReal(text, number))
        return Refuse("Please enter a valid " + std::string(kind) + " value", quiet);
    if (number < 0) return Refuse("Please enter a positive " + std::string(kind) + " value", quiet);
    value = CellValue::Of(number);
    return true;
}

bool RecipeDocument::ValidateHopForm(std::string_view text, CellValue& value) const {
    for (std::size_t i = 0; i < kHopForms.size(); ++i) {
        if (!SameName(text, kHopForms[i].name)) continue;
        value = CellValue::Of(static_cast<double>(i));
        return true;
    }
    return false;
}

bool RecipeDocument::ValidateHopAmount(std::string_view text, bool quiet, CellValue& value) {
    using Kind = CellValue::Kind;
    double number = 0;
    if (ParseOuncesAnyUnit(text, number)) {
        if (number < 0) return Refuse("Please enter a positive weight", quiet);
        value = {Kind::Number, number};
    } else if (ParseAAU(text, number)) {
        if (number < 0) return Refuse("Please enter a positive AAU value", quiet);
        value = {Kind::AlphaAcidUnits, number};
    } else if (ParseIBU(text, number)) {
        if (number < 0) return Refuse("Please enter a positive IBU value", quiet);
        value = {Kind::BitternessUnits, number};
    } else {
        return Refuse("Please enter a valid hopping unit (weight, AAUs, or IBUs)", quiet);
    }
    return true;
}

bool RecipeDocument::ValidateKegPressure(std::string_view text, bool quiet, CellValue& value) {
    double psi = 0;
    if (!ValidatePressure(text, psi, quiet ? nullptr : &platform_.messages)) return false;
    bool ok = true;
    calculator_.CalcKegVolumes(true, psi, ok);
    if (!ok) {
        if (!quiet)
            platform_.messages.ShowMessage("Error calculating carbonation",
                                           "Please enter a more reasonable pressure.");
        return false;
    }
    value = CellValue::Of(psi);
    return true;
}

bool RecipeDocument::EditCell(Grid& grid, int row, int col, std::string_view text, bool quiet) {
    if (!CanEdit(grid, row, col) || grid.IsCheckBox(row, col)) return false;
    // As in the text boxes: where a quantity belongs, blanks alone are the empty text.
    if (IsBlank(text) && !TakesFreeText(record_, grid, col)) text = {};
    if (grid.Text(row, col) == text) return true;
    CellValue value;
    if (!ValidateCell(grid, row, col, text, quiet, value)) return false;
    if (IsHopForm(record_, grid, col) && value.kind == CellValue::Kind::Number)
        text = kHopForms[static_cast<std::size_t>(value.number)].name;
    ChangeRow(grid, row, col, [&] {
        // In gridTreatment the number behind an ion cell is the salt's factor, and a name has none.
        grid.SetText(row, col, text);
        grid.SetValue(row, col, value);
        RunCellChain(grid, row, col);
    });
    return true;
}

bool RecipeDocument::SetChecked(Grid& grid, int row, int col, bool checked) {
    if (!grid.HasCell(row, col) || !grid.IsCheckBox(row, col)) return false;
    if (grid.Checked(row, col) == checked) return true;
    ChangeRow(grid, row, col, [&] {
        grid.SetChecked(row, col, checked);
        // A time that was typed as free text counts again as soon as the hops go into the kettle.
        if (col == HopCol::DryHopped && !checked) ReadTimeAgain(grid, row);
        RunCellChain(grid, row, col);
    });
    return true;
}

void RecipeDocument::ReadTimeAgain(Grid& hops, int row) {
    CellValue time;
    if (Quietly(
            [&] { return ValidateCell(hops, row, HopCol::Time, hops.Text(row, HopCol::Time), true, time); }))
        hops.SetValue(row, HopCol::Time, time);
}

// Runs a change of one row that began in one cell, and records it. When it raises, the row is as before, its
// figures too, nothing is recorded, and the error goes on.
void RecipeDocument::ChangeRow(Grid& grid, int row, int col, const std::function<void()>& change) {
    const std::vector<Cell> before = grid.CellsOf(row);
    gravityChange_.reset();
    try {
        change();
    } catch (const Error&) {
        grid.RestoreCells(row, before);
        RecalculateGrid(grid, row);
        throw;
    }
    RecordRowChange(grid, row, col, before);
    MarkChanged();
}

void RecipeDocument::RunCellChain(Grid& grid, int row, int col) {
    RecipeRecord& r = record_;
    if (&grid == &r.gridGrain || &grid == &r.gridExtract) {
        if (col != GrainCol::Name)
            calculator_.FermentableCommitted(grid, row, col);
        else if (LookUpFermentable(grid, row))
            calculator_.FermentableCommitted(grid, row, GrainCol::Amount);
    } else if (&grid == &r.gridHops) {
        if (col == HopCol::Variety) LookUpHop(row);
        calculator_.HopCommitted(row);
    } else if (&grid == &r.gridPriming) {
        if (col != PrimingCol::Sugar || LookUpSugar(row)) calculator_.PrimingCommitted(row);
    } else if (&grid == &r.gridPressure) {
        calculator_.PressureCommitted();
    } else if (&grid == &r.gridTreatment) {
        if (col == TreatmentCol::Name) LookUpSalt(row);
        calculator_.TreatmentCommitted(row);
    } else if (&grid == &r.gridWater) {
        if (col == WaterCol::Profile) LookUpWater(row);
        calculator_.UpdateTreatmentNeeded();
    } else if (&grid == &r.gridLog && col == LogCol::Notes) {
        LookUpYeast(row);
    }
}

// The figures of one row anew, without look-ups.
void RecipeDocument::RecalculateGrid(Grid& grid, int row) {
    if (&grid == &record_.gridGrain || &grid == &record_.gridExtract)
        calculator_.FermentableCommitted(grid, row, GrainCol::Amount);
    else if (&grid == &record_.gridHops)
        calculator_.HopCommitted(row);
    else if (&grid == &record_.gridPriming)
        calculator_.PrimingCommitted(row);
    else if (&grid == &record_.gridPressure)
        calculator_.PressureCommitted();
    else if (&grid == &record_.gridTreatment)
        calculator_.TreatmentCommitted(row);
    else if (&grid == &record_.gridWater)
        calculator_.UpdateTreatmentNeeded();
}

void RecipeDocument::PickLogDate(const DateTime& day) {
    Grid& log = record_.gridLog;
    if (!log.IsDataRow(log.CurrentRow())) return;
    AsOneStep(ChangeType::Selection, [&] { EditCell(log, log.CurrentRow(), LogCol::Date, ShortDate(day)); });
}

}  // namespace tw
