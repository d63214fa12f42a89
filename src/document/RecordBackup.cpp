#include "document/RecordBackup.h"

#include <algorithm>

namespace tw {

RecordBackup::RecordBackup(const RecipeRecord& record) : swatch_(record.Swatch()) {
    for (const TextBox* box : record.TextBoxes())
        boxes_.push_back({box->Text(), box->Committed(), box->Value(), box->HasOwnNumber()});
    for (const Grid* grid : record.Grids())
        for (int row = 0; row < grid->Rows(); ++row) rows_.push_back(grid->CellsOf(row));
    for (const Button* button : record.Buttons()) buttons_.push_back(button->Enabled());
}

void RecordBackup::Restore(RecipeRecord& record) const {
    auto box = boxes_.begin();
    for (TextBox* const target : record.TextBoxes()) {
        target->SetText(box->text);
        target->SetCommitted(box->committed);
        target->SetValue(box->value);
        target->SetOwnNumber(box->ownNumber);
        ++box;
    }
    auto row = rows_.begin();
    for (Grid* const grid : record.Grids())
        for (int i = 0; i < grid->Rows(); ++i) grid->RestoreCells(i, *row++);
    auto enabled = buttons_.begin();
    for (Button* const button : record.Buttons()) button->SetEnabled(*enabled++);
    record.SetSwatch(swatch_);
}

bool RecordBackup::TextsChanged(const RecipeRecord& record) const {
    auto box = boxes_.begin();
    for (const TextBox* const now : record.TextBoxes())
        if (now->Text() != (box++)->text) return true;
    auto row = rows_.begin();
    for (const Grid* const grid : record.Grids())
        for (int i = 0; i < grid->Rows(); ++i, ++row)
            if (!std::ranges::equal(grid->CellsOf(i), *row, {}, &Cell::text, &Cell::text)) return true;
    return false;
}

void RecordBackup::VisitBoxes(const RecipeRecord& record, const BoxVisit& visit) const {
    auto before = boxes_.begin();
    for (const TextBox* const box : record.TextBoxes()) {
        if (!box->Computed()) visit(*box, *before);
        ++before;
    }
}

void RecordBackup::VisitCells(const RecipeRecord& record, const CellVisit& visit) const {
    auto before = rows_.begin();
    for (const Grid* const grid : record.Grids()) {
        for (int row = 0; row < grid->Rows(); ++row, ++before) {
            if (!grid->IsDataRow(row)) continue;
            for (int col = 0; col < grid->Cols(); ++col)
                if (!grid->IsReadOnly(row, col))
                    visit(*grid, row, col, (*before)[static_cast<std::size_t>(col)]);
        }
    }
}

}  // namespace tw
