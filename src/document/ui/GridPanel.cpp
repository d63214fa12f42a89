#include "document/ui/GridPanel.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "document/ui/TotalsView.h"
#include "platform/qt/Appearance.h"

namespace tw {
namespace {

constexpr int kUsualRows = 8;
constexpr int kLeastRows = 3;
constexpr int kFrameWidth = 2;

}  // namespace

GridPanel::GridPanel(DocumentBinding& binding, Grid& grid, const QString& name, const QString& hint,
                     QWidget* parent)
    : QFrame(parent), view_(new GridView(binding, grid, name, this)) {
    // Makes room for the ring that shows the focus, even around a grid without rows.
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(kFrameWidth);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusProxy(view_);
    setAccessibleName(name);
    if (grid.EndOfData() < grid.Rows()) {
        totals_ = new TotalsView(*view_, this);
        view_->SetTotals(*totals_, totals_->Model());
    }
    if (!hint.isEmpty()) {
        hint_ = new QLabel(hint, this);
        hint_->setWordWrap(true);
        hint_->setTextFormat(Qt::PlainText);
    }
    LookHint();
    connect(view_, &GridView::ContentChanged, this, [this] { Arrange(); });
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
    view_->verticalScrollBar()->installEventFilter(this);
}

int GridPanel::TotalsHeight() const {
    return totals_ ? totals_->Model().rowCount() * view_->RowHeight() : 0;
}

QSize GridPanel::sizeHint() const {
    const int header = view_->horizontalHeader()->sizeHint().height();
    return {Unit(*this) * 70, header + kUsualRows * view_->RowHeight() + TotalsHeight()};
}

QSize GridPanel::minimumSizeHint() const {
    const int header = view_->horizontalHeader()->sizeHint().height();
    return {Unit(*this) * 30, header + kLeastRows * view_->RowHeight() + TotalsHeight()};
}

// Returns the height in pixels of the scroll bar below the rows; 0 if all columns are visible. It is
// calculated, because Qt shows its scroll bars only after the rows have been placed.
int GridPanel::WideBarHeight(int room) const {
    const bool allRows = view_->ContentHeight() <= room;
    const int sideBar = allRows ? 0 : view_->verticalScrollBar()->sizeHint().width();
    const bool allColumns = view_->ContentWidth() <= contentsRect().width() - sideBar;
    return allColumns ? 0 : view_->horizontalScrollBar()->sizeHint().height();
}

void GridPanel::Arrange() {
    const QRect all = contentsRect();
    const int totals = TotalsHeight();
    const int room = std::max(0, all.height() - totals);
    const int rows = std::min(view_->ContentHeight() + WideBarHeight(room), room);
    view_->setGeometry(all.left(), all.top(), all.width(), rows);
    if (totals_) {
        const int bar = view_->verticalScrollBar()->isVisible() ? view_->verticalScrollBar()->width() : 0;
        totals_->setGeometry(all.left(), view_->geometry().bottom() + 1, all.width() - bar, totals);
    }
    if (!hint_) return;
    const int margin = Unit(*this);
    const QRect free = all.adjusted(margin, rows + totals + margin, -margin, 0);
    const int height = hint_->heightForWidth(free.width());
    hint_->setVisible(view_->IsBlankGrid() && free.height() >= height);
    hint_->setGeometry(free.left(), free.top(), free.width(), height);
}

void GridPanel::LookHint() {
    if (!hint_) return;
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, HintColor(palette()));
    hint_->setPalette(colors);
}

void GridPanel::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    Arrange();
}

void GridPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool focused = view_->hasFocus() || view_->isAncestorOf(QApplication::focusWidget());
    if (focused) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), kFrameWidth));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    } else {
        painter.setPen(HairlineColor(palette()));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void GridPanel::mousePressEvent(QMouseEvent*) {
    view_->setFocus();
}

void GridPanel::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) LookHint();
    if (event->type() != QEvent::FontChange) return;
    if (totals_) totals_->verticalHeader()->setDefaultSectionSize(view_->RowHeight());
    Arrange();
}

bool GridPanel::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        QMetaObject::invokeMethod(
            this, [this] { Arrange(); }, Qt::QueuedConnection);
    return QFrame::eventFilter(object, event);
}

}  // namespace tw
