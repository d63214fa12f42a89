#include "tree/ui/FolderChooserView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/TreePane.h"

namespace tw {
namespace {

Qt::Alignment SideOf(LabelAlignment alignment) {
    switch (alignment) {
        case LabelAlignment::Right:
            return Qt::AlignRight;
        case LabelAlignment::Center:
            return Qt::AlignHCenter;
        case LabelAlignment::Left:
            break;
    }
    return Qt::AlignLeft;
}

}  // namespace

FolderChooserView::FolderChooserView(FolderChooser& chooser, QWidget* parent)
    : QWidget(parent),
      chooser_(chooser),
      label_(new QLabel(this)),
      tree_(new TreePane(chooser.Items(), ToQt(chooser.Label()), this)),
      newFolder_(new QPushButton(tr("&New Folder"), this)),
      rename_(new QPushButton(tr("&Rename"), this)) {
    setFocusProxy(tree_);
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, false);
    label_->setBuddy(tree_);
    column->addWidget(label_);
    tree_->setObjectName(QStringLiteral("treeFolders"));
    tree_->SetChoose([this](const std::string& key) { return chooser_.Choose(key); });
    tree_->Model().SetRename(
        [this](int item) { return item == chooser_.Items().Selected() && chooser_.CanRename(); },
        [this](const QString& name) { return Rename(name); });
    column->addWidget(tree_, 1);
    auto* row = new QHBoxLayout;
    SetSpacing(*row, *this, false);
    newFolder_->setObjectName(QStringLiteral("cmdNewFolder"));
    newFolder_->setToolTip(tr("Makes a folder in the chosen one"));
    rename_->setObjectName(QStringLiteral("cmdRename"));
    rename_->setToolTip(tr("Gives the chosen folder another name (F2)"));
    for (QPushButton* button : {newFolder_, rename_}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addStretch();
    column->addLayout(row);
    connect(newFolder_, &QPushButton::clicked, this, &FolderChooserView::CreateFolder);
    connect(rename_, &QPushButton::clicked, tree_, &TreePane::EditSelected);
    connect(tree_, &TreePane::ChosenChanged, this, &FolderChooserView::ShowState);
    ShowState();
}

void FolderChooserView::ShowState() {
    const QString text = ToQt(chooser_.Label());
    setAccessibleName(text);
    tree_->setAccessibleName(text);
    label_->setText(chooser_.Styles() ? tr("&Style Folder") : tr("Recipe &Folder"));
    label_->setAlignment(SideOf(chooser_.Alignment()));
    newFolder_->setEnabled(!chooser_.Locked());
    rename_->setEnabled(chooser_.CanRename());
}

bool FolderChooserView::Rename(const QString& name) {
    if (!chooser_.Rename(FromQt(name))) return false;
    // Queued, because the folder can move to its sorted place only after its editor has closed.
    QMetaObject::invokeMethod(
        this, [this] { chooser_.FillTheTree(); }, Qt::QueuedConnection);
    return true;
}

void FolderChooserView::CreateFolder() {
    if (!chooser_.CreateFolder()) return;
    ShowState();
    tree_->EditSelected();
}

}  // namespace tw
