// Snapshots of an open recipe: its state as it is, not as the tables store it.
#include <algorithm>
#include <cmath>

#include "document/RecipeStorage.h"
#include "record/CellRules.h"
#include "record/Entries.h"

namespace tw {
namespace {

bool FolderExists(Database& database, std::int64_t id) {
    return id == 0 ||
           !database.OpenRecordset("SELECT ID FROM FOLDERS WHERE NOT STYLE AND ID = ?", {id}).AtEnd();
}

// True if the number is an index of kHopForms, which the calculations use unchecked.
bool IsForm(const Cell& cell) {
    const double form = cell.value.number;
    return form >= 0 && form < static_cast<double>(kHopForms.size()) && form == std::floor(form);
}

bool FitsGrid(const Grid& grid, const std::vector<std::vector<Cell>>& rows, int dataRows) {
    const bool count = grid.RowsCanChange() ? dataRows >= grid.LeastDataRows() : dataRows == grid.DataRows();
    if (!count) return false;
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const std::vector<Cell>& cells = rows[static_cast<std::size_t>(row)];
        if (cells.size() != static_cast<std::size_t>(grid.Cols())) return false;
        for (int col = 0; col < grid.Cols() && row < dataRows; ++col)
            if (RuleOf(grid, col).takes == CellTakes::HopForm &&
                !IsForm(cells[static_cast<std::size_t>(col)]))
                return false;
    }
    return true;
}

void RestoreRows(Grid& grid, const std::vector<std::vector<Cell>>& rows) {
    const int wanted = static_cast<int>(rows.size()) - (grid.Rows() - grid.EndOfData());
    if (!FitsGrid(grid, rows, wanted))
        throw Error("RecipeDocument.Restore", "The rows of " + grid.Name() + " cannot be read", 9);
    while (grid.DataRows() > wanted) grid.RemoveRow(grid.EndOfData() - 1);
    while (grid.DataRows() < wanted) grid.InsertRow(grid.EndOfData());
    for (std::size_t i = 0; i < rows.size(); ++i)
        grid.RestoreCells(Grid::FixedRows() + static_cast<int>(i), rows[i]);
    grid.SetCurrent(Grid::FixedRows(), 0);
    grid.NotifyFilled();
}

}  // namespace

RecipeSnapshot RecipeStorage::TakeSnapshot() const {
    RecipeSnapshot s;
    s.origName = recipe_.place.origName;
    s.folderId = recipe_.place.folderId;
    s.styleId = style_.Id();
    s.createdWhen = recipe_.place.createdWhen;
    s.swatch = recipe_.record.Swatch();
    s.options = {recipe_.record.grpIBUMethod.Value(), recipe_.record.grpPkgMethod.Value()};
    for (const Button* button : recipe_.record.Buttons())
        if (button->Enabled()) s.buttons.push_back(button->Name());
    for (const TextBox* box : recipe_.record.TextBoxes())
        s.fields.push_back({box->Name(), box->Text(), box->Committed(), box->Value()});
    for (const Grid* grid : recipe_.record.Grids()) {
        s.grids.push_back({grid->Name(), {}});
        for (int row = Grid::FixedRows(); row < grid->Rows(); ++row) {
            // A row that is still to be typed is not part of the recipe.
            if (grid == lines_.Offered() && row == grid->EndOfData() - 1) continue;
            s.grids.back().rows.push_back(grid->CellsOf(row));
            // Not part of a snapshot: Restore determines it again.
            for (Cell& cell : s.grids.back().rows.back()) cell.ownNumber = false;
        }
    }
    return s;
}

void RecipeStorage::RestorePlace(const RecipeSnapshot& s) {
    recipe_.place.createdWhen = s.createdWhen;
    if (!s.origName.empty()) recipe_.place.id = RecipeId(recipe_.database, s.origName);
    const bool gone = !s.origName.empty() && !recipe_.place.id;
    recipe_.place.origName = gone ? std::string() : s.origName;
    recipe_.place.folderId =
        gone || s.folderId < 0 || !FolderExists(recipe_.database, s.folderId) ? -1 : s.folderId;
}

void RecipeStorage::Restore(const RecipeSnapshot& s) {
    for (const RecipeSnapshot::Rows& rows : s.grids)
        if (Grid* grid = recipe_.record.FindGrid(rows.grid)) RestoreRows(*grid, rows.rows);
    for (const RecipeSnapshot::Field& field : s.fields) {
        TextBox* box = recipe_.record.FindTextBox(field.name);
        if (!box) continue;
        box->SetValue(field.value);
        box->SetCommitted(field.committed);
        box->SetText(field.text);
    }
    for (const std::string& option : s.options)
        if (OptionGroup* group = recipe_.record.FindOptionGroup(option))
            group->Select(std::max(0, group->IndexOf(option)));
    for (Button* button : recipe_.record.Buttons())
        button->SetEnabled(std::ranges::find(s.buttons, button->Name()) != s.buttons.end());
    recipe_.record.SetSwatch(s.swatch);
    style_.SetId(s.styleId);
    RestorePlace(s);
    MarkOwnNumbers(recipe_.record);
    // An uncommitted entry would be shown in its box without any effect.
    for (TextBox* box : recipe_.record.TextBoxes())
        if (!fields_.CommitIfReadable(*box)) box->SetText(box->Committed());
    recipe_.recorder.Clear();
    recipe_.MarkChanged();
    if (recipe_.IsActive()) focus_.Activate();
}

}  // namespace tw
