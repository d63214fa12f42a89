#include "document/RecipeFocus.h"

#include <string>

#include "document/TabRules.h"
#include "values/Text.h"

namespace tw {
Grid* RecipeFocus::GridOfTab(Tab tab) {
    const std::optional<GridId> rows = RuleOf(tab).rows;
    return rows ? &recipe_.record[*rows] : nullptr;
}

void RecipeFocus::SetTab(Tab tab) {
    FlushEdits();
    tab_ = tab;
    const TabRule& rule = RuleOf(tab);
    if (rule.firstBox)
        FocusOn(recipe_.record[*rule.firstBox]);
    else
        FocusOn(recipe_.record[*rule.firstGrid]);
    recipe_.recorder.SetTab(static_cast<int>(tab));
    RefreshRowCommands();
}

void RecipeFocus::FocusOn(TextBox& box) {
    if (box_ != &box && !recipe_.view) FlushEdits();
    Focus(&box, nullptr);
}

void RecipeFocus::FocusOn(Grid& grid) {
    if (!recipe_.view) FlushEdits();
    Focus(nullptr, &grid);
}

void RecipeFocus::FocusElsewhere() {
    if (!recipe_.view) FlushEdits();
    Focus(nullptr, nullptr);
}

void RecipeFocus::Focus(TextBox* box, Grid* grid) {
    box_ = box;
    grid_ = grid;
    RefreshEditCommands();
}

bool RecipeFocus::FlushEdits() {
    if (recipe_.view) return recipe_.view->FlushEditors();
    if (box_ && !fields_.CommitField(*box_)) fields_.RestoreField(*box_);
    return true;
}

void RecipeFocus::FlushEditsQuietly() {
    for (TextBox* const box : recipe_.record.TextBoxes()) {
        if (IsBlank(box->Text())) continue;
        const std::string typed = box->Text();
        if (!fields_.CommitIfReadable(*box)) fields_.SetText(*box, typed);
    }
}

void RecipeFocus::SetCurrentCell(Grid& grid, int row, int col) {
    grid.SetCurrent(row, col);
    RefreshRowCommands();
}

void RecipeFocus::SelectCells(Grid& grid, const GridRange& range) {
    grid.Select(range);
    RefreshRowCommands();
}

bool RecipeFocus::CanInsertRow(const Grid& grid) const {
    return grid.RowsCanChange() && (grid.Id() != GridId::Priming || recipe_.record.Bottled());
}

bool RecipeFocus::CanDeleteRow(const Grid& grid) const {
    return CanInsertRow(grid) && grid.IsDataRow(grid.CurrentRow()) && grid.DataRows() > grid.LeastDataRows();
}

void RecipeFocus::Activate() {
    recipe_.host.Commands().EnableSave(recipe_.Changed());
    recipe_.calculator.RefreshCommands();
    recipe_.RefreshUndoCommands();
    RefreshEditCommands();
    RefreshRowCommands();
}

void RecipeFocus::RefreshRowCommands() {
    if (!recipe_.IsActive()) return;
    const Grid* const grid = GridOfTab(tab_);
    recipe_.host.Commands().EnableInsert(grid && CanInsertRow(*grid));
    recipe_.host.Commands().EnableDelete(grid && CanDeleteRow(*grid));
}

void RecipeFocus::RefreshEditCommands() {
    const bool copies = box_ || grid_;
    if (recipe_.IsActive())
        recipe_.host.Commands().EnableCopyPaste(copies, copies && !(box_ && box_->Computed()));
}

}  // namespace tw
