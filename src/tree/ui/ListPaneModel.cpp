#include "tree/ui/ListPaneModel.h"

#include <QApplication>
#include <QPainter>
#include <QTextDocument>
#include <utility>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/DB_IO.h"
#include "tree/ListFormats.h"
#include "tree/ui/NameTip.h"
#include "tree/ui/NodePictures.h"

namespace tw {
namespace {

Qt::Alignment AlignmentOf(const ListColumn& column) {
    return Qt::AlignVCenter | (column.kind == ListColumnKind::Number ? Qt::AlignRight : Qt::AlignLeft);
}

// Returns a spot of that colour, with an outline that makes a pale one visible on a pale background.
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
    // Keeps a selected row from tinting it.
    spot.addPixmap(picture, QIcon::Selected);
    return spot;
}

}  // namespace

ListPaneModel::ListPaneModel(const ListTable& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list) {}

void ListPaneModel::SetRename(std::function<bool(int)> canRename,
                              std::function<bool(const QString&)> rename) {
    canRename_ = std::move(canRename);
    rename_ = std::move(rename);
}

int ListPaneModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : list_.Count();
}

int ListPaneModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(list_.Columns().size());
}

QString ListPaneModel::NameOf(const ListRow& row) {
    return ToQt(CodedName(row.code, row.cells.front())).trimmed();
}

// Returns the tooltip. That of the name includes the origin of the row, which may be the folder of a recipe
// found by a search.
QString ListPaneModel::TipOf(const ListRow& row, std::size_t col) const {
    QString tip = col == 0 ? NameOf(row) : ToQt(row.cells[col]).trimmed();
    if (col == 0 && !row.origin.empty()) tip += QLatin1Char('\n') + ToQt(row.origin);
    return NameTip(tip);
}

QVariant ListPaneModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ListRow& row = list_.Row(index.row());
    const auto col = static_cast<std::size_t>(index.column());
    switch (role) {
        case Qt::DisplayRole:
            return col == 0 ? NameOf(row) : ToQt(row.cells[col]).trimmed();
        case Qt::EditRole:
            return ToQt(row.cells[col]).trimmed();
        case Qt::ToolTipRole:
            return TipOf(row, col);
        case Qt::DecorationRole:
            return DecorationOf(row, list_.Columns()[col], col == 0);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(AlignmentOf(list_.Columns()[col]));
        case Qt::FontRole:
            return row.isGroup ? QVariant(BoldFont(QApplication::font())) : QVariant();
        case Qt::ForegroundRole:
            // Disabled, because it cannot be selected, but drawn in the normal text colour to stay readable.
            return row.isGroup ? QVariant(QApplication::palette().brush(QPalette::Text)) : QVariant();
        case Qt::BackgroundRole:
            return row.isGroup ? QVariant(QApplication::palette().brush(QPalette::AlternateBase))
                               : QVariant();
        case Qt::AccessibleTextRole:
            return QStringLiteral("%1: %2").arg(ToQt(list_.Columns()[col].Caption()),
                                                data(index, Qt::DisplayRole).toString());
        default:
            return {};
    }
}

bool ListPaneModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !rename_ || !index.isValid()) return false;
    return rename_(value.toString());
}

QVariant ListPaneModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= columnCount()) return {};
    const ListColumn& column = list_.Columns()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return ToQt(column.Caption());
    // A tooltip says what a caption shortens or a title omits.
    if (role == Qt::ToolTipRole && !column.note.empty())
        return tr("%1: %2\nA click sorts the rows by it.").arg(ToQt(column.title), ToQt(column.note));
    if (role == Qt::ToolTipRole && column.Caption() != column.title)
        return tr("%1\nA click sorts the rows by it.").arg(ToQt(column.title));
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(column));
    return {};
}

QVariant ListPaneModel::DecorationOf(const ListRow& row, const ListColumn& column, bool first) const {
    if (column.showsColor && row.hcu) return Swatch(colors_.HCUToColor(*row.hcu));
    return first && row.icon != NodeIcon::None ? QVariant(NodePicture(row.icon)) : QVariant();
}

Qt::ItemFlags ListPaneModel::flags(const QModelIndex& index) const {
    if (!index.isValid() || list_.Row(index.row()).isGroup) return Qt::ItemNeverHasChildren;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (drag_) flags |= Qt::ItemIsDropEnabled;
    if (drag_ && CanRenameNode(list_.Row(index.row()).key)) flags |= Qt::ItemIsDragEnabled;
    if (index.column() == 0 && canRename_ && canRename_(index.row())) flags |= Qt::ItemIsEditable;
    return flags;
}

bool ListPaneModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int row, int,
                                    const QModelIndex& parent) const {
    return drag_ && row < 0 && parent.isValid() && drag_.canDrop(KeysOf(data), list_.Row(parent.row()).key);
}

bool ListPaneModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                 const QModelIndex& parent) {
    if (!canDropMimeData(data, action, row, column, parent)) return false;
    DropLater(*this, drag_, data, list_.Row(parent.row()).key);
    return true;
}

void ListPaneModel::Reset() {
    beginResetModel();
    endResetModel();
}

}  // namespace tw
