#include "document/RecipeMapping.h"

#include <string>

#include "platform/Error.h"
#include "record/Entries.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// More lines than any recipe has. A greater row index is damage, and growing the grid to it would
// take forever.
constexpr int kMostLines = 20000;

std::string Trimmed(std::string_view text) {
    return std::string(Trim(text));
}

// Blanks alone count as an empty quantity.
std::string_view QuantityText(std::string_view stored) {
    return IsBlank(stored) ? std::string_view() : stored;
}

StoredValue StoredFrom(const TextBox& box) {
    const FieldRule& rule = RuleOf(box);
    if (rule.stored != FieldStored::Quantity) return {Trimmed(box.Text()), {}};
    return {Trimmed(rule.computed ? box.Text() : box.Committed()), box.Value()};
}

StoredValue StoredFrom(const Cell& cell, const CellRule& rule) {
    switch (rule.stored) {
        case CellStored::No:
            return {};
        case CellStored::Text:
        case CellStored::BareText:
            return {Trimmed(cell.text), {}};
        case CellStored::Quantity:
            // A hop amount in AAUs or IBUs is stored with the number 0, on purpose: the number column is in
            // ounces, and only the text can tell the three kinds apart.
            return {Trimmed(cell.text), cell.value.kind == CellValue::Kind::Number ? cell.value.number : 0};
        case CellStored::Number:
        case CellStored::Form:
            return {{}, cell.value.number};
        case CellStored::Flag:
            return {{}, cell.check == CheckState::Checked ? 1 : 0};
    }
    return {};
}

// Returns one line per data row, even if it is blank; for a grid stored in the recipe's own row, as many
// lines as that has columns for.
std::vector<StoredLine> LinesFrom(const Grid& grid) {
    const GridRule& rule = RuleOf(grid);
    const int rows = rule.lines.name.empty() ? static_cast<int>(rule.prefixes.size()) : grid.DataRows();
    std::vector<StoredLine> lines;
    for (int id = 0; id < rows; ++id) {
        StoredLine& line = lines.emplace_back(StoredLine{id, {}});
        for (int col = 0; col < grid.Cols(); ++col)
            line.cells.push_back(StoredFrom(grid.At(Grid::FixedRows() + id, col), RuleOf(grid, col)));
    }
    return lines;
}

void FillBox(TextBox& box, const StoredValue& stored) {
    const bool quantity = RuleOf(box).stored == FieldStored::Quantity;
    if (stored.text) box.SetText(quantity ? QuantityText(*stored.text) : std::string_view(*stored.text));
    if (stored.number) box.SetValue(*stored.number);
    if (!box.Computed()) box.SetCommitted(box.Text());
    if (!quantity || (stored.number ? *stored.number != 0 : !stored.text)) return;
    if (const std::optional<double> told = NumberTold(box, box.Text())) box.SetValue(*told);
}

void FillQuantity(Grid& grid, int row, int col, const StoredValue& stored) {
    if (stored.text) grid.SetText(row, col, QuantityText(*stored.text));
    if (stored.number) grid.SetValue(row, col, CellValue::Of(*stored.number));
    if (grid.Empty(row, col)) return;
    const bool hopAmount = RuleOf(grid, col).takes == CellTakes::HopAmount;
    if (!hopAmount && stored.number.value_or(0) != 0) return;
    const std::optional<CellValue> told = NumberTold(grid, row, col, grid.Text(row, col));
    if (!told) return;
    // The number column cannot represent AAUs and IBUs: their kind and number are read from the text again.
    const bool missing = stored.number.value_or(0) == 0 && (!stored.number || told->number != 0);
    if (missing || (hopAmount && told->kind != CellValue::Kind::Number)) grid.SetValue(row, col, *told);
}

// Fills a cell whose text must be a number. Any other text, or none, empties the cell.
void FillBareText(Grid& grid, int row, int col, const StoredValue& stored) {
    const std::optional<double> number = stored.text ? ReadNumber(*stored.text) : std::nullopt;
    if (number) {
        grid.SetText(row, col, *stored.text);
        grid.SetValue(row, col, CellValue::Of(*number));
    } else {
        grid.Clear(row, col);
    }
}

