#include "document/ui/TotalsView.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

#include "document/ui/GridDelegate.h"
#include "document/ui/GridModel.h"
#include "document/ui/GridView.h"

namespace tw {

TotalsView::TotalsView(GridView& rows, QWidget* parent)
    : QTableView(parent),
      rows_(rows),
      model_(new GridModel(rows.Binding(), *rows.TheGrid(), GridModel::Part::Totals, this)) {
    setObjectName(rows.objectName() + QStringLiteral("Totals"));
    setAccessibleName(tr("Totals of %1").arg(rows.accessibleName()));
    setFrameShape(QFrame::NoFrame);
    setModel(model_);
    setItemDelegate(new GridDelegate(rows, rows.Cells(), rows.Binding(), this));
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(1);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(rows.RowHeight());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFocusPolicy(Qt::NoFocus);
    setWordWrap(false);
    setShowGrid(false);
}

void TotalsView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex cell = indexAt(event->pos());
    // Commits the open editor of the data rows.
    rows_.setFocus(Qt::MouseFocusReason);
    if (!cell.isValid() || rows_.Binding().IsRefusing()) return;
    if (event->button() == Qt::RightButton && selectionModel()->isSelected(cell)) return;
    const bool extends = event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::ShiftModifier);
    rows_.MoveTo(model_->GridRow(cell.row()), cell.column(), extends);
}

// Dragging selects a block of totals, as it does in the data rows.
void TotalsView::mouseMoveEvent(QMouseEvent* event) {
    const QModelIndex cell = indexAt(event->pos());
    if (!event->buttons().testFlag(Qt::LeftButton) || !cell.isValid() || rows_.Binding().IsRefusing()) return;
    rows_.MoveTo(model_->GridRow(cell.row()), cell.column(), true);
}

void TotalsView::contextMenuEvent(QContextMenuEvent* event) {
    rows_.Binding().Frame().ShowEditMenu(event->globalPos());
}

// Over the totals, too, the wheel scrolls the data rows.
void TotalsView::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(rows_.verticalScrollBar(), event);
}

}  // namespace tw
