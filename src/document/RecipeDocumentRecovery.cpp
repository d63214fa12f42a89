// An open recipe to a snapshot and back: its state as it stands, without the way through the tables.
#include <algorithm>
#include <cmath>

#include "document/RecipeDocument.h"
#include "document/RecipeSnapshot.h"

namespace tw {
namespace {

bool FolderExists(Database& database, std::int64_t id) {
    return id == 0 ||
           !database.OpenRecordset("SELECT ID FROM FOLDERS WHERE NOT STYLE AND ID = " + std::to_string(id))
                .AtEnd();
}

// The figures look a hop's form up by its number.
bool HasOddForm(const std::vector<std::vector<Cell>>& rows, std::size_t dataRows) {
    return std::any_of(
        rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(dataRows), [](const auto& row) {
            if (row.size() <= HopCol::Form) return true;
            const double form = row[HopCol::Form].value.number;
            return form < 0 || form >= static_cast<double>(kHopForms.size()) || form != std::floor(form);
        });
}

}  // namespace

RecipeSnapshot RecipeDocument::TakeSnapshot() const {
    RecipeSnapshot s;
    s.origName = origName_;
    s.folderId = folderId_;
    s.styleId = styleId_;
    s.createdWhen = createdWhen_;
    s.swatch = record_.Swatch();
    s.options = {record_.grpIBUMethod.Value(), record_.grpPkgMethod.Value()};
    for (const Button* button : record_.Buttons())
        if (button->Enabled()) s.buttons.push_back(button->Name());
    for (const TextBox* box : record_.TextBoxes())
        s.fields.push_back({box->Name(), box->Text(), box->Committed(), box->Value()});
    for (const Grid* grid : record_.Grids()) {
        s.grids.push_back({grid->Name(), {}});
        for (int row = Grid::FixedRows(); row < grid->Rows(); ++row)
            s.grids.back().rows.push_back(grid->CellsOf(row));
    }
    return s;
}

void RecipeDocument::RestorePlace(const RecipeSnapshot& s) {
    createdWhen_ = s.createdWhen;
    const bool gone = !s.origName.empty() && !RecipeExists(database_, s.origName);
    origName_ = gone ? std::string() : s.origName;
    folderId_ = gone || s.folderId < 0 || !FolderExists(database_, s.folderId) ? -1 : s.folderId;
}

void RecipeDocument::RestoreRows(Grid& grid, const std::vector<std::vector<Cell>>& rows) {
    const int totals = grid.Rows() - grid.EndOfData();
    const int wanted = static_cast<int>(rows.size()) - totals;
    const auto fits = [&](const auto& row) { return row.size() == static_cast<std::size_t>(grid.Cols()); };
    const bool sameRows = grid.RowsCanChange() ? wanted >= grid.LeastDataRows() : wanted == grid.DataRows();
    const bool odd = !sameRows || !std::ranges::all_of(rows, fits) ||
                     (grid.Name() == "gridHops" && HasOddForm(rows, static_cast<std::size_t>(wanted)));
    if (odd) throw Error("RecipeDocument.Restore", "The rows of " + grid.Name() + " cannot be read", 9);
    while (grid.DataRows() > wanted) grid.RemoveRow(grid.EndOfData() - 1);
    while (grid.DataRows() < wanted) grid.InsertRow(grid.EndOfData());
    for (std::size_t i = 0; i < rows.size(); ++i)
        grid.RestoreCells(Grid::FixedRows() + static_cast<int>(i), rows[i]);
    grid.SetCurrent(Grid::FixedRows(), 0);
    grid.NotifyFilled();
}

void RecipeDocument::Restore(const RecipeSnapshot& s) {
    for (const RecipeSnapshot::Rows& rows : s.grids)
        if (Grid* grid = record_.FindGrid(rows.grid)) RestoreRows(*grid, rows.rows);
    for (const RecipeSnapshot::Field& field : s.fields) {
        TextBox* box = record_.FindTextBox(field.name);
        if (!box) continue;
        box->SetValue(field.value);
        box->SetCommitted(field.committed);
        box->SetText(field.text);
    }
    for (const std::string& option : s.options)
        if (OptionGroup* group = record_.FindOptionGroup(option))
            group->Select(std::max(0, group->IndexOf(option)));
    for (Button* button : record_.Buttons())
        button->SetEnabled(std::ranges::find(s.buttons, button->Name()) != s.buttons.end());
    record_.SetSwatch(s.swatch);
    SetStyleID(s.styleId);
    RestorePlace(s);
    // An entry that is still uncommitted would stand in its box without counting.
    for (TextBox* box : record_.TextBoxes())
        if (!Quietly([&] { return CommitField(*box, Asking::Quietly); })) box->SetText(box->Committed());
    recorder_.Clear();
    MarkChanged();
    if (IsActive()) Activate();
}

}  // namespace tw
