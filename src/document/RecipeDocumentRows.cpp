// Rows of the grids: inserting, deleting, and the commands that offer it.
#include <algorithm>

#include "calc/GridRules.h"
#include "document/RecipeDocument.h"

namespace tw {

Grid* RecipeDocument::GridOfTab(Tab tab) {
    switch (tab) {
        case Tab::Grains:
            return &record_.gridGrain;
        case Tab::Extracts:
            return &record_.gridExtract;
        case Tab::Hops:
            return &record_.gridHops;
        case Tab::Water:
            return &record_.gridTreatment;
        case Tab::Carbonation:
            return &record_.gridPriming;
        case Tab::Adjuncts:
            return &record_.gridAdjuncts;
        case Tab::Log:
            return &record_.gridLog;
        case Tab::General:
        case Tab::Notes:
            break;
    }
    return nullptr;
}

bool RecipeDocument::CanInsertRow(const Grid& grid) const {
    return grid.RowsCanChange() && (grid.Id() != GridId::Priming || record_.Bottled());
}

bool RecipeDocument::CanDeleteRow(const Grid& grid) const {
    return CanInsertRow(grid) && grid.IsDataRow(grid.CurrentRow()) && grid.DataRows() > grid.LeastDataRows();
}

void RecipeDocument::RefreshRowCommands() {
    if (!IsActive()) return;
    const Grid* grid = GridOfTab(tab_);
    host_.Commands().EnableInsert(grid && CanInsertRow(*grid));
    host_.Commands().EnableDelete(grid && CanDeleteRow(*grid));
}

void RecipeDocument::SetCurrentCell(Grid& grid, int row, int col) {
    grid.SetCurrent(row, col);
    RefreshRowCommands();
}

void RecipeDocument::SelectCells(Grid& grid, const GridRange& range) {
    grid.Select(range);
    RefreshRowCommands();
}

void RecipeDocument::InsertRow() {
    Grid* grid = GridOfTab(tab_);
    if (!grid || !CanInsertRow(*grid)) return;
    if (FlushEdits()) InsertRowForGrid(*grid);
}

void RecipeDocument::DeleteRow() {
    Grid* grid = GridOfTab(tab_);
    if (grid && FlushEdits() && CanDeleteRow(*grid)) DeleteRowForGrid(*grid);
}

// A row with the defaults of a new one: a hop row has the settings' form and sock, every other cell is empty.
void RecipeDocument::AddBlankRow(Grid& grid, int row) {
    grid.InsertRow(row);
    if (grid.Id() != GridId::Hops) return;
    const RecipeDefaults defaults = host_.Defaults();
    const auto last = static_cast<int>(kHopForms.size()) - 1;
    const int form = std::clamp(defaults.hopForm, 0, last);
    grid.SetText(row, HopCol::Form, kHopForms[static_cast<std::size_t>(form)].name);
    grid.SetValue(row, HopCol::Form, CellValue::Of(form));
    grid.SetChecked(row, HopCol::Sock, defaults.hopSocks);
}

void RecipeDocument::InsertRowForGrid(Grid& grid) {
    if (!grid.RowsCanChange()) return;
    const bool append = host_.AppendRows();
    EditRecorder::Edit edit{ControlType::Grid, ChangeType::InsertRow, {}, grid.CurrentRow(), append ? 1 : 0};
    recorder_.RecordEdit(grid.Name(), EditValue::OfBoolean(false), EditValue::OfBoolean(true), edit);
    const int row =
        append ? grid.EndOfData() : std::clamp(grid.CurrentRow(), Grid::FixedRows(), grid.EndOfData());
    AddBlankRow(grid, row);
    grid.SetCurrent(row, grid.CurrentCol());
    MarkChanged();
    RefreshRowCommands();
}

void RecipeDocument::DeleteRowForGrid(Grid& grid) {
    const int row = grid.CurrentRow();
    if (!grid.RowsCanChange() || !grid.IsDataRow(row) || grid.DataRows() <= grid.LeastDataRows()) return;
    AsOneStep(ChangeType::DeleteRow, [&] {
        ClearRowCells(grid, row);
        const EditRecorder::Edit edit{ControlType::Grid, ChangeType::DeleteRow, {}, row, 0};
        recorder_.RecordEdit(grid.Name(), EditValue::OfBoolean(false), EditValue::OfBoolean(true), edit);
        RemoveRow(grid, row);
    });
}

void RecipeDocument::RemoveRow(Grid& grid, int row) {
    grid.RemoveRow(row);
    if (const auto removed = RuleOf(grid).removed) removed(calculator_, grid);
    MarkChanged();
    RefreshRowCommands();
}

// Empties each cell with a record of its own, so that an undo brings the whole row back.
void RecipeDocument::ClearRowCells(Grid& grid, int row) {
    if (grid.Id() == GridId::Treatment) ClearFactors(row);
    for (int col = 0; col < grid.Cols(); ++col) {
        if (!CanEdit(grid, row, col)) continue;
        if (grid.IsCheckBox(row, col))
            SetChecked(grid, row, col, false);
        else
            EditCell(grid, row, col, "", Asking::Quietly);
    }
}

}  // namespace tw
