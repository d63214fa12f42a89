#include "tree/ui/ListPane.h"

#include <QHeaderView>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "platform/ScopeGuard.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/GridHeader.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr double kLinesPerRow = 1.5;
// The greatest width that a column asks for: a long description must not push the numbers out of view.
constexpr int kWidestInDigits = 40;
// The widths that the name, and any other text, keep when they are cut off in favour of the numbers.
constexpr int kLeastNameInDigits = 26;
constexpr int kLeastTextInDigits = 16;

// Draws rows with the same spacing as the grids, and their texts in line with those of the header.
class RowDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setHeight(std::max(
            size.height(), static_cast<int>(std::lround(kLinesPerRow * option.fontMetrics.lineSpacing()))));
        size.rwidth() += 2 * Inset(option);
        return size;
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, option.widget);
        cell = option;
        cell.rect.adjust(Inset(option), 0, -Inset(option), 0);
        QStyledItemDelegate::paint(painter, cell, index);
    }

  private:
    // The padding to add to that of the widget style, so that a text is in line with the header.
    static int Inset(const QStyleOptionViewItem& option) {
        const QWidget& view = *option.widget;
        const int left = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, &view) + 1;
        return std::max(0, CellPadding(view) - left);
    }
};

}  // namespace

ListPane::ListPane(ListTable& list, const QString& name, QWidget* parent) : RowView(list, name, parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new RowDelegate(this));
    auto* header = new GridHeader(this);
    setHeader(header);
    header->setStretchLastSection(false);
    header->setAccessibleName(tr("Columns of %1").arg(name));
    header->setToolTip(
        tr("A click sorts the rows by this column, another one the other way round (Ctrl+Shift+S)"));
    setModel(model_);
    // A tree view switches this off unless it sorts by itself.
    header->setSectionsClickable(true);
    connect(header, &QHeaderView::sectionClicked, this, &ListPane::SortBy);
    connect(header, &QHeaderView::sectionResized, this, [this] {
        if (fitting_) return;
        widthsChosen_ = true;
        KeepLayout();
    });
    connect(header, &QHeaderView::sectionMoved, this, [this] {
        if (!fitting_) KeepLayout();
    });
    ListChanged();
}

void ListPane::SetLayout(ColumnLayout& layout) {
    layout_ = &layout;
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(false);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header(), &QWidget::customContextMenuRequested, this, &ListPane::ShowHeaderMenu);
    PlaceColumns();
}

double ListPane::DotsPerInch() const {
    return screen()->logicalDotsPerInch();
}

std::vector<int> ListPane::ColumnOrder() const {
    const std::vector<int> usual = list_.ColumnsByPlace();
    std::vector<int> order;
    const auto add = [&](int column) {
        const bool exists = column < static_cast<int>(usual.size());
        if (exists && std::ranges::find(order, column) == order.end()) order.push_back(column);
    };
    if (layout_ && !layout_->empty()) {
        add(0);
        for (const ShownColumn& shown : *layout_) add(shown.column);
    }
    for (const int column : usual) add(column);
    return order;
}

void ListPane::PlaceColumns() {
    const ScopedValue placing(fitting_, true);
    const std::vector<int> order = ColumnOrder();
    for (std::size_t place = 0; place < order.size(); ++place)
        header()->moveSection(header()->visualIndex(order[place]), static_cast<int>(place));
    for (const int column : order) header()->setSectionHidden(column, IsHidden(column));
    if (!layout_) return;
    const auto hasWidth = [](const ShownColumn& shown) { return shown.width > 0; };
    widthsChosen_ = std::ranges::any_of(*layout_, hasWidth);
    if (!widthsChosen_ || !isVisible()) return;
    std::vector<int> widths = WantedWidths();
    for (const ShownColumn& shown : *layout_)
        if (hasWidth(shown) && shown.column < static_cast<int>(widths.size()))
            widths[static_cast<std::size_t>(shown.column)] = PixelsOfTwips(shown.width, DotsPerInch());
    for (const int column : order)
        if (!IsHidden(column)) setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
}

void ListPane::KeepLayout() {
    if (!layout_) return;
    ColumnLayout layout;
    for (int place = 0; place < header()->count(); ++place) {
        const int column = header()->logicalIndex(place);
        const bool hasWidth = widthsChosen_ && !IsHidden(column);
        layout.push_back({column, 0});
        if (hasWidth)
            layout.back().width = static_cast<int>(TwipsOfPixels(columnWidth(column), DotsPerInch()));
    }
    *layout_ = std::move(layout);
}

