#include "tree/ui/ExplorerWindow.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/ScopeGuard.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/LookMenu.h"
#include "tree/ui/NodeListPane.h"
#include "tree/ui/TreePane.h"

namespace tw {
namespace {

constexpr int kWidthUnits = 140;
constexpr int kHeightUnits = 80;
constexpr int kTreeUnits = 42;
constexpr int kFindUnits = 34;

}  // namespace

ExplorerWindow::ExplorerWindow(ExplorerModel& model, SettingsPort& settings, QWidget* parent)
    : QDialog(parent),
      model_(model),
      settings_(settings),
      stack_(new QStackedWidget(this)),
      find_(new QLineEdit(this)),
      status_(new QLabel(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Recipe Explorer"));
    RestoreModel();
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    column->addLayout(MakePageRow());
    column->addLayout(MakeCommandRow());
    for (const Page page : {Page::Recipes, Page::Styles}) MakePage(page);
    column->addWidget(stack_, 1);
    column->addLayout(MakeBottomRow());
    for (const PopupCommand command : {PopupCommand::NewFolder, PopupCommand::List, PopupCommand::Details})
        AddKey(*this, KeyOf(command), command);
    resize(Unit(*this) * kWidthUnits, Unit(*this) * kHeightUnits);
    RestoreTreeWidth();
    ShowState();
    Shown().tree->setFocus();
}

void ExplorerWindow::RestoreModel() {
    ReadView();
    LoadBrowseView(settings_, view_);
    opened_ = view_;
    model_.SetLook(view_.look);
    // An entry that no longer exists leaves the root folder selected.
    for (const Page page : {Page::Recipes, Page::Styles}) {
        model_.Show(page);
        model_.ChooseNode(page == Page::Recipes ? view_.recipeEntry : view_.styleEntry);
    }
    model_.Show(view_.stylesPage ? Page::Styles : Page::Recipes);
}

// Both pages have the border at the same place.
void ExplorerWindow::RestoreTreeWidth() {
    if (view_.treeWidth == 0) return;
    const int tree = PixelsOfTwips(view_.treeWidth, screen()->logicalDotsPerInch());
    for (PageWidgets& widgets : pages_)
        if (widgets.splitter->sizes().front() != tree)
            widgets.splitter->setSizes({tree, std::max(1, width() - tree)});
}

// On a small screen the window is narrower than it asked for, and the tree gets no more than its share.
void ExplorerWindow::FitTreeWidth() {
    if (view_.treeWidth != 0) return;
    const int tree = std::min(Unit(*this) * kTreeUnits, stack_->width() * kTreeUnits / kWidthUnits);
    for (PageWidgets& widgets : pages_)
        widgets.splitter->setSizes({tree, std::max(1, stack_->width() - tree)});
}

void ExplorerWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    FitTreeWidth();
}

void ExplorerWindow::ReadView() {
    view_.look = model_.Look();
    view_.stylesPage = model_.Shown() == Page::Styles;
    view_.recipeEntry = model_.Tree(Page::Recipes).SelectedKey();
    view_.styleEntry = model_.Tree(Page::Styles).SelectedKey();
}

void ExplorerWindow::KeepView() {
    ReadView();
    StoreBrowseView(settings_, view_, opened_);
}

QRadioButton* ExplorerWindow::AddOption(QBoxLayout& row, const char* name, const QString& caption,
                                        Page page) {
    auto* option = new QRadioButton(caption, this);
    option->setObjectName(QLatin1String(name));
    connect(option, &QRadioButton::clicked, this, [this, page] { ShowPage(page); });
    row.addWidget(option);
    return option;
}

QLayout* ExplorerWindow::MakePageRow() {
    auto* row = new QHBoxLayout;
    SetSpacing(*row, *this, false);
    recipes_ = AddOption(*row, "optRecipes", tr("R&ecipes"), Page::Recipes);
    styles_ = AddOption(*row, "optStyles", tr("&Styles"), Page::Styles);
    row->addStretch();
    auto* label = new QLabel(tr("F&ind:"), this);
    label->setBuddy(find_);
    find_->setObjectName(QStringLiteral("txtFind"));
    find_->setAccessibleName(tr("Find"));
    find_->setPlaceholderText(tr("Name, style, ingredient or words of the notes"));
    find_->setToolTip(tr("Shows the recipes of all folders that hold these words; Escape clears it"));
    find_->setClearButtonEnabled(true);
    find_->setMinimumWidth(Unit(*this) * kFindUnits);
    find_->installEventFilter(this);
    connect(find_, &QLineEdit::textChanged, this, &ExplorerWindow::SearchFor);
    row->addWidget(label);
    row->addWidget(find_);
    return row;
}

QLayout* ExplorerWindow::MakeCommandRow() {
    auto* row = new QHBoxLayout;
    SetSpacing(*row, *this, false);
    const auto add = [&](const char* name, const QString& caption, const QString& tip, const auto& press) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        button->setToolTip(tip);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, press);
        row->addWidget(button);
        buttons_[name] = button;
    };
    add("cmdOpen", tr("&Open"), tr("Opens the chosen recipe, style or folder (Enter)"),
        [this] { Run(PopupCommand::Open); });
    add("cmdNewFolder", tr("New &Folder"), tr("Makes a folder in the chosen one (Ctrl+Shift+N)"),
        [this] { Run(PopupCommand::NewFolder); });
    add("cmdNewStyle", tr("New St&yle"), tr("Makes a style in the chosen folder"),
        [this] { Run(PopupCommand::NewStyle); });
    add("cmdRename", tr("&Rename"), tr("Gives what is chosen another name (F2)"),
        [this] { DeleteOrRename(PopupCommand::Rename, PopupCommand::RenameFolder); });
    add("cmdDelete", tr("&Delete"), tr("Deletes what is chosen, after a question (Delete)"),
        [this] { DeleteOrRename(PopupCommand::Delete, PopupCommand::DeleteFolder); });
    row->addStretch();
    const RunPopup run = [this](PopupChoice choice) { Run(choice); };
    const auto addMenu = [&](const char* name, const QString& caption, const QString& tip, auto fill) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        button->setToolTip(tip);
        button->setAutoDefault(false);
        row->addWidget(button);
        auto* menu = new QMenu(button);
        button->setMenu(menu);
        connect(menu, &QMenu::aboutToShow, this, [menu, fill] {
            menu->clear();
            fill(*menu);
        });
    };
    addMenu("cmdView", tr("&View"), tr("Icons, a list, or all columns"),
            [this, run](QMenu& menu) { AddViews(menu, model_.Look(), run); });
    addMenu("cmdArrange", tr("Sor&t"), tr("What the lists are sorted by"), [this, run](QMenu& menu) {
        AddArrangements(menu, model_.Look(), model_.List(model_.Shown()).Rows(), run);
    });
    return row;
}

