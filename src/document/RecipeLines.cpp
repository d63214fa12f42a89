#include "document/RecipeLines.h"

#include <algorithm>
#include <numeric>

#include "record/CellRules.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

double SortNumber(const Grid& grid, int row, int col) {
    if (grid.IsCheckBox(row, col)) return grid.Checked(row, col) ? 1 : 0;
    if (!grid.ColumnAt(col).readOnly) return grid.Number(row, col);
    // A computed cell is sorted by the number in its text.
    return ReadNumber(grid.Text(row, col)).value_or(grid.Number(row, col));
}

// Returns the inverse of an order, which puts the rows back.
std::vector<int> InverseOf(const std::vector<int>& order) {
    std::vector<int> inverse(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        inverse[static_cast<std::size_t>(order[i])] = static_cast<int>(i);
    return inverse;
}

EditRecorder::Edit InsertionOf(const Grid& grid, bool append) {
    return {ControlType::Grid, ChangeType::InsertRow, {}, grid.CurrentRow(), append ? 1 : 0};
}

}  // namespace

void RecipeLines::InsertRow() {
    Grid* const grid = focus_.GridOfTab(focus_.CurrentTab());
    if (!grid || !focus_.CanInsertRow(*grid)) return;
    if (focus_.FlushEdits()) InsertRowForGrid(*grid);
}

void RecipeLines::DeleteRow() {
    Grid* const grid = focus_.GridOfTab(focus_.CurrentTab());
    if (grid && focus_.FlushEdits() && focus_.CanDeleteRow(*grid)) DeleteRowForGrid(*grid);
}

void RecipeLines::AddBlankRow(Grid& grid, int row) {
    grid.InsertRow(row);
    if (grid.Id() != GridId::Hops) return;
    const RecipeDefaults defaults = recipe_.host.Defaults();
    const auto last = static_cast<int>(kHopForms.size()) - 1;
    const int form = std::clamp(defaults.hopForm, 0, last);
    grid.SetText(row, HopCol::Form, kHopForms[static_cast<std::size_t>(form)].name);
    grid.SetValue(row, HopCol::Form, CellValue::Of(form));
    grid.SetChecked(row, HopCol::Sock, defaults.hopSocks);
}

void RecipeLines::InsertRowForGrid(Grid& grid) {
    InsertRowForGrid(grid, recipe_.host.AppendRows());
}

void RecipeLines::InsertRowForGrid(Grid& grid, bool append) {
    if (!grid.RowsCanChange()) return;
    if (Offered() == &grid) return KeepOffered();
    recipe_.recorder.RecordEdit(grid.Name(), EditValue::OfBoolean(false), EditValue::OfBoolean(true),
                                InsertionOf(grid, append));
    const int row =
        append ? grid.EndOfData() : std::clamp(grid.CurrentRow(), Grid::FixedRows(), grid.EndOfData());
    AddBlankRow(grid, row);
    grid.SetCurrent(row, grid.CurrentCol());
    recipe_.MarkChanged();
    focus_.RefreshRowCommands();
}

bool RecipeLines::OfferRow(Grid& grid) {
    const int last = grid.EndOfData() - 1;
    if (!focus_.CanInsertRow(grid) || (grid.IsDataRow(last) && IsBlankRow(grid, last))) return false;
    WithdrawRow();
    recipe_.recorder.Await(grid.Name(), EditValue::OfBoolean(false), EditValue::OfBoolean(true),
                           InsertionOf(grid, true));
    offered_ = &grid;
    AddBlankRow(grid, grid.EndOfData());
    grid.SetCurrent(grid.EndOfData() - 1, 0);
    focus_.RefreshRowCommands();
    return true;
}

// Inserts the row that is offered already.
void RecipeLines::KeepOffered() {
    recipe_.recorder.RecordAwaited();
    recipe_.MarkChanged();
}

void RecipeLines::WithdrawRow() {
    Grid* const grid = Offered();
    if (!grid) return;
    recipe_.recorder.ForgetAwaited();
    const int row = grid->EndOfData() - 1;
    // The row above it becomes the current one, not the totals.
    if (grid->CurrentRow() == row) grid->SetCurrent(row - 1, grid->CurrentCol());
    grid->RemoveRow(row);
    focus_.RefreshRowCommands();
}

OfferPause::OfferPause(RecipeLines& lines) : lines_(lines), offered_(lines.Offered()) {
    lines_.WithdrawRow();
}

OfferPause::~OfferPause() {
    if (offered_) lines_.OfferRow(*offered_);
}

void RecipeLines::DeleteRowForGrid(Grid& grid) {
    const int row = grid.CurrentRow();
    if (Offered() == &grid && row == grid.EndOfData() - 1) return WithdrawRow();
    if (!grid.RowsCanChange() || !grid.IsDataRow(row) || grid.DataRows() <= grid.LeastDataRows()) return;
    OneStep step(recipe_, ChangeType::DeleteRow);
    ClearCells(grid, row);
    recipe_.recorder.RecordEdit(grid.Name(), EditValue::OfBoolean(false), EditValue::OfBoolean(true),
                                {ControlType::Grid, ChangeType::DeleteRow, {}, row, 0});
    RemoveRow(grid, row);
    step.Keep();
}

