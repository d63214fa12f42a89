// The life of a cell: its list, its validation, its commit.
#include "calc/GridRules.h"
#include "document/RecipeDocument.h"
#include "values/ParserValidater.h"
#include "values/Text.h"

namespace tw {
namespace {

Refusal Refused(std::string text) {
    return {kInvalidEntry, std::move(text)};
}

// A quantity's number as a cell's value.
Reading<CellValue> AsCell(const Reading<double>& read) {
    if (!read) return read.Why();
    return CellValue::Of(*read);
}

// kind: the number's word in the messages.
Reading<CellValue> ReadPlainNumber(std::string_view text, std::string_view kind) {
    const std::optional<double> number = ParseReal(text);
    if (!number) return Refused("Please enter a valid " + std::string(kind) + " value");
    if (*number < 0) return Refused("Please enter a positive " + std::string(kind) + " value");
    return CellValue::Of(*number);
}

// Another word than those of the list is refused without a box: the editor offers no other.
Reading<CellValue> ReadHopForm(std::string_view text) {
    for (std::size_t i = 0; i < kHopForms.size(); ++i)
        if (SameName(text, kHopForms[i].name)) return CellValue::Of(static_cast<double>(i));
    return Refused({});
}

Reading<CellValue> ReadHopAmount(std::string_view text) {
    using Kind = CellValue::Kind;
    const auto notNegative = [](Kind kind, double number, std::string_view word) -> Reading<CellValue> {
        if (number < 0) return Refused("Please enter a positive " + std::string(word));
        return CellValue{kind, number};
    };
    if (const auto ounces = ParseOuncesAnyUnit(text)) return notNegative(Kind::Number, *ounces, "weight");
    if (const auto units = ParseAAU(text)) return notNegative(Kind::AlphaAcidUnits, *units, "AAU value");
    if (const auto units = ParseIBU(text)) return notNegative(Kind::BitternessUnits, *units, "IBU value");
    return Refused("Please enter a valid hopping unit (weight, AAUs, or IBUs)");
}

}  // namespace

bool RecipeDocument::CanEdit(const Grid& grid, int row, int col) const {
    return grid.HasCell(row, col) && grid.IsDataRow(row) && !grid.IsReadOnly(row, col);
}

Reading<CellValue> RecipeDocument::ReadCell(const Grid& grid, int row, int col, std::string_view text) const {
    // An empty text is always valid and means 0 or unset.
    if (IsBlank(text)) return CellValue{};
    const CellRule& rule = RuleOf(grid, col);
    switch (rule.takes) {
        case CellTakes::Pounds:
            return AsCell(ValidatePounds(text));
        case CellTakes::Ounces:
            return AsCell(ValidateOunces(text));
        case CellTakes::Grams:
            return AsCell(ValidateGrams(text));
        case CellTakes::Percent:
            return AsCell(ValidatePercent(text));
        case CellTakes::Minutes:
            // The time of a dry-hopped row is free text without a value: days in the hopper, for instance.
            if (grid.Checked(row, HopCol::DryHopped)) return CellValue{};
            return AsCell(ValidateMinutes(text));
        case CellTakes::HopAmount:
            return ReadHopAmount(text);
        case CellTakes::HopForm:
            return ReadHopForm(text);
        case CellTakes::PlainNumber:
            return ReadPlainNumber(text, rule.numberWord);
        case CellTakes::KegPsi:
            return ReadKegPressure(text);
        case CellTakes::RowLabel:
        case CellTakes::Computed:
        case CellTakes::AnyText:
        case CellTakes::YesNo:
            break;
    }
    return CellValue{};
}

Reading<CellValue> RecipeDocument::ReadKegPressure(std::string_view text) const {
    const Reading<double> psi = ValidatePressure(text);
    if (!psi) return psi.Why();
    if (!calculator_.HasKegVolumes(*psi))
        return Refusal{kCarbonationFailed, "Please enter a more reasonable pressure."};
    return CellValue::Of(*psi);
}

bool RecipeDocument::EditCell(Grid& grid, int row, int col, std::string_view text, Asking asking) {
    if (!CanEdit(grid, row, col) || grid.IsCheckBox(row, col)) return false;
    // As in the text boxes: where a quantity belongs, blanks alone are the empty text.
    if (IsBlank(text) && RuleOf(grid, col).takes != CellTakes::AnyText) text = {};
    if (grid.Text(row, col) == text) return true;
    const Reading<CellValue> value = ReadCell(grid, row, col, text);
    if (!value) {
        if (asking == Asking::Aloud) ShowRefusal(platform_.messages, value.Why());
        return false;
    }
    if (RuleOf(grid, col).takes == CellTakes::HopForm && value->kind == CellValue::Kind::Number)
        text = kHopForms[static_cast<std::size_t>(value->number)].name;
    ChangeRow(grid, row, col, [&] {
        // In gridTreatment the number behind an ion cell is the salt's factor, and a name has none.
        grid.SetText(row, col, text);
        grid.SetValue(row, col, *value);
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
    const std::optional<CellValue> time = ReadQuietly(hops, row, HopCol::Time, hops.Text(row, HopCol::Time));
    if (time) hops.SetValue(row, HopCol::Time, *time);
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
    const bool found = LookUp(grid, row, col);
    if (const auto committed = RuleOf(grid).committed)
        committed(calculator_, grid, row, found ? kWholeRow : col);
}

// The figures of one row anew, without look-ups.
void RecipeDocument::RecalculateGrid(Grid& grid, int row) {
    if (const auto committed = RuleOf(grid).committed) committed(calculator_, grid, row, kWholeRow);
}

void RecipeDocument::PickLogDate(const DateTime& day) {
    Grid& log = record_.gridLog;
    if (!log.IsDataRow(log.CurrentRow())) return;
    AsOneStep(ChangeType::Selection, [&] { EditCell(log, log.CurrentRow(), LogCol::Date, ShortDate(day)); });
}

}  // namespace tw