QLayout* ExplorerWindow::MakeBottomRow() {
    auto* row = new QHBoxLayout;
    SetSpacing(*row, *this, false);
    status_->setObjectName(QStringLiteral("lblStatus"));
    status_->setTextFormat(Qt::PlainText);
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(status_, 1);
    auto* close = new QPushButton(tr("&Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, [this] {
        model_.CloseBox();
        ShowState();
    });
    row->addWidget(close);
    return row;
}

void ExplorerWindow::MakePage(Page page) {
    const bool styles = page == Page::Styles;
    PageWidgets& widgets = pages_[static_cast<std::size_t>(page)];
    widgets.splitter = new QSplitter(stack_);
    widgets.splitter->setObjectName(QStringLiteral("Splitter"));
    widgets.splitter->setAccessibleName(tr("Border between folders and their contents"));
    widgets.splitter->setChildrenCollapsible(false);
    widgets.tree = new TreePane(model_.Tree(page), styles ? tr("Style folders") : tr("Recipe folders"),
                                widgets.splitter);
    widgets.tree->setObjectName(QStringLiteral("treeFolders"));
    widgets.list = new NodeListPane(model_.List(page), styles ? tr("Styles and recipes") : tr("Recipes"),
                                    true, view_.columns, widgets.splitter);
    widgets.splitter->addWidget(widgets.tree);
    widgets.splitter->addWidget(widgets.list);
    widgets.splitter->setStretchFactor(1, 1);
    widgets.splitter->setSizes({Unit(*this) * kTreeUnits, Unit(*this) * (kWidthUnits - kTreeUnits)});
    connect(widgets.splitter, &QSplitter::splitterMoved, this, [this](int pixels) {
        view_.treeWidth = static_cast<int>(TwipsOfPixels(pixels, screen()->logicalDotsPerInch()));
        RestoreTreeWidth();
    });
    stack_->addWidget(widgets.splitter);
    const KeyDrag drag{[this](const auto& keys, const auto& target) { return model_.CanDrop(keys, target); },
                       [this](const auto& keys, const auto& target) {
                           model_.Drop(keys, target);
                           ShowState();
                       }};
    widgets.list->SetDrag(drag);
    widgets.tree->Model().SetDrag(drag);
    ConnectTree(page, widgets);
    ConnectList(widgets);
}