void RecipeLines::RemoveRow(Grid& grid, int row) {
    grid.RemoveRow(row);
    if (const auto removed = RuleOf(grid).removed) removed(recipe_.calculator, grid);
    recipe_.MarkChanged();
    focus_.RefreshRowCommands();
}

// Empties each cell and records that, so that an undo restores the whole row.
void RecipeLines::ClearCells(Grid& grid, int row) {
    // A stored recipe may have factors without the name of a salt: they would not be recorded when the empty
    // name is cleared.
    cells_.ClearFactors(grid, row);
    for (int col = 0; col < grid.Cols(); ++col) {
        if (!cells_.CanEdit(grid, row, col)) continue;
        if (grid.IsCheckBox(row, col))
            cells_.SetChecked(grid, row, col, false);
        else
            cells_.EditCell(grid, row, col, "", Asking::Quietly);
    }
}

// Returns the order of the data rows sorted by a column. In ascending order blanks come first; equal rows
// keep their order.
std::vector<int> RecipeLines::SortedOrder(const Grid& grid, int col) const {
    const bool byNumber = RuleOf(grid, col).SortsByNumber();
    const auto before = [&](int a, int b) {
        const int rowA = Grid::FixedRows() + a;
        const int rowB = Grid::FixedRows() + b;
        if (!byNumber) return CompareNoCase(grid.Text(rowA, col), grid.Text(rowB, col)) < 0;
        const bool blankA = !grid.IsCheckBox(rowA, col) && grid.Empty(rowA, col);
        const bool blankB = !grid.IsCheckBox(rowB, col) && grid.Empty(rowB, col);
        if (blankA || blankB) return blankA && !blankB;
        return SortNumber(grid, rowA, col) < SortNumber(grid, rowB, col);
    };
    std::vector<int> order(static_cast<std::size_t>(grid.DataRows()));
    std::iota(order.begin(), order.end(), 0);
    if (sortDescending_)
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return before(b, a); });
    else
        std::stable_sort(order.begin(), order.end(), before);
    return order;
}

void RecipeLines::ClickHeader(Grid& grid, int col) {
    if (!grid.RowsCanChange() || !grid.HasCell(0, col)) return;
    if (col == sortColumn_)
        sortDescending_ = !sortDescending_;
    else
        sortColumn_ = col;
    if (!focus_.FlushEdits() || grid.DataRows() < 2) return;
    const RedrawHold hold(recipe_.view);
    const std::vector<int> order = SortedOrder(grid, col);
    if (std::is_sorted(order.begin(), order.end())) return;
    recipe_.recorder.RecordEdit(grid.Name(), EditValue::OfOrder(InverseOf(order)), EditValue::OfOrder(order),
                                {ControlType::Grid, ChangeType::Sort, {}, 0, col});
    grid.OrderRows(order);
    recipe_.MarkChanged();
}

void RecipeLines::PutBackInsert(Grid& grid, const EditTracker& edit, bool insert) {
    const bool appended = edit.Col() != 0;
    if (insert) {
        const int row =
            appended ? grid.EndOfData() : std::clamp(edit.Row(), Grid::FixedRows(), grid.EndOfData());
        AddBlankRow(grid, row);
        grid.SetCurrent(row, grid.CurrentCol());
        recipe_.MarkChanged();
        focus_.RefreshRowCommands();
        return;
    }
    const int last = grid.EndOfData() - 1;
    // The first row of an empty grid was inserted without a current row.
    const int row =
        appended ? last : std::clamp(edit.Row(), Grid::FixedRows(), std::max(Grid::FixedRows(), last));
    if (grid.IsDataRow(row)) RemoveRow(grid, row);
}

void RecipeLines::PutBackDelete(Grid& grid, int row, bool remove) {
    if (remove) {
        if (grid.IsDataRow(row)) RemoveRow(grid, row);
        return;
    }
    // An empty row without defaults: the other edits of the step fill it as it was.
    const int at = std::clamp(row, Grid::FixedRows(), grid.EndOfData());
    grid.InsertRow(at);
    grid.SetCurrent(at, grid.CurrentCol());
    recipe_.MarkChanged();
    focus_.RefreshRowCommands();
}

// Also moves to the column, to show which sort has been undone or redone.
void RecipeLines::PutBackOrder(Grid& grid, const std::vector<int>& order, int col) {
    if (order.size() == static_cast<std::size_t>(grid.DataRows())) {
        grid.OrderRows(order);
        grid.SetCurrent(Grid::FixedRows(), col);
        focus_.RefreshRowCommands();
    }
    recipe_.MarkChanged();
}

}  // namespace tw
