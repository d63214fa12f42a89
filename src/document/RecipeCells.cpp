#include "document/RecipeCells.h"

#include <optional>

#include "document/RecipeFields.h"
#include "record/CellRules.h"
#include "record/Entries.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kWhenAdded[] = {"During Boil",
                                           "After Boil while Wort cools",
                                           "After cooled Wort placed in Fermentor",
                                           "After pitching Yeast to Primary",
                                           "After racking to Secondary",
                                           "Before Bottling"};
constexpr std::string_view kLogActions[] = {"Steeped Specialty Grains",
                                            "Added Extracts or Sugars",
                                            "Added Hops",
                                            "Removed Wort from Heat",
                                            kPitchedYeast,
                                            "Racked",
                                            "Dry-Hopped",
                                            "Bottled",
                                            "Tasted"};

// True for a read-only column whose cells are stored as a number without its text: what one gram of a salt
// adds to one gallon (PPM), behind a computed text.
bool HoldsFactors(const CellRule& rule) {
    return rule.ReadOnly() && rule.stored == CellStored::Number;
}

EditValue FactorOf(const Cell& cell) {
    return cell.value.kind == CellValue::Kind::None ? EditValue() : EditValue::OfNumber(cell.value.number);
}

// Updates the number of a hop's time, which is only read while the hop is boiled: a time typed as free text
// for a dry hop becomes a number when the hop goes into the kettle.
void ReadTimeAgain(Grid& hops, int row) {
    if (!hops.Checked(row, HopCol::DryHopped))
        if (const auto time = NumberTold(hops, row, HopCol::Time, hops.Text(row, HopCol::Time)))
            hops.SetValue(row, HopCol::Time, *time);
    MarkOwnNumber(hops, row, HopCol::Time);
}

void Check(Grid& grid, int row, int col, bool checked) {
    grid.SetChecked(row, col, checked);
    if (grid.Id() == GridId::Hops && col == HopCol::DryHopped) ReadTimeAgain(grid, row);
}

}  // namespace

bool RecipeCells::CanEdit(const Grid& grid, int row, int col) const {
    return grid.HasCell(row, col) && grid.IsDataRow(row) && !grid.IsReadOnly(row, col);
}

CellList RecipeCells::ListOf(const Grid& grid, int row, int col) const {
    CellList list;
    if (!CanEdit(grid, row, col)) return list;
    switch (const CellNames names = RuleOf(grid, col).names) {
        case CellNames::HopForms:
            list.freeText = false;
            for (const HopForm& form : kHopForms) list.names.Add(form.name);
            break;
        case CellNames::TimesToAdd:
            list.names = NameList(kWhenAdded);
            break;
        case CellNames::LogActions:
            list.names = NameList(kLogActions);
            break;
        case CellNames::PitchedYeast:
            // The notes of any other row are prose.
            if (PitchesYeast(grid, row)) list.names = catalogue_.Names(names);
            break;
        default:
            list.names = catalogue_.Names(names);
    }
    return list;
}

Reading<CellValue> RecipeCells::ReadCell(const Grid& grid, int row, int col, std::string_view text) const {
    Reading<CellValue> read = ReadEntry(grid, row, col, text);
    if (read && RuleOf(grid, col).takes == CellTakes::KegPsi && read->kind == CellValue::Kind::Number &&
        !recipe_.calculator.HasKegVolumes(read->number))
        return Refusal{kCarbonationFailed, "Please enter a more reasonable pressure."};
    return read;
}

bool RecipeCells::EditCell(Grid& grid, int row, int col, std::string_view text, Asking asking) {
    if (!CanEdit(grid, row, col) || grid.IsCheckBox(row, col)) return false;
    const CellRule& rule = RuleOf(grid, col);
    // As in the text boxes, blanks alone count as an empty text where a quantity is expected.
    if (IsBlank(text) && rule.takes != CellTakes::AnyText) text = {};
    if (grid.Text(row, col) == text) return true;
    const Reading<CellValue> value = ReadCell(grid, row, col, text);
    if (!value) {
        if (asking == Asking::Aloud) recipe_.Tell(value.Why());
        return false;
    }
    if (rule.takes == CellTakes::HopForm && value->kind == CellValue::Kind::Number)
        text = kHopForms[static_cast<std::size_t>(value->number)].name;
    ChangeRow(grid, row, col, [&] {
        grid.SetText(row, col, text);
        grid.SetValue(row, col, *value);
        grid.SetOwnNumber(row, col, false);
        return RunChain(grid, row, col);
    });
    return true;
}

bool RecipeCells::SetChecked(Grid& grid, int row, int col, bool checked) {
    if (!grid.HasCell(row, col) || !grid.IsCheckBox(row, col)) return false;
    if (grid.Checked(row, col) == checked) return true;
    ChangeRow(grid, row, col, [&] {
        Check(grid, row, col, checked);
        return RunChain(grid, row, col);
    });
    return true;
}