void ListPane::ShowRows() {
    header()->setSortIndicator(list_.SortColumn(),
                               list_.SortDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
    header()->setSortIndicatorShown(list_.SortColumn() >= 0);
    const QString title = list_.Columns().empty() ? QString() : ToQt(list_.Columns().front().title);
    if (title != firstTitle_) widthsChosen_ = false;
    firstTitle_ = title;
    PlaceColumns();
    if (!widthsChosen_) FitColumns();
    emit RowsChanged();
}

void ListPane::SortBy(int column) {
    if (column < 0 || column >= model_->columnCount()) return;
    if (sort_) return sort_(column);
    list_.Sort(column, list_.SortColumn() == column && !list_.SortDescending());
}

void ListPane::ShowHeaderMenu(const QPoint& place) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("HeaderMenu"));
    QAction* usual = menu->addAction(tr("&Usual Columns"));
    usual->setEnabled(!layout_->empty());
    connect(usual, &QAction::triggered, this, [this] {
        layout_->clear();
        PlaceColumns();
        FitColumns();
    });
    menu->popup(header()->viewport()->mapToGlobal(place));
}

int ListPane::NextColumn(int column) const {
    const int columns = header()->count();
    int place = column < 0 ? -1 : header()->visualIndex(column);
    for (int tries = 0; tries < columns; ++tries) {
        place = (place + 1) % columns;
        if (!IsHidden(header()->logicalIndex(place))) return header()->logicalIndex(place);
    }
    return -1;
}

void ListPane::FitColumns() {
    // While fitting, a scroll bar may appear or disappear, and the resized view calls this again.
    if (fitting_ || !isVisible() || model_->columnCount() == 0) return;
    const ScopedValue fitting(fitting_, true);
    for (int tries = 0, width = -1; tries < 2 && width != viewport()->width(); ++tries) {
        width = viewport()->width();
        FitColumnsInto(width);
    }
}

std::vector<int> ListPane::WantedWidths() const {
    const int widest = DigitsWidth(*this, kWidestInDigits);
    std::vector<int> widths;
    for (int col = 0; col < model_->columnCount(); ++col) {
        if (IsHidden(col)) {
            widths.push_back(0);
            continue;
        }
        const int title = header()->sectionSizeHint(col);
        const int wanted = std::max(sizeHintForColumn(col) + Unit(*this), title);
        widths.push_back(std::min(wanted, std::max(widest, title)));
    }
    return widths;
}

int ListPane::WantedWidth() const {
    const std::vector<int> widths = WantedWidths();
    return std::accumulate(widths.begin(), widths.end(), 0) + 2 * frameWidth() +
           verticalScrollBar()->sizeHint().width();
}

void ListPane::NarrowTexts(std::vector<int>& widths, int room) const {
    std::vector<int> least = widths;
    for (std::size_t col = 0; col < widths.size(); ++col) {
        if (list_.Columns()[col].kind != ListColumnKind::Text) continue;
        const int text = DigitsWidth(*this, col == 0 ? kLeastNameInDigits : kLeastTextInDigits);
        least[col] = std::min(widths[col], std::max(text, header()->sectionSizeHint(static_cast<int>(col))));
    }
    // If the list must be scrolled sideways in any case, nothing is cut off.
    if (std::accumulate(least.begin(), least.end(), 0) > room) return;
    for (int over = std::accumulate(widths.begin(), widths.end(), 0) - room; over > 0; --over) {
        std::size_t widest = widths.size();
        for (std::size_t col = 0; col < widths.size(); ++col)
            if (widths[col] > least[col] && (widest == widths.size() || widths[col] > widths[widest]))
                widest = col;
        --widths[widest];
    }
}

void ListPane::FitColumnsInto(int room) {
    std::vector<int> widths = WantedWidths();
    NarrowTexts(widths, room);
    widths[0] = std::max(widths[0], room - std::accumulate(widths.begin() + 1, widths.end(), 0));
    for (int col = 0; col < model_->columnCount(); ++col)
        if (!IsHidden(col)) setColumnWidth(col, widths[static_cast<std::size_t>(col)]);
}

void ListPane::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_S && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
        SortBy(NextColumn(list_.SortColumn()));
        return;
    }
    RowView::keyPressEvent(event);
}

void ListPane::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    PlaceColumns();
    if (!widthsChosen_) FitColumns();
    ShowSelection();
}

void ListPane::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    if (!widthsChosen_ && event->size().width() != event->oldSize().width()) FitColumns();
}

void ListPane::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    header()->setFont(BoldFont(font()));
    if (!widthsChosen_) FitColumns();
}

}  // namespace tw
