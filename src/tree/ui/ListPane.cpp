#include "tree/ui/ListPane.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>

#include "platform/qt/Appearance.h"
#include "platform/qt/GridHeader.h"
#include "platform/qt/QtText.h"
#include "tree/ui/NodePictures.h"

namespace tw {
namespace {

constexpr double kLinesPerRow = 1.5;
// What a column asks for at most: a description must not push the figures out of sight.
constexpr int kWidestInDigits = 40;

Qt::Alignment AlignmentOf(const ListColumn& column) {
    return Qt::AlignVCenter | (column.kind == ListColumnKind::Number ? Qt::AlignRight : Qt::AlignLeft);
}

// A spot of that colour with an edge, so that a pale one stands out from a pale ground.
QIcon Swatch(Rgb color) {
    const int side = QFontMetrics(QApplication::font()).ascent();
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(HintColor(QApplication::palette()));
    painter.setBrush(QColor(color.red, color.green, color.blue));
    painter.drawEllipse(QRectF(0.5, 0.5, side - 1, side - 1));
    painter.end();
    QIcon spot(picture);
    // A selected row must not tint it.
    spot.addPixmap(picture, QIcon::Selected);
    return spot;
}

// Rows with some air, as those of the grids.
class RowDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setHeight(std::max(
            size.height(), static_cast<int>(std::lround(kLinesPerRow * option.fontMetrics.lineSpacing()))));
        return size;
    }
};

}  // namespace

ListPaneModel::ListPaneModel(const ListTable& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list) {}

int ListPaneModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : list_.Count();
}

int ListPaneModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(list_.Columns().size());
}

QVariant ListPaneModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ListRow& row = list_.Row(index.row());
    const auto col = static_cast<std::size_t>(index.column());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return ToQt(row.cells[col]).trimmed();
        case Qt::DecorationRole:
            return DecorationOf(row, list_.Columns()[col], col == 0);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(AlignmentOf(list_.Columns()[col]));
        case Qt::FontRole:
            return row.isGroup ? QVariant(BoldFont(QApplication::font())) : QVariant();
        case Qt::ForegroundRole:
            // Off, since nobody can choose it, but no less readable.
            return row.isGroup ? QVariant(QApplication::palette().brush(QPalette::Text)) : QVariant();
        case Qt::BackgroundRole:
            return row.isGroup ? QVariant(QApplication::palette().brush(QPalette::AlternateBase))
                               : QVariant();
        case Qt::AccessibleTextRole:
            return QStringLiteral("%1: %2").arg(ToQt(list_.Columns()[col].title),
                                                ToQt(row.cells[col]).trimmed());
        default:
            return {};
    }
}

QVariant ListPaneModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= columnCount()) return {};
    const ListColumn& column = list_.Columns()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return ToQt(column.title);
    if (role == Qt::ToolTipRole && !column.note.empty())
        return tr("%1: %2\nA click sorts the rows by it.").arg(ToQt(column.title), ToQt(column.note));
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(column));
    return {};
}

QVariant ListPaneModel::DecorationOf(const ListRow& row, const ListColumn& column, bool first) const {
    if (column.showsColor && row.hcu) return Swatch(colors_.HCUToColor(*row.hcu));
    return first && row.icon != NodeIcon::None ? QVariant(NodePicture(row.icon)) : QVariant();
}

Qt::ItemFlags ListPaneModel::flags(const QModelIndex& index) const {
    if (!index.isValid() || list_.Row(index.row()).isGroup) return Qt::ItemNeverHasChildren;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

void ListPaneModel::Reset() {
    beginResetModel();
    endResetModel();
}

ListPane::ListPane(ListTable& list, const QString& name, QWidget* parent)
    : QTreeView(parent), list_(list), model_(new ListPaneModel(list, this)) {
    setAccessibleName(name);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideRight);
    setItemDelegate(new RowDelegate(this));
    auto* header = new GridHeader(this);
    setHeader(header);
    header->setStretchLastSection(false);
    header->setAccessibleName(tr("Columns of %1").arg(name));
    header->setToolTip(
        tr("A click sorts the rows by this column, another one the other way round (Ctrl+Shift+S)"));
    setModel(model_);
    // A tree view that does not sort by itself has switched this off.
    header->setSectionsClickable(true);
    list_.SetObserver(this);
    connect(header, &QHeaderView::sectionClicked, this, &ListPane::SortBy);
    connect(header, &QHeaderView::sectionResized, this,
            [this] { widthsChosen_ = widthsChosen_ || !fitting_; });
    ListChanged();
}

