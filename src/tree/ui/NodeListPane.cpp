#include "tree/ui/NodeListPane.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "platform/qt/QtText.h"
#include "tree/ui/IconPane.h"
#include "tree/ui/ListPane.h"

namespace tw {

NodeListPane::NodeListPane(NodeList& list, const QString& name, bool multi, ColumnLayout& layout,
                           QWidget* parent)
    : QWidget(parent), list_(list), name_(name), multi_(multi), layout_(layout) {
    setAccessibleName(name);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    SetView(ListViewType::List);
}

QAbstractItemView& NodeListPane::View() const {
    if (details_) return *details_;
    return *icons_;
}

ListPaneModel& NodeListPane::Model() const {
    return details_ ? details_->Model() : icons_->Model();
}

// Deletes the view while this pane still exists: an open editor of a name commits when it is deleted, and
// calls back into this pane.
NodeListPane::~NodeListPane() {
    delete &View();
}

template <class Pane>
void NodeListPane::Connect(Pane& pane) {
    pane.SetMulti(multi_);
    pane.setObjectName(QStringLiteral("lvNames"));
    pane.setContextMenuPolicy(Qt::CustomContextMenu);
    layout()->addWidget(&pane);
    setFocusProxy(&pane);
    AcceptKeys(pane);
    pane.Model().SetDrag(drag_);
    // Only the row whose edit has begun in the model. F2 begins one there, too.
    pane.Model().SetRename([this](int row) { return list_.EditedRow() == row; },
                           [this](const QString& name) { return rename_ && rename_(name); });
    connect(&pane, &Pane::RowActivated, this, &NodeListPane::RowActivated);
    connect(&pane, &Pane::ChosenChanged, this, &NodeListPane::ChosenChanged);
    connect(pane.itemDelegate(), &QAbstractItemDelegate::closeEditor, this, &NodeListPane::EditEnded);
    connect(&pane, &QWidget::customContextMenuRequested, this,
            [this, &pane](const QPoint& place) { emit MenuAsked(pane.viewport()->mapToGlobal(place)); });
}

void NodeListPane::SetView(ListViewType type) {
    const bool details = type == ListViewType::Details;
    if (!details && icons_) return icons_->SetKind(type);
    if (details && details_) return;
    const bool hadFocus = (details_ || icons_) && View().hasFocus();
    // Only one view at a time, because the list notifies just one observer.
    delete details_;
    delete icons_;
    details_ = nullptr;
    icons_ = nullptr;
    if (details) {
        details_ = new ListPane(list_.Rows(), name_, this);
        details_->SetLayout(layout_);
        details_->SetSort([this](int column) { emit SortAsked(column); });
        Connect(*details_);
        details_->show();
    } else {
        icons_ = new IconPane(list_.Rows(), name_, this);
        Connect(*icons_);
        icons_->SetKind(type);
        icons_->show();
    }
    if (hadFocus) View().setFocus();
    ShowState();
}

void NodeListPane::SetRename(std::function<bool(const QString&)> rename) {
    rename_ = std::move(rename);
}

void NodeListPane::SetDrag(KeyDrag drag) {
    drag_ = std::move(drag);
    Model().SetDrag(drag_);
}

bool NodeListPane::IsEditing() const {
    // An editor that has closed stays hidden until it is deleted.
    const auto* editor = View().viewport()->findChild<QLineEdit*>();
    return editor && editor->isVisibleTo(View().viewport());
}

void NodeListPane::ShowState() {
    const QString hint = ToQt(list_.Hint());
    if (details_) details_->SetHint(hint);
    if (icons_) icons_->SetHint(hint);
    const int row = list_.EditedRow();
    if (row == ListTable::kNoRow || IsEditing()) return;
    if (details_) details_->EditRow(row);
    if (icons_) icons_->EditRow(row);
}

}  // namespace tw
