#include "catalogue/ui/DatabaseSetupDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/GuidesLabel.h"
#include "tree/ui/ListFilterBox.h"
#include "tree/ui/ListPane.h"

namespace tw {
namespace {

constexpr int kWidthUnits = 150;
constexpr int kHeightUnits = 66;

}  // namespace

DatabaseSetupDialog::DatabaseSetupDialog(DatabaseSetupModel& model, QWidget* parent)
    : QDialog(parent), model_(model), items_(new ListPane(model.Items(), tr("Entries"), this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Database Setup"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    AddHead(*column);
    items_->setObjectName(QStringLiteral("lvItems"));
    items_->SetHint(tr("There is nothing here yet. New (Insert) adds the first entry."));
    items_->installEventFilter(this);
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kMarginUnits);
    row->addWidget(items_, 1);
    row->addLayout(MakeButtons());
    column->addLayout(row, 1);
    guides_ = new GuidesLabel(this);
    column->addWidget(guides_);
    setTabOrder(findChild<ListFilterBox*>(), items_);
    connect(items_, &ListPane::ChosenChanged, this, &DatabaseSetupDialog::ShowState);
    connect(items_, &ListPane::RowsChanged, this, &DatabaseSetupDialog::ShowState);
    connect(items_, &ListPane::RowActivated, this, [this] { Press("lvItems"); });
    resize(Unit(*this) * kWidthUnits, Unit(*this) * kHeightUnits);
    items_->setFocus();
    ShowState();
}

void DatabaseSetupDialog::AddHead(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    catalogues_ = new QComboBox(this);
    catalogues_->setObjectName(QStringLiteral("Combo1"));
    catalogues_->setAccessibleName(tr("Catalogue"));
    for (const std::string& entry : DatabaseSetupModel::Entries()) catalogues_->addItem(ToQt(entry));
    catalogues_->setMaxVisibleItems(kCatalogueKinds);
    catalogues_->installEventFilter(this);
    connect(catalogues_, &QComboBox::currentTextChanged, this,
            [this](const QString& entry) { model_.SetControl("Combo1", FromQt(entry)); });
    auto* label = new QLabel(tr("&Catalogue:"), this);
    label->setBuddy(catalogues_);
    row->addWidget(label);
    row->addWidget(catalogues_);
    row->addStretch(1);
    row->addWidget(new ListFilterBox(model_.Items(), *items_, this,
                                     [this](const std::string& text) { model_.SetFilter(text); }),
                   1);
    column.addLayout(row);
}

QBoxLayout* DatabaseSetupDialog::MakeButtons() {
    auto* column = new QVBoxLayout;
    column->setSpacing(Unit(*this) * kGapUnits);
    const auto add = [&](const char* name, const QString& caption, const QString& tip) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, [this, name] { Press(name); });
        column->addWidget(button);
        return button;
    };
    add("cmdNew", tr("&New..."), tr("Adds an entry (Insert)"));
    edit_ = add("cmdEdit", tr("&Edit..."), tr("Edits the chosen entry (Enter)"));
    edit_->setDefault(true);
    delete_ = add("cmdDelete", tr("&Delete"), tr("Deletes the chosen entry, after a question (Delete)"));
    column->addStretch();
    add("cmdClose", tr("Close"), tr("Closes the window (Escape)"));
    return column;
}

bool DatabaseSetupDialog::eventFilter(QObject* object, QEvent* event) {
    // Handled here because the two lists would use these keys for their search.
    if ((object == items_ || object == catalogues_) && event->type() == QEvent::KeyPress &&
        TakeKey(static_cast<QKeyEvent&>(*event)))
        return true;
    return QDialog::eventFilter(object, event);
}

void DatabaseSetupDialog::keyPressEvent(QKeyEvent* event) {
    if (!TakeKey(*event)) QDialog::keyPressEvent(event);
}

bool DatabaseSetupDialog::TakeKey(const QKeyEvent& key) {
    if (key.modifiers() != Qt::NoModifier && key.modifiers() != Qt::KeypadModifier) return false;
    if (key.key() == Qt::Key_Insert)
        Press("cmdNew");
    else if (key.key() == Qt::Key_Delete)
        Press("cmdDelete");
    else
        return false;
    return true;
}

void DatabaseSetupDialog::Press(const char* button) {
    model_.Press(button);
    ShowState();
    if (!model_.IsOpen()) QDialog::accept();
}

void DatabaseSetupDialog::ShowState() {
    catalogues_->setCurrentText(ToQt(std::string(WordsOf(model_.Chosen()).plural)));
    edit_->setEnabled(model_.EditEnabled());
    delete_->setEnabled(model_.DeleteEnabled());
    guides_->Show(model_.Guides());
}

void DatabaseSetupDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
