// The keys of a grid and the ways of its current cell. The rows and the totals below them are one grid.
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "document/ui/GridView.h"
#include "document/ui/TotalsView.h"

namespace tw {

bool GridView::InTotals() const {
    return grid_ && totals_ && grid_->CurrentRow() >= grid_->EndOfData();
}

GridView::Block GridView::SelectedBlock() const {
    const GridRange range = grid_->Selection();
    // Qt knows the corners of a block that lies among the data rows: its current cell is the one that moves.
    const int row = model_->GridRow(currentIndex().row()), col = currentIndex().column();
    if (range.row2 < grid_->EndOfData() && currentIndex().isValid()) {
        const int otherRow = row == range.row1 ? range.row2 : range.row1;
        const int otherCol = col == range.col1 ? range.col2 : range.col1;
        return {{otherRow, otherCol}, {row, col}};
    }
    if (block_.Range() == range) return block_;
    // Selected as a whole: the arrows go on from the current cell.
    return {{range.row2, range.col2}, {range.row1, range.col1}};
}

GridRange GridView::Block::Range() const {
    return {std::min(anchor.row, end.row), std::min(anchor.col, end.col), std::max(anchor.row, end.row),
            std::max(anchor.col, end.col)};
}

void GridView::MoveTo(int row, int col, bool extends) {
    if (!grid_) return;
    const Place end{std::clamp(row, Grid::FixedRows(), grid_->TotalsRow()),
                    std::clamp(col, 0, grid_->Cols() - 1)};
    block_ = {extends ? SelectedBlock().anchor : end, end};
    binding_.Run([&](RecipeDocument& document) { document.Focus().SelectCells(*grid_, block_.Range()); });
    ShowColumn(end.col);
}

// Only the columns scroll: the totals are always in sight.
void GridView::ShowColumn(int col) {
    QScrollBar& bar = *horizontalScrollBar();
    const int right = columnViewportPosition(col) + columnWidth(col);
    if (right > viewport()->width()) bar.setValue(bar.value() + right - viewport()->width());
    if (columnViewportPosition(col) < 0) bar.setValue(bar.value() + columnViewportPosition(col));
}

bool GridView::MoveThroughTotals(const QKeyEvent& key) {
    if (!grid_ || !totals_) return false;
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

bool GridView::Step(int direction) {
    const int cols = model_->columnCount();
    if (!InTotals()) return StepFrom(currentIndex().row() * cols + currentIndex().column(), direction);
    // Among the totals nothing takes an entry: one cell after the other, and back into the rows.
    const int first = grid_->EndOfData();
    const int place = (grid_->CurrentRow() - first) * cols + grid_->CurrentCol() + direction;
    if (place < 0) return StepFrom(model_->rowCount() * cols, -1);
    if (place >= (grid_->Rows() - first) * cols) return false;
    MoveTo(first + place / cols, place % cols, false);
    return true;
}

bool GridView::StepFrom(int place, int direction) {
    const int cols = model_->columnCount(), cells = model_->rowCount() * cols;
    for (place += direction; place >= 0 && place < cells; place += direction) {
        const QModelIndex cell = model_->index(place / cols, place % cols);
        if (!model_->CanEdit(cell)) continue;
        setCurrentIndex(cell);
        return true;
    }
    return false;
}

void GridView::StepDown() {
    if (InTotals()) return MoveTo(grid_->CurrentRow() + 1, grid_->CurrentCol(), false);
    const QModelIndex below = model_->index(currentIndex().row() + 1, currentIndex().column());
    if (below.isValid()) setCurrentIndex(below);
}

bool GridView::HandleOwnKey(const QKeyEvent& key) {
    // Of the totals no cell can be ticked or dated.
    const QModelIndex cell = InTotals() ? QModelIndex() : currentIndex();
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            key.modifiers().testFlag(Qt::ControlModifier) ? BrowseCatalogue() : StepDown();
            return true;
        case Qt::Key_Space:
            if (!model_->IsCheckBox(cell)) return false;
            Toggle(cell);
            return true;
        case Qt::Key_Delete:
            if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
            binding_.Frame().RunCommand(CommandId::EditClear);
            return true;
        case Qt::Key_S:
            // Nothing needs the mouse: the header's click by key.
            if (key.modifiers() != (Qt::ControlModifier | Qt::ShiftModifier)) return false;
            SortBy(grid_ ? grid_->CurrentCol() : -1);
            return true;
        case Qt::Key_Down:
            if (!hasDates_ || !key.modifiers().testFlag(Qt::AltModifier) || !cell.isValid()) break;
            emit CalendarRequested(model_->GridRow(cell.row()));
            return true;
        default:
            break;
    }
    return MoveThroughTotals(key);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (binding_.HandleEditKey(*event) || HandleOwnKey(*event)) return;
    // Qt would go on in the rows, where its own current cell has stayed.
    if (InTotals())
        event->ignore();
    else
        QTableView::keyPressEvent(event);
}

bool GridView::focusNextPrevChild(bool next) {
    if (!CommitEditor()) return true;
    if (hasFocus() && Step(next ? 1 : -1)) return true;
    return QAbstractScrollArea::focusNextPrevChild(next);
}

}  // namespace tw
