#include "tree/ui/RecipeChooserView.h"

#include <QDropEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/NodePictures.h"
#include "tree/ui/TreePane.h"

namespace tw {

RecipeChooserView::RecipeChooserView(RecipeChooser& chooser, QWidget* parent)
    : QWidget(parent), chooser_(chooser) {
    setAccessibleName(tr("Recipes to choose"));
    auto* row = new QHBoxLayout(this);
    SetSpacing(*row, *this, false);
    AddTree(*row);
    auto* middle = new QVBoxLayout;
    SetSpacing(*middle, *this, false);
    middle->addStretch();
    AddButton(*middle, "cmdAdd", tr("&Add >"),
              tr("Takes the chosen recipe, or all of the chosen folder, into the list"));
    AddButton(*middle, "cmdDel", tr("< &Remove"), tr("Takes the chosen recipe out of the list (Delete)"));
    middle->addStretch();
    row->addLayout(middle);
    AddList(*row);
    auto* moves = new QVBoxLayout;
    SetSpacing(*moves, *this, false);
    moves->addStretch();
    AddButton(*moves, "cmdTop", tr("&Top"), tr("Moves the chosen recipe to the top"));
    AddButton(*moves, "cmdUp", tr("&Up"), tr("Moves the chosen recipe one line up"));
    AddButton(*moves, "cmdDown", tr("&Down"), tr("Moves the chosen recipe one line down"));
    AddButton(*moves, "cmdBottom", tr("B&ottom"), tr("Moves the chosen recipe to the bottom"));
    moves->addStretch();
    row->addLayout(moves);
    chooser_.SetObserver(this);
    RecipeChooserChanged();
}

RecipeChooserView::~RecipeChooserView() {
    chooser_.SetObserver(nullptr);
}

void RecipeChooserView::AddTree(QBoxLayout& row) {
    auto* column = new QVBoxLayout;
    SetSpacing(*column, *this, false);
    tree_ = new TreePane(chooser_.treeRecipes(), tr("Recipes by folder and style"), this);
    tree_->setObjectName(QStringLiteral("treeRecipes"));
    tree_->setDragEnabled(true);
    tree_->setMinimumWidth(Unit(*this) * 20);
    auto* label = new QLabel(tr("R&ecipes:"), this);
    label->setBuddy(tree_);
    column->addWidget(label);
    column->addWidget(tree_, 1);
    row.addLayout(column, 1);
    connect(tree_, &TreePane::ChosenChanged, this, &RecipeChooserView::ShowButtons);
    connect(tree_, &TreePane::ItemActivated, this, &RecipeChooserView::AddChosen);
}

void RecipeChooserView::AddList(QBoxLayout& row) {
    auto* column = new QVBoxLayout;
    SetSpacing(*column, *this, false);
    list_ = new QListWidget(this);
    list_->setObjectName(QStringLiteral("lstRecipes"));
    list_->setMinimumWidth(Unit(*this) * 20);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    list_->setIconSize({side, side});
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    list_->setAcceptDrops(true);
    list_->installEventFilter(this);
    list_->viewport()->installEventFilter(this);
    caption_ = new QLabel(this);
    caption_->setTextFormat(Qt::PlainText);
    column->addWidget(caption_);
    column->addWidget(list_, 1);
    row.addLayout(column, 1);
    connect(list_, &QListWidget::currentRowChanged, this, [this](int index) { chooser_.SetCurrent(index); });
    connect(list_, &QListWidget::customContextMenuRequested, this, &RecipeChooserView::ShowPopup);
}

QPushButton* RecipeChooserView::AddButton(QBoxLayout& column, const char* name, const QString& caption,
                                          const QString& tip) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, name] { chooser_.Press(name); });
    column.addWidget(button);
    buttons_[name] = button;
    return button;
}

void RecipeChooserView::RecipeChooserChanged() {
    caption_->setText(ToQt(chooser_.ListCaption()));
    list_->setAccessibleName(ToQt(chooser_.ListCaption()));
    QStringList names;
    for (const std::string& name : chooser_.Selection()) names.append(ToQt(name));
    const QSignalBlocker blocker(list_);
    QStringList shown;
    for (int i = 0; i < list_->count(); ++i) shown.append(list_->item(i)->text());
    const bool changed = shown != names;
    if (changed) {
        list_->clear();
        for (const QString& name : names) new QListWidgetItem(NodePicture(NodeIcon::Document), name, list_);
    }
    list_->setCurrentRow(chooser_.Current());
    ShowButtons();
    if (changed) emit SelectionChanged();
}

void RecipeChooserView::ShowButtons() {
    for (const auto& [name, button] : buttons_) button->setEnabled(chooser_.IsEnabled(name));
}

// Adds the activated recipe to the list. Activating a folder only expands it; just cmdAdd adds its recipes.
void RecipeChooserView::AddChosen() {
    const std::string key = chooser_.treeRecipes().SelectedKey();
    if (IsRecipeKey(key)) chooser_.Press("cmdAdd");
}

void RecipeChooserView::ShowPopup(const QPoint& place) {
    QMenu menu(this);
    for (const PopupCommand sorting : {PopupCommand::SortAscending, PopupCommand::SortDescending}) {
        QAction* action =
            menu.addAction(tr(RowOf(sorting).caption), this, [this, sorting] { chooser_.Run(sorting); });
        action->setObjectName(ToQt(RowOf(sorting).name));
        action->setEnabled(chooser_.IsEnabled(sorting));
    }
    menu.exec(list_->viewport()->mapToGlobal(place));
}

bool RecipeChooserView::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            if (object != list_ || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Delete) break;
            chooser_.Press("cmdDel");
            return true;
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: {
            auto& drag = *static_cast<QDropEvent*>(event);
            if (drag.source() != tree_ || !chooser_.IsEnabled("cmdAdd")) break;
            drag.setDropAction(Qt::CopyAction);
            drag.accept();
            if (event->type() == QEvent::Drop) chooser_.Press("cmdAdd");
            return true;
        }
        default:
            break;
    }
    return QWidget::eventFilter(object, event);
}

}  // namespace tw
