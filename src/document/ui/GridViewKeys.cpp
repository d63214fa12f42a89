// The keys of a grid.
#include <QKeyEvent>

#include "document/ui/GridView.h"

namespace tw {
namespace {

bool TypesText(const QKeyEvent& key) {
    const auto others = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier);
    return others == Qt::NoModifier && !key.text().isEmpty() && key.text().at(0).isPrint() &&
           !key.text().at(0).isSpace();
}

}  // namespace

bool GridView::HandleOwnKey(const QKeyEvent& key) {
    // A cell of the totals has neither a check box nor a date.
    const QModelIndex cell = cursor_.InTotals() ? QModelIndex() : currentIndex();
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
            // The key for a click on the header, so that sorting does not need the mouse.
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
    return cursor_.MoveThroughTotals(key);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (binding_.HandleEditKey(*event) || HandleOwnKey(*event)) return;
    // Typing into a grid without rows makes its first one.
    if (TypesText(*event) && grid_ && grid_->DataRows() == 0) Grow();
    // Qt would move its own current cell, which is still among the data rows.
    if (cursor_.InTotals())
        event->ignore();
    else
        QTableView::keyPressEvent(event);
}

bool GridView::focusNextPrevChild(bool next) {
    if (!CommitEditor()) return true;
    if (hasFocus() && cursor_.Step(next ? 1 : -1)) return true;
    if (hasFocus() && next && cursor_.IsAtEnd() && Grow()) return true;
    // The focus leaves the grid here; QAbstractItemView's own function would move within it.
    return QAbstractScrollArea::focusNextPrevChild(next);  // NOLINT(bugprone-parent-virtual-call)
}

}  // namespace tw
