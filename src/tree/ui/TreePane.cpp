#include "tree/ui/TreePane.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <utility>

#include "platform/ScopeGuard.h"
#include "platform/qt/QtText.h"
#include "tree/DB_IO.h"
#include "tree/ListFormats.h"
#include "tree/ui/InPlaceEditor.h"
#include "tree/ui/NameTip.h"
#include "tree/ui/NodePictures.h"

namespace tw {

TreePaneModel::TreePaneModel(TreeItems& items, QObject* parent) : QAbstractItemModel(parent), items_(items) {
    items_.SetObserver(this);
}

TreePaneModel::~TreePaneModel() {
    items_.SetObserver(nullptr);
}

int TreePaneModel::ItemOf(const QModelIndex& index) {
    return index.isValid() ? static_cast<int>(index.internalId()) : TreeItems::kNone;
}

QModelIndex TreePaneModel::IndexOf(int item) const {
    if (item == TreeItems::kNone) return {};
    return createIndex(items_.Row(item), 0, static_cast<quintptr>(item));
}

void TreePaneModel::SetRename(std::function<bool(int)> canRename,
                              std::function<bool(const QString&)> rename) {
    canRename_ = std::move(canRename);
    rename_ = std::move(rename);
}

QModelIndex TreePaneModel::index(int row, int column, const QModelIndex& parent) const {
    if (filling_ || column != 0) return {};
    const std::vector<int>& children = items_.Children(ItemOf(parent));
    if (row < 0 || row >= static_cast<int>(children.size())) return {};
    return createIndex(row, 0, static_cast<quintptr>(children[static_cast<std::size_t>(row)]));
}

QModelIndex TreePaneModel::parent(const QModelIndex& index) const {
    return filling_ || !index.isValid() ? QModelIndex() : IndexOf(items_.Parent(ItemOf(index)));
}

int TreePaneModel::rowCount(const QModelIndex& parent) const {
    return filling_ ? 0 : static_cast<int>(items_.Children(ItemOf(parent)).size());
}

int TreePaneModel::columnCount(const QModelIndex&) const {
    return 1;
}

QVariant TreePaneModel::data(const QModelIndex& index, int role) const {
    if (filling_ || !index.isValid()) return {};
    const int item = ItemOf(index);
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(CodedName(items_.Code(item), items_.Text(item)));
        case Qt::EditRole:
            return ToQt(items_.Text(item));
        case Qt::ToolTipRole:
            return NameTip(ToQt(CodedName(items_.Code(item), items_.Text(item))));
        case Qt::DecorationRole:
            return NodePicture(items_.Icon(item, items_.Selected() == item));
        default:
            return {};
    }
}

bool TreePaneModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !rename_ || !index.isValid()) return false;
    const QString name = value.toString();
    // A name that was left unchanged is not a rename.
    return name != ToQt(items_.Text(ItemOf(index))) && rename_(name);
}

Qt::ItemFlags TreePaneModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractItemModel::flags(index) | Qt::ItemIsDragEnabled;
    if (index.isValid() && canRename_ && canRename_(ItemOf(index))) flags |= Qt::ItemIsEditable;
    if (index.isValid() && drag_) {
        flags |= Qt::ItemIsDropEnabled;
        flags.setFlag(Qt::ItemIsDragEnabled, CanRenameNode(items_.Key(ItemOf(index))));
    }
    return flags;
}

QStringList TreePaneModel::mimeTypes() const {
    return drag_ ? KeyMimeTypes() : QAbstractItemModel::mimeTypes();
}

Qt::DropActions TreePaneModel::supportedDropActions() const {
    return drag_ ? Qt::MoveAction : QAbstractItemModel::supportedDropActions();
}

bool TreePaneModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int row, int,
                                    const QModelIndex& parent) const {
    return drag_ && row < 0 && parent.isValid() && drag_.canDrop(KeysOf(data), items_.Key(ItemOf(parent)));
}

bool TreePaneModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                 const QModelIndex& parent) {
    if (!canDropMimeData(data, action, row, column, parent)) return false;
    DropLater(*this, drag_, data, items_.Key(ItemOf(parent)));
    return true;
}

void TreePaneModel::TreeReset(bool done) {
    filling_ = !done;
    if (!done) return beginResetModel();
    endResetModel();
    emit Filled();
}

