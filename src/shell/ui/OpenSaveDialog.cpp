#include "shell/ui/OpenSaveDialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/ScopeGuard.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "platform/qt/SvgIcon.h"
#include "tree/ui/LookMenu.h"
#include "tree/ui/NodeListPane.h"
#include "tree/ui/NodePictures.h"

namespace tw {
namespace {

constexpr int kWidthUnits = 82;
constexpr int kHeightUnits = 56;
constexpr int kIndentUnits = 2;

// Indents each folder by one more step than the one above it.
class IndentingDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->widget) option->rect.adjust(index.row() * kIndentUnits * Unit(*option->widget), 0, 0, 0);
    }
};

}  // namespace

OpenSaveDialog::OpenSaveDialog(OpenSaveModel& model, SettingsPort& settings, QWidget* parent)
    : QDialog(parent),
      model_(model),
      settings_(settings),
      folders_(new QComboBox(this)),
      list_(new NodeListPane(model.List(), tr("Recipes and folders"), false, view_.columns, this)),
      name_(new QLineEdit(this)),
      find_(new QLineEdit(this)),
      found_(new QLabel(this)) {
    view_.look = model.Look();
    LoadBrowseView(settings_, view_);
    opened_ = view_;
    model.SetLook(view_.look);
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Caption()));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    column->addLayout(MakeFolderRow());
    MakeList();
    column->addWidget(list_, 1);
    column->addLayout(MakeNameRows());
    resize(Unit(*this) * kWidthUnits, Unit(*this) * kHeightUnits);
    ShowState();
    name_->selectAll();
    name_->setFocus();
}

QLayout* OpenSaveDialog::MakeFolderRow() {
    auto* row = new QHBoxLayout;
    SetSpacing(*row, *this, false);
    auto* label =
        new QLabel(model_.Action() == OpenSaveModel::Style::Save ? tr("Save &in:") : tr("Look &in:"), this);
    label->setObjectName(QStringLiteral("Label1"));
    label->setBuddy(folders_);
    folders_->setObjectName(QStringLiteral("icmbFolder"));
    folders_->setAccessibleName(tr("Folder"));
    folders_->setItemDelegate(new IndentingDelegate(folders_));
    folders_->view()->setIconSize(folders_->iconSize());
    row->addWidget(label);
    row->addWidget(folders_, 1);
    AddButton(*row, "cmdBack", "back", tr("Back to the folder shown before (Alt+Left)"));
    AddButton(*row, "cmdUp", "up", tr("To the folder above (Alt+Up)"));
    AddButton(*row, "cmdNewFolder", "new-folder", tr("Makes a folder here (Ctrl+Shift+N)"));
    row->addSpacing(Unit(*this));
    AddButton(*row, "cmdList", "list", tr("Shows the names alone (Ctrl+1)"));
    AddButton(*row, "cmdDetails", "details", tr("Shows all columns (Ctrl+2)"));
    for (const char* view : {"cmdList", "cmdDetails"}) buttons_[view]->setCheckable(true);
    connect(folders_, &QComboBox::activated, this, [this](int index) {
        model_.EnterFolder(FromQt(folders_->itemData(index).toString()));
        ShowState();
    });
    AddKey(*this, QKeySequence(Qt::ALT | Qt::Key_Left), "cmdBack");
    AddKey(*this, QKeySequence(Qt::ALT | Qt::Key_Up), "cmdUp");
    AddKey(*this, KeyOf(PopupCommand::NewFolder), "cmdNewFolder");
    AddKey(*this, KeyOf(PopupCommand::List), "cmdList");
    AddKey(*this, KeyOf(PopupCommand::Details), "cmdDetails");
    return row;
}

void OpenSaveDialog::AddButton(QBoxLayout& row, const char* name, const char* icon, const QString& tip) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setIcon(
        SvgIcon(QStringLiteral(":/icons/browse/%1.svg").arg(QLatin1String(icon)), SvgInk::AsDrawn));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, [this, name] { Press(name); });
    row.addWidget(button);
    buttons_[name] = button;
}

// Adds a key that runs the command unless a row is being renamed.
void OpenSaveDialog::AddKey(QWidget& widget, const QKeySequence& key, const std::string& command) {
    auto* shortcut = new QShortcut(key, &widget);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, command] {
        if (!list_->IsEditing()) Press(command);
    });
}

void OpenSaveDialog::MakeList() {
    list_->SetRename([this](const QString& name) { return model_.RenameRow(FromQt(name)); });
    list_->SetDrag({[this](const auto& keys, const auto& target) { return model_.CanDrop(keys, target); },
                    [this](const auto& keys, const auto& target) {
                        model_.Drop(keys, target);
                        ShowState();
                    }});
    AddKey(*list_, KeyOf(PopupCommand::Rename), NameOf(PopupCommand::Rename));
    AddKey(*list_, QKeySequence(Qt::Key_Insert), NameOf(PopupCommand::NewFolder));
    AddKey(*list_, QKeySequence(Qt::Key_Backspace), "cmdUp");
    connect(list_, &NodeListPane::ChosenChanged, this, [this] {
        model_.RowChosen();
        ShowState();
    });
    connect(list_, &NodeListPane::RowActivated, this, &OpenSaveDialog::OpenRow);
    connect(list_, &NodeListPane::SortAsked, this, [this](int column) {
        Run({PopupCommand::ArrangeBy, column});
    });
    connect(list_, &NodeListPane::MenuAsked, this, &OpenSaveDialog::ShowPopup);
    connect(list_, &NodeListPane::EditEnded, this, [this] {
        model_.List().CancelEdit();
        ShowState();
    });
}