ListPane::~ListPane() {
    list_.SetObserver(nullptr);
}

void ListPane::SetHint(const QString& hint) {
    hint_ = hint;
    viewport()->update();
}

void ListPane::ListChanged() {
    following_ = true;
    model_->Reset();
    following_ = false;
    header()->setSortIndicator(list_.SortColumn(),
                               list_.SortDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
    header()->setSortIndicatorShown(list_.SortColumn() >= 0);
    ShowSelection();
    const QString title = list_.Columns().empty() ? QString() : ToQt(list_.Columns().front().title);
    if (title != firstTitle_) widthsChosen_ = false;
    firstTitle_ = title;
    if (!widthsChosen_) FitColumns();
    emit RowsChanged();
}

void ListPane::ListSelectionChanged() {
    ShowSelection();
    emit ChosenChanged();
}

void ListPane::ShowSelection() {
    const QModelIndex row = model_->index(list_.Selected(), 0);
    following_ = true;
    if (row.isValid()) {
        setCurrentIndex(row);
        // A first row comes into view with the heading above it.
        if (row.row() > 0 && list_.Row(row.row() - 1).isGroup) scrollTo(model_->index(row.row() - 1, 0));
        scrollTo(row);
    } else {
        setCurrentIndex({});
        clearSelection();
    }
    following_ = false;
}

void ListPane::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (!following_ && current.isValid()) list_.Select(current.row());
}

void ListPane::SortBy(int column) {
    if (column < 0 || column >= model_->columnCount()) return;
    list_.Sort(column, list_.SortColumn() == column && !list_.SortDescending());
}

void ListPane::FitColumns() {
    if (!isVisible() || model_->columnCount() == 0) return;
    fitting_ = true;
    const int widest = DigitsWidth(*this, kWidestInDigits);
    int rest = viewport()->width();
    for (int col = model_->columnCount() - 1; col > 0; --col) {
        const int width = std::max(sizeHintForColumn(col) + Unit(*this), header()->sectionSizeHint(col));
        setColumnWidth(col, std::min(width, std::max(widest, header()->sectionSizeHint(col))));
        rest -= columnWidth(col);
    }
    const int name = std::max(sizeHintForColumn(0) + Unit(*this), header()->sectionSizeHint(0));
    setColumnWidth(0, std::max(std::min(name, widest), rest));
    fitting_ = false;
}

// Letters typed in quick succession are one beginning.
void ListPane::keyboardSearch(const QString& search) {
    const bool goesOn =
        sinceTyped_.isValid() && sinceTyped_.elapsed() <= QApplication::keyboardInputInterval();
    sinceTyped_.start();
    typed_ = goesOn ? typed_ + search : search;
    // One letter again goes on to the next row; a longer beginning may still fit the present one.
    const bool repeated = typed_.count(search) == typed_.size() && search.size() == 1;
    const QString wanted = repeated ? search : typed_;
    const int row = list_.FindTyped(FromQt(wanted), list_.Selected() + (wanted.size() == 1 ? 1 : 0));
    if (row != ListTable::kNoRow) list_.Select(row);
}

void ListPane::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && list_.Selected() != ListTable::kNoRow) {
        emit RowActivated();
        return;
    }
    if (key == Qt::Key_S && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
        SortBy((list_.SortColumn() + 1) % std::max(1, model_->columnCount()));
        return;
    }
    QTreeView::keyPressEvent(event);
}

void ListPane::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex row = indexAt(event->pos());
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && row.isValid() && row.row() == list_.Selected())
        emit RowActivated();
}

void ListPane::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    const QString hint =
        list_.Filter().empty() ? hint_ : tr("No row contains \"%1\".").arg(ToQt(list_.Filter()));
    if (list_.Count() > 0 || hint.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(HintColor(palette()));
    const int margin = Unit(*this);
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin), Qt::TextWordWrap, hint);
}

void ListPane::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
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
