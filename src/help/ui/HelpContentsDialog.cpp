#include "help/ui/HelpContentsDialog.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr int kTopicRole = Qt::UserRole;
constexpr QSize kUsualUnits(52, 60);

}  // namespace

HelpContentsDialog::HelpContentsDialog(HelpContentsModel& model, QWidget* parent)
    : QDialog(parent), model_(model), tree_(new QTreeWidget(this)), selected_(new QLabel(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Help Contents"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    tree_->setObjectName(QStringLiteral("TreeView1"));
    tree_->setAccessibleName(tr("Topics of the help"));
    tree_->setToolTip(tr("Enter or a double click shows the page"));
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setExpandsOnDoubleClick(false);
    tree_->installEventFilter(this);
    column->addWidget(tree_, 1);
    selected_->setObjectName(QStringLiteral("lblSel"));
    // A label shows "&&" as "&" only if it has a buddy.
    selected_->setBuddy(tree_);
    selected_->setFont(BoldFont(font()));
    column->addWidget(selected_);
    connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { Follow(item); });
    connect(tree_, &QTreeWidget::itemDoubleClicked, this, [this] { ShowPage(); });
    Fill();
    resize(kUsualUnits * Unit(*this));
    tree_->setFocus();
}

void HelpContentsDialog::Fill() {
    const std::vector<HelpTopic>& topics = model_.Topics();
    std::vector<QTreeWidgetItem*> items;
    for (const HelpTopic& topic : topics) {
        // Parents come before their children.
        auto* item = topic.parent == HelpTopic::kTop
                         ? new QTreeWidgetItem(tree_)
                         : new QTreeWidgetItem(items[static_cast<std::size_t>(topic.parent)]);
        item->setText(0, ToQt(topic.name));
        item->setData(0, kTopicRole, static_cast<int>(items.size()));
        items.push_back(item);
    }
    if (items.empty()) return;
    items.front()->setExpanded(true);
    tree_->setCurrentItem(items[static_cast<std::size_t>(model_.Selected())]);
}

void HelpContentsDialog::Follow(const QTreeWidgetItem* item) {
    if (!item) return;
    model_.Select(item->data(0, kTopicRole).toInt());
    selected_->setText(ToQt(model_.SelectedText()));
}

void HelpContentsDialog::ShowPage() {
    model_.ShowSelected();
}

bool HelpContentsDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tree_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            ShowPage();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void HelpContentsDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
