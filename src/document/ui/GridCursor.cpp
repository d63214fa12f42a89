#include "document/ui/GridCursor.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>

#include "document/ui/DocumentBinding.h"
#include "document/ui/GridModel.h"
#include "record/CellRules.h"

namespace tw {

GridCursor::GridCursor(QTableView& view, const GridModel& model, DocumentBinding& binding, Grid& grid)
    : view_(view), model_(model), binding_(binding), grid_(&grid) {}

bool GridCursor::InTotals() const {
    return grid_ && hasTotals_ && grid_->CurrentRow() >= grid_->EndOfData();
}

GridCursor::Block GridCursor::SelectedBlock() const {
    const GridRange range = grid_->Selection();
    // Qt knows the corners of a block within the data rows: its current cell is the moving corner.
    const int row = model_.GridRow(view_.currentIndex().row()), col = view_.currentIndex().column();
    if (range.row2 < grid_->EndOfData() && view_.currentIndex().isValid()) {
        const int otherRow = row == range.row1 ? range.row2 : range.row1;
        const int otherCol = col == range.col1 ? range.col2 : range.col1;
        return {{otherRow, otherCol}, {row, col}};
    }
    if (block_.Range() == range) return block_;
    // The block was selected by other means: the cursor keys start from the current cell.
    return {{range.row2, range.col2}, {range.row1, range.col1}};
}

GridRange GridCursor::Block::Range() const {
    return {std::min(anchor.row, end.row), std::min(anchor.col, end.col), std::max(anchor.row, end.row),
            std::max(anchor.col, end.col)};
}

void GridCursor::MoveTo(int row, int col, bool extends) {
    if (!grid_) return;
    const Place end{std::clamp(row, Grid::FixedRows(), grid_->TotalsRow()),
                    std::clamp(col, 0, grid_->Cols() - 1)};
    block_ = {extends ? SelectedBlock().anchor : end, end};
    binding_.Run([&](RecipeDocument& document) { document.Focus().SelectCells(*grid_, block_.Range()); });
    ShowColumn(end.col);
}

// Scrolls horizontally only: the totals are always visible.
void GridCursor::ShowColumn(int col) {
    QScrollBar& bar = *view_.horizontalScrollBar();
    const int right = view_.columnViewportPosition(col) + view_.columnWidth(col);
    if (right > view_.viewport()->width()) bar.setValue(bar.value() + right - view_.viewport()->width());
    if (view_.columnViewportPosition(col) < 0) bar.setValue(bar.value() + view_.columnViewportPosition(col));
}

bool GridCursor::MoveThroughTotals(const QKeyEvent& key) {
    if (!grid_ || !hasTotals_) return false;
    const Block block = SelectedBlock();
    const int end = grid_->EndOfData();
    const bool reachesIn = block.anchor.row >= end || block.end.row >= end;
    const bool control = key.modifiers().testFlag(Qt::ControlModifier);
    if (!reachesIn && (key.key() != Qt::Key_Down || control || block.end.row != end - 1)) return false;
    Place to = block.end;
    switch (key.key()) {
        case Qt::Key_Up:
            --to.row;
            break;
        case Qt::Key_Down:
            ++to.row;
            break;
        case Qt::Key_Left:
            --to.col;
            break;
        case Qt::Key_Right:
            ++to.col;
            break;
        case Qt::Key_Home:
            to = {control ? Grid::FixedRows() : to.row, 0};
            break;
        case Qt::Key_End:
            to = {control ? grid_->TotalsRow() : to.row, grid_->Cols() - 1};
            break;
        case Qt::Key_PageUp:
            to.row = end - 1;
            break;
        case Qt::Key_PageDown:
            to.row = grid_->TotalsRow();
            break;
        default:
            return false;
    }
    MoveTo(to.row, to.col, key.modifiers().testFlag(Qt::ShiftModifier));
    return true;
}

bool GridCursor::Step(int direction) {
    if (!grid_) return false;
    const int cols = grid_->Cols();
    if (!InTotals())
        return StepFrom(view_.currentIndex().row() * cols + view_.currentIndex().column(), direction);
    // Totals cannot be edited: steps through all of their cells, and back into the data rows.
    const int first = grid_->EndOfData();
    const int place = (grid_->CurrentRow() - first) * cols + grid_->CurrentCol() + direction;
    if (place < 0) return StepFrom(model_.rowCount() * cols, -1);
    if (place >= (grid_->Rows() - first) * cols) return false;
    MoveTo(first + place / cols, place % cols, false);
    return true;
}

bool GridCursor::StepFrom(int place, int direction) {
    const int cols = grid_->Cols(), cells = model_.rowCount() * cols;
    for (place += direction; place >= 0 && place < cells; place += direction) {
        const QModelIndex cell = model_.index(place / cols, place % cols);
        if (!model_.CanEdit(cell)) continue;
        if (direction > 0 && !IsTabStop(*grid_, model_.GridRow(cell.row()), cell.column())) continue;
        view_.setCurrentIndex(cell);
        return true;
    }
    return false;
}

bool GridCursor::IsAtEnd() const {
    if (!grid_ || grid_->CurrentRow() != grid_->EndOfData() - 1) return false;
    for (int col = grid_->CurrentCol() + 1; col < grid_->Cols(); ++col)
        if (IsTabStop(*grid_, grid_->CurrentRow(), col)) return false;
    return true;
}

void GridCursor::StepDown() {
    if (InTotals()) return MoveTo(grid_->CurrentRow() + 1, grid_->CurrentCol(), false);
    const QModelIndex below = model_.index(view_.currentIndex().row() + 1, view_.currentIndex().column());
    if (below.isValid()) view_.setCurrentIndex(below);
}

}  // namespace tw