void ExplorerWindow::ConnectTree(Page page, PageWidgets& widgets) {
    TreePane& tree = *widgets.tree;
    tree.setContextMenuPolicy(Qt::CustomContextMenu);
    AcceptKeys(tree);
    tree.SetChoose([this](const std::string& key) {
        const bool chosen = model_.ChooseNode(key);
        ShowState();
        return chosen;
    });
    tree.Model().SetRename(
        [this, page](int item) { return model_.Shown() == page && model_.EditedNode() == item; },
        [this](const QString& name) { return model_.RenameNode(FromQt(name)); });
    connect(tree.itemDelegate(), &QAbstractItemDelegate::closeEditor, this, &ExplorerWindow::EndEdit);
    connect(&tree, &QWidget::customContextMenuRequested, this,
            [this, &tree](const QPoint& place) { ShowTreePopup(tree.viewport()->mapToGlobal(place)); });
    for (const PopupCommand command : {PopupCommand::RenameFolder, PopupCommand::DeleteFolder})
        AddKey(tree, KeyOf(command), command);
    AddKey(tree, QKeySequence(Qt::Key_Insert), PopupCommand::NewFolder);
}

// Deletes the children while this window still exists: an open editor of a name commits when it is deleted,
// and calls back into this window.
ExplorerWindow::~ExplorerWindow() {
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

void ExplorerWindow::ConnectList(PageWidgets& widgets) {
    NodeListPane* list = widgets.list;
    list->SetRename([this](const QString& name) { return model_.RenameRow(FromQt(name)); });
    connect(list, &NodeListPane::EditEnded, this, &ExplorerWindow::EndEdit);
    connect(list, &NodeListPane::RowActivated, this, [this] { Run(PopupCommand::Open); });
    connect(list, &NodeListPane::ChosenChanged, this, [this] {
        model_.RowChosen();
        ShowState();
    });
    connect(list, &NodeListPane::SortAsked, this, [this](int column) {
        Run({PopupCommand::ArrangeBy, column});
    });
    connect(list, &NodeListPane::MenuAsked, this, &ExplorerWindow::ShowListPopup);
    for (const PopupCommand command : {PopupCommand::Rename, PopupCommand::Delete})
        AddKey(*list, KeyOf(command), command);
    AddKey(*list, QKeySequence(Qt::Key_Insert), PopupCommand::NewFolder);
}

// Adds a shortcut that is ignored while a name is being edited in place.
void ExplorerWindow::AddKey(QWidget& widget, const QKeySequence& key, PopupCommand command) {
    auto* shortcut = new QShortcut(key, &widget);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, command] {
        const auto* editor = qobject_cast<const QLineEdit*>(focusWidget());
        if (!editor || editor == find_) Run(command);
    });
}

void ExplorerWindow::ShowPage(Page page) {
    if (page == Page::Styles) find_->clear();
    model_.Show(page);
    ShowState();
}

void ExplorerWindow::Run(PopupChoice choice) {
    try {
        model_.Run(choice);
    } catch (...) {
        // A deletion that failed halfway has changed what must be shown. The program handles the error.
        ShowState();
        throw;
    }
    ShowState();
}

// True if the buttons act on the rows of the list, false if they act on the selected entry of the tree.
// During a search they never act on that, because a search draws attention away from the tree.
bool ExplorerWindow::AboutRows() {
    const NodeList& list = model_.List(model_.Shown());
    return list.IsFinding() || !list.Rows().Chosen().empty();
}

void ExplorerWindow::DeleteOrRename(PopupCommand listCommand, PopupCommand treeCommand) {
    Run(AboutRows() ? listCommand : treeCommand);
}