void TreePaneModel::TreeItemChanged(int item) {
    const QModelIndex index = IndexOf(item);
    emit dataChanged(index, index);
}

TreePane::TreePane(TreeItems& items, const QString& name, QWidget* parent)
    : QTreeView(parent), items_(items), model_(new TreePaneModel(items, this)) {
    setAccessibleName(name);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(EditKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    setModel(model_);
    connect(model_, &TreePaneModel::Filled, this, &TreePane::ShowAll);
    connect(model_, &TreePaneModel::ExpandedChanged, this, &TreePane::ShowExpanded);
    connect(model_, &TreePaneModel::SelectedChanged, this, [this] {
        ShowSelection();
        emit ChosenChanged();
    });
    const auto follow = [this](const QModelIndex& index, bool open) {
        if (!following_) items_.Expand(TreePaneModel::ItemOf(index), open);
    };
    connect(this, &QTreeView::expanded, this, [follow](const QModelIndex& index) { follow(index, true); });
    connect(this, &QTreeView::collapsed, this, [follow](const QModelIndex& index) { follow(index, false); });
    ShowAll();
}

void TreePane::ShowAll() {
    for (int item = 0; item < items_.Count(); ++item)
        if (items_.IsExpanded(item)) ShowExpanded(item);
    ShowSelection();
}

void TreePane::ShowExpanded(int item) {
    const ScopedValue following(following_, true);
    setExpanded(model_->IndexOf(item), items_.IsExpanded(item));
}

void TreePane::ShowSelection() {
    const ScopedValue following(following_, true);
    const QModelIndex index = model_->IndexOf(items_.Selected());
    setCurrentIndex(index);
    if (index.isValid()) scrollTo(index);
    viewport()->update();
}

void TreePane::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (following_ || !current.isValid()) return;
    const int item = TreePaneModel::ItemOf(current);
    bool chosen = true;
    if (choose_)
        chosen = choose_(items_.Key(item));
    else
        items_.Select(item);
    // Queued, because the view still changes its own selection during this event.
    if (!chosen) QMetaObject::invokeMethod(this, &TreePane::ShowSelection, Qt::QueuedConnection);
}

void TreePane::EditSelected() {
    const QModelIndex index = model_->IndexOf(items_.Selected());
    if (!index.isValid() || !model_->flags(index).testFlag(Qt::ItemIsEditable)) return;
    setFocus();
    edit(index);
}

// The selected entry was scrolled into view before the view had its size. Repeats that from the top, so that
// the first entries are visible as well if there is room for both.
void TreePane::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    if (std::exchange(shown_, true)) return;
    scrollToTop();
    ShowSelection();
}

void TreePane::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    const bool typedIn = IsTypedIn(*editor);
    QTreeView::closeEditor(editor, hint);
    if (typedIn) setFocus();
}

void TreePane::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // Here, Enter ends the editing of a name.
    if (enter && state() == EditingState) return event->accept();
    // Without a receiver of the signal, Enter is left to the dialog.
    const bool awaited = isSignalConnected(QMetaMethod::fromSignal(&TreePane::ItemActivated));
    if (awaited && enter && currentIndex().isValid()) {
        emit ItemActivated();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void TreePane::startDrag(Qt::DropActions actions) {
    if (!model_->HasDrag()) return QTreeView::startDrag(actions);
    StartKeyDrag(*this, {items_.SelectedKey()});
}

// Accepts drops that Qt refuses, namely on an entry below the dragged one: the operation itself then says why
// that is impossible.
void TreePane::dragMoveEvent(QDragMoveEvent* event) {
    QTreeView::dragMoveEvent(event);
    if (event->isAccepted() || !model_->HasDrag()) return;
    const QModelIndex target = indexAt(event->position().toPoint());
    if (model_->canDropMimeData(event->mimeData(), Qt::MoveAction, -1, -1, target))
        event->acceptProposedAction();
}

void TreePane::dropEvent(QDropEvent* event) {
    QTreeView::dropEvent(event);
    if (event->isAccepted() || !model_->HasDrag()) return;
    const QModelIndex target = indexAt(event->position().toPoint());
    if (model_->dropMimeData(event->mimeData(), Qt::MoveAction, -1, -1, target))
        event->acceptProposedAction();
}

void TreePane::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->pos());
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && index.isValid()) emit ItemActivated();
}

}  // namespace tw
