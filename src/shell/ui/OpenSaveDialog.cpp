#include "shell/ui/OpenSaveDialog.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {

OpenSaveDialog::OpenSaveDialog(OpenSaveModel& model, QWidget* parent)
    : QDialog(parent), model_(model), name_(new QLineEdit(this)), list_(new QListWidget(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Caption()));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* nameLabel = new QLabel(tr("&Name:"), this);
    nameLabel->setBuddy(name_);
    auto* listLabel = new QLabel(tr("&Recipes:"), this);
    listLabel->setBuddy(list_);
    column->addWidget(nameLabel);
    column->addWidget(name_);
    column->addWidget(listLabel);
    column->addWidget(list_, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    QPushButton* ok = buttons->addButton(ToQt(model.OkCaption()), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &OpenSaveDialog::Accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &OpenSaveDialog::reject);
    MakeList();
    resize(Unit(*this) * 54, Unit(*this) * 52);
}

std::unique_ptr<QDialog> OpenSaveDialog::Make(DialogModel& model, QWidget* parent) {
    return std::make_unique<OpenSaveDialog>(dynamic_cast<OpenSaveModel&>(model), parent);
}

void OpenSaveDialog::MakeList() {
    list_->setObjectName(QStringLiteral("lvRecipes"));
    list_->setAccessibleName(tr("Recipes"));
    QStringList names;
    for (const std::string& name : model_.Names()) names.append(ToQt(name));
    list_->addItems(names);
    name_->setObjectName(QStringLiteral("txtName"));
    name_->setAccessibleName(tr("Name"));
    for (const DialogControl& control : model_.Controls())
        if (control.name == "txtName") name_->setText(ToQt(control.text));
    name_->selectAll();
    name_->setFocus();
    name_->installEventFilter(this);
    connect(name_, &QLineEdit::textEdited, this, &OpenSaveDialog::NameTyped);
    connect(list_, &QListWidget::currentTextChanged, this, [this](const QString& text) {
        if (!list_->hasFocus() && !name_->hasFocus()) return;
        name_->setText(text);
        model_.SetControl("txtName", FromQt(text));
    });
    connect(list_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        model_.SetControl("txtName", FromQt(item->text()));
        Accept();
    });
}

// The first recipe that begins so comes into sight.
void OpenSaveDialog::NameTyped(const QString& text) {
    model_.SetControl("txtName", FromQt(text));
    const QList<QListWidgetItem*> found = list_->findItems(text, Qt::MatchStartsWith);
    const QSignalBlocker blocker(list_);
    list_->setCurrentItem(text.isEmpty() || found.isEmpty() ? nullptr : found.front());
}

// The arrows walk through the list while the name keeps the focus.
bool OpenSaveDialog::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) return QDialog::eventFilter(object, event);
    const int row = list_->currentRow() + (key == Qt::Key_Down ? 1 : -1);
    if (row >= 0 && row < list_->count()) list_->setCurrentRow(row);
    name_->selectAll();
    return true;
}

void OpenSaveDialog::Accept() {
    model_.Press("cmdOK");
    if (!model_.IsOpen()) {
        QDialog::accept();
        return;
    }
    name_->setFocus();
    name_->selectAll();
}

void OpenSaveDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