void FillForm(Grid& grid, int row, int col, const StoredValue& stored) {
    const auto form = static_cast<std::size_t>(stored.number.value_or(0));
    grid.SetText(row, col, kHopForms[form].name);
    grid.SetValue(row, col, CellValue::Of(static_cast<double>(form)));
}

void FillCell(Grid& grid, int row, int col, const StoredValue& stored) {
    switch (RuleOf(grid, col).stored) {
        case CellStored::No:
            break;
        case CellStored::Text:
            if (stored.text) grid.SetText(row, col, *stored.text);
            break;
        case CellStored::Quantity:
            FillQuantity(grid, row, col, stored);
            break;
        case CellStored::Number:
            grid.SetValue(row, col, CellValue::Of(stored.number.value_or(0)));
            break;
        case CellStored::BareText:
            FillBareText(grid, row, col, stored);
            break;
        case CellStored::Form:
            FillForm(grid, row, col, stored);
            break;
        case CellStored::Flag:
            if (stored.number) grid.SetChecked(row, col, *stored.number != 0);
            break;
    }
}

// For a grid stored in the recipe's own row: NULL empties the cell, because a new recipe has a default water
// profile there.
StoredValue WithoutGaps(StoredValue stored) {
    if (!stored.text) stored.text = "";
    if (!stored.number) stored.number = 0;
    return stored;
}

}  // namespace

StoredRecipe StoredFrom(const RecipeRecord& r) {
    StoredRecipe stored;
    for (const TextBox* const box : r.TextBoxes()) stored[box->Id()] = StoredFrom(*box);
    for (const Grid* const grid : r.Grids()) stored[grid->Id()] = LinesFrom(*grid);
    stored.ibuMethod = r.grpIBUMethod.Selected();
    stored.bottled = r.Bottled();
    return stored;
}

void CheckStored(const StoredRecipe& stored) {
    for (const GridRule& rule : GridRules()) {
        for (const StoredLine& line : stored[rule.id]) {
            for (std::size_t col = 0; col < rule.columns.size(); ++col) {
                const double form = line.cells[col].number.value_or(0);
                if (rule.columns[col].stored == CellStored::Form &&
                    (form < 0 || form >= static_cast<double>(kHopForms.size())))
                    throw Error(
                        "RecipeDocument.OpenRecipe",
                        "Hop form " + std::to_string(static_cast<std::int64_t>(form)) + " is not known", 9);
            }
        }
    }
}

void FillFields(RecipeRecord& r, const StoredRecipe& stored) {
    for (const FieldRule& rule : FieldRules())
        if (rule.stored != FieldStored::Name) FillBox(r.*rule.box, stored[rule.id]);
    if (stored.ibuMethod) r.grpIBUMethod.Select(*stored.ibuMethod == 0 ? 0 : *stored.ibuMethod == 1 ? 1 : 2);
    if (stored.bottled) r.grpPkgMethod.Select(*stored.bottled ? 0 : 1);
    const bool gravities = !r.txtOG.Empty() && !r.txtFG.Empty();
    r.cmdStrengthDetails.SetEnabled(gravities);
    r.cmdFinalVolDetails.SetEnabled(gravities);
    r.cmdCalcTreatment.SetEnabled(!IsBlank(r.txtTotalVol.Text()));
}

void FillGrid(Grid& grid, const StoredRecipe& stored, const std::function<void(Grid&)>& addRow) {
    const bool ownRow = RuleOf(grid).lines.name.empty();
    for (const StoredLine& line : stored[grid.Id()]) {
        if (line.rowId < 0 || line.rowId >= kMostLines)
            throw Error(
                "RecipeDocument.OpenRecipe",
                "A line of " + grid.Name() + " has the impossible place " + std::to_string(line.rowId), 9);
        while (grid.DataRows() <= line.rowId) addRow(grid);
        for (int col = 0; col < grid.Cols(); ++col) {
            const StoredValue& value = line.cells[static_cast<std::size_t>(col)];
            FillCell(grid, Grid::FixedRows() + line.rowId, col, ownRow ? WithoutGaps(value) : value);
        }
    }
    if (ownRow) return;
    if (grid.DataRows() > 0) grid.SetCurrent(Grid::FixedRows(), 0);
    grid.NotifyFilled();
}

}  // namespace tw