void RecipeCells::ClearFrom(Grid& grid, int row, int col) {
    ChangeRow(grid, row, col, [&] {
        for (int c = col; c < grid.Cols(); ++c) grid.Clear(row, c);
        Recalculate(grid, row);
        return FillEffects{};
    });
}

// Runs a change of one row that began in one cell, and records it. If the change raises Error, restores the
// row and its figures, records nothing, and passes the error on.
void RecipeCells::ChangeRow(Grid& grid, int row, int col, const std::function<FillEffects()>& change) {
    const std::vector<Cell> before = grid.CellsOf(row);
    FillEffects effects;
    try {
        effects = change();
    } catch (const Error&) {
        grid.RestoreCells(row, before);
        Recalculate(grid, row);
        throw;
    }
    RecordRow(grid, row, col, before, std::move(effects));
    recipe_.MarkChanged();
}

FillEffects RecipeCells::RunChain(Grid& grid, int row, int col) {
    FillEffects effects = filler_.Fill(grid, row, col);
    if (const auto committed = RuleOf(grid).committed)
        committed(recipe_.calculator, grid, row, effects.rowFilled ? kWholeRow : col);
    return effects;
}

// Recalculates the figures of one row, without looking up the catalogue.
void RecipeCells::Recalculate(Grid& grid, int row) {
    if (const auto committed = RuleOf(grid).committed) committed(recipe_.calculator, grid, row, kWholeRow);
}

// Records a change of one row. The cell in which the change began becomes the head, to which all other
// changed cells are chained.
void RecipeCells::RecordRow(Grid& grid, int row, int col, const std::vector<Cell>& before,
                            FillEffects effects) {
    EditRecorder& recorder = recipe_.recorder;
    if (!recorder.Tracking()) return;
    const auto record = [&](int c) -> EditTracker* {
        const Cell& old = before[static_cast<std::size_t>(c)];
        const Cell& now = grid.At(row, c);
        if (old == now) return nullptr;
        if (HoldsFactors(RuleOf(grid, c)))
            return recorder.RecordGridCell(grid, row, c, FactorOf(old), FactorOf(now));
        if (grid.ColumnAt(c).readOnly) return nullptr;
        return recorder.RecordGridCell(grid, row, c, StateBefore(old, now), StateOf(now));
    };
    const CompoundEdit compound(recorder, record(col));
    for (int c = 0; c < grid.Cols(); ++c)
        if (c != col) record(c);
    if (!effects.finalGravityBefore) return;
    const TextBox& fg = recipe_.record.txtFG;
    recorder.RecordEdit(fg.Name(), std::move(*effects.finalGravityBefore), RecipeFields::StateOf(fg),
                        {ControlType::TextBox, ChangeType::Typing});
}

void RecipeCells::ClearFactors(Grid& grid, int row) {
    for (int col = 0; col < grid.Cols(); ++col) {
        if (!HoldsFactors(RuleOf(grid, col))) continue;
        recipe_.recorder.RecordGridCell(grid, row, col, FactorOf(grid.At(row, col)), EditValue());
        grid.SetValue(row, col, {});
    }
}

void RecipeCells::PutBack(Grid& grid, int row, int col, const EditValue& value) {
    if (!grid.HasCell(row, col)) return;
    const Cell before = grid.At(row, col);
    if (grid.IsCheckBox(row, col)) {
        Check(grid, row, col, value.AsBoolean());
    } else if (!value.IsText()) {
        grid.SetValue(row, col, value.IsNumber() ? CellValue::Of(value.AsNumber()) : CellValue{});
    } else {
        Restore(grid, row, col, value);
    }
    if (grid.At(row, col) != before) recipe_.MarkChanged();
    // Without look-ups, because the cells that these filled have been recorded themselves.
    Recalculate(grid, row);
}

void RecipeCells::Restore(Grid& grid, int row, int col, const EditValue& value) {
    const CellValue* const number = value.OwnNumber();
    grid.SetValue(row, col,
                  number ? *number : NumberTold(grid, row, col, value.AsText()).value_or(CellValue{}));
    grid.SetText(row, col, value.AsText());
    grid.SetOwnNumber(row, col, number != nullptr);
}

EditValue RecipeCells::StateOf(const Cell& cell) {
    if (cell.check != CheckState::None) return EditValue::OfBoolean(cell.check == CheckState::Checked);
    return cell.ownNumber ? EditValue::OfTextAndNumber(cell.text, cell.value) : EditValue::OfText(cell.text);
}

EditValue RecipeCells::StateBefore(const Cell& cell, const Cell& now) {
    if (cell.check == CheckState::None && cell.text == now.text && cell.value != now.value)
        return EditValue::OfTextAndNumber(cell.text, cell.value);
    return StateOf(cell);
}

void RecipeCells::PickLogDate(const DateTime& day) {
    Grid& log = recipe_.record.gridLog;
    if (!log.IsDataRow(log.CurrentRow())) return;
    OneStep step(recipe_, ChangeType::Selection);
    EditCell(log, log.CurrentRow(), LogCol::Date, ShortDate(day));
    step.Keep();
}

}  // namespace tw