QLayout* OpenSaveDialog::MakeNameRows() {
    auto* grid = new QGridLayout;
    SetSpacing(*grid, *this, false);
    const auto addRow = [&](int row, const QString& caption, QLineEdit& box, const char* name,
                            const QString& accessible) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(&box);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        box.setObjectName(QLatin1String(name));
        box.setAccessibleName(accessible);
        box.installEventFilter(this);
        grid->addWidget(label, row, 0);
        grid->addWidget(&box, row, 1);
        return label;
    };
    addRow(0, tr("&Name:"), *name_, "txtName", tr("Name"))->setObjectName(QStringLiteral("Label2"));
    addRow(1, tr("&Find:"), *find_, "txtFind", tr("Find"));
    find_->setPlaceholderText(tr("Name, style, ingredient or words of the notes"));
    find_->setToolTip(tr("Shows the recipes of all folders that hold these words; Escape clears it"));
    find_->setClearButtonEnabled(true);
    found_->setObjectName(QStringLiteral("lblFound"));
    found_->setTextFormat(Qt::PlainText);
    found_->setForegroundRole(QPalette::PlaceholderText);
    found_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid->addWidget(found_, 2, 1);
    const auto addButton = [&](int row, const char* name, const QString& caption) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, name] { Press(name); });
        grid->addWidget(button, row, 2);
        return button;
    };
    addButton(0, "cmdOK", ToQt(model_.OkCaption()))->setDefault(true);
    addButton(1, "cmdCancel", tr("Cancel"));
    connect(name_, &QLineEdit::textEdited, this,
            [this](const QString& text) { model_.SetControl("txtName", FromQt(text)); });
    connect(find_, &QLineEdit::textChanged, this, &OpenSaveDialog::SearchFor);
    return grid;
}

void OpenSaveDialog::SearchFor(const QString& text) {
    if (showing_) return;
    model_.Find(FromQt(text));
    ShowState();
}

void OpenSaveDialog::Press(const std::string& command) {
    model_.Press(command);
    ShowState();
    if (command != "cmdOK" || !model_.IsOpen()) return;
    name_->setFocus();
    name_->selectAll();
}

void OpenSaveDialog::Run(PopupChoice choice) {
    model_.Run(choice);
    ShowState();
}

void OpenSaveDialog::OpenRow() {
    model_.OpenRow();
    ShowState();
}

void OpenSaveDialog::ShowFolders() {
    folders_->clear();
    for (const OpenSaveModel::FolderEntry& folder : model_.Folders())
        folders_->addItem(NodePicture(folder.icon), ToQt(folder.name), ToQt(folder.key));
    folders_->setCurrentIndex(folders_->count() - 1);
}

void OpenSaveDialog::ShowState() {
    if (!model_.IsOpen()) return QDialog::done(model_.Cancelled() ? Rejected : Accepted);
    if (showing_) return;
    const ScopedValue showing(showing_, true);
    ShowFolders();
    for (const auto& [name, button] : buttons_) button->setEnabled(model_.IsEnabled(name));
    buttons_["cmdList"]->setChecked(model_.Look().viewType == ListViewType::List);
    buttons_["cmdDetails"]->setChecked(model_.Look().viewType == ListViewType::Details);
    const QString name = ToQt(model_.NameText());
    if (name_->text() != name) name_->setText(name);
    // Entering a folder ends the search.
    if (!model_.List().IsFinding() && !find_->text().trimmed().isEmpty()) find_->clear();
    // A search looks into all folders, whatever the box above the list shows.
    found_->setText(ToQt(model_.List().FoundText()));
    found_->setVisible(model_.List().IsFinding());
    list_->SetView(model_.Look().viewType);
    list_->ShowState();
}

void OpenSaveDialog::ShowPopup(const QPoint& place) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QLatin1String(kOpenSavePopup));
    const RunPopup run = [this](PopupChoice choice) { Run(choice); };
    AddLookMenus(*menu, model_.Look(), model_.List().Rows(), model_.IsEnabled(PopupCommand::LineUp), run);
    menu->addSeparator();
    AddCommand(*menu, PopupCommand::NewFolder, tr(kOpenSaveNewFolderCaption),
               model_.IsEnabled(PopupCommand::NewFolder), run);
    AddCommand(*menu, PopupCommand::Rename, model_.IsEnabled(PopupCommand::Rename), run);
    menu->popup(place);
}

void OpenSaveDialog::MoveChoice(int step) {
    ListTable& rows = model_.List().Rows();
    rows.Select(std::clamp(rows.Selected() + step, 0, std::max(rows.Count() - 1, 0)));
}

// The arrow keys move the selection of the list while a text box keeps the focus.
bool OpenSaveDialog::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
            MoveChoice(static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down ? 1 : -1);
            if (object == name_) name_->selectAll();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (object != find_ || model_.List().Rows().Selected() != ListTable::kNoRow) break;
            // Enter in the search box selects the first recipe found.
            MoveChoice(1);
            return true;
        default:
            break;
    }
    return QDialog::eventFilter(object, event);
}

// Escape first clears a search; only without one does it cancel.
void OpenSaveDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !find_->text().isEmpty())
        find_->clear();
    else
        QDialog::keyPressEvent(event);
}

void OpenSaveDialog::done(int result) {
    view_.look = model_.Look();
    StoreBrowseView(settings_, view_, opened_);
    QDialog::done(result);
}

void OpenSaveDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