void ExplorerWindow::EndEdit() {
    model_.CancelEdit();
    // Queued, because the view is still busy with its editor. Another editor may have opened by then.
    QMetaObject::invokeMethod(
        this,
        [this] {
            const bool editing = model_.EditedNode() != TreeItems::kNone ||
                                 model_.List(model_.Shown()).EditedRow() != ListTable::kNoRow;
            if (editing) return;
            model_.Settle();
            ShowState();
        },
        Qt::QueuedConnection);
}

void ExplorerWindow::SearchFor(const QString& text) {
    if (showing_) return;
    model_.Find(FromQt(text));
    ShowState();
}

void ExplorerWindow::ShowState() {
    if (!model_.IsOpen()) return QDialog::accept();
    if (showing_) return;
    const ScopedValue showing(showing_, true);
    const Page page = model_.Shown();
    const bool rows = AboutRows();
    recipes_->setChecked(page == Page::Recipes);
    styles_->setChecked(page == Page::Styles);
    stack_->setCurrentIndex(static_cast<int>(page));
    find_->setEnabled(page == Page::Recipes);
    // Selecting a folder ends a search.
    if (!model_.List(Page::Recipes).IsFinding() && !find_->text().trimmed().isEmpty()) find_->clear();
    for (PageWidgets& widgets : pages_) widgets.list->SetView(model_.Look().viewType);
    buttons_["cmdOpen"]->setEnabled(model_.IsEnabled(PopupCommand::Open));
    buttons_["cmdNewFolder"]->setEnabled(model_.IsEnabled(PopupCommand::NewFolder));
    buttons_["cmdNewStyle"]->setVisible(page == Page::Styles);
    buttons_["cmdNewStyle"]->setEnabled(model_.IsEnabled(PopupCommand::NewStyle));
    buttons_["cmdRename"]->setEnabled(
        model_.IsEnabled(rows ? PopupCommand::Rename : PopupCommand::RenameFolder));
    buttons_["cmdDelete"]->setEnabled(
        model_.IsEnabled(rows ? PopupCommand::Delete : PopupCommand::DeleteFolder));
    status_->setText(ToQt(model_.Status()));
    Shown().list->ShowState();
    if (model_.EditedNode() != TreeItems::kNone) Shown().tree->EditSelected();
}

void ExplorerWindow::ShowListPopup(const QPoint& place) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QLatin1String(kListPopup));
    const RunPopup run = [this](PopupChoice choice) { Run(choice); };
    const auto add = [&](PopupCommand command) {
        AddCommand(*menu, command, model_.IsEnabled(command), run);
    };
    add(PopupCommand::Open);
    add(PopupCommand::Delete);
    add(PopupCommand::Rename);
    menu->addSeparator();
    add(PopupCommand::NewFolder);
    add(PopupCommand::NewStyle);
    menu->addSeparator();
    AddLookMenus(*menu, model_.Look(), model_.List(model_.Shown()).Rows(),
                 model_.IsEnabled(PopupCommand::LineUp), run);
    menu->popup(place);
}

void ExplorerWindow::ShowTreePopup(const QPoint& place) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QLatin1String(kTreePopup));
    const RunPopup run = [this](PopupChoice choice) { Run(choice); };
    const auto add = [&](PopupCommand command) {
        AddCommand(*menu, command, model_.IsEnabled(command), run);
    };
    add(PopupCommand::RenameFolder);
    add(PopupCommand::DeleteFolder);
    menu->addSeparator();
    add(PopupCommand::NewFolder);
    menu->popup(place);
}

// In the find box, the Down and Enter keys move to the rows found.
bool ExplorerWindow::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress && object == find_) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
            ListTable& rows = model_.List(model_.Shown()).Rows();
            if (rows.Selected() == ListTable::kNoRow) rows.Select(rows.FirstRow());
            Shown().list->setFocus();
            return true;
        }
    }
    return QDialog::eventFilter(object, event);
}

// Escape clears a search; without one, it closes the window.
void ExplorerWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !find_->text().isEmpty())
        find_->clear();
    else
        QDialog::keyPressEvent(event);
}

void ExplorerWindow::done(int result) {
    KeepView();
    QDialog::done(result);
}

void ExplorerWindow::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
