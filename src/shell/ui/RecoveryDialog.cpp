#include "shell/ui/RecoveryDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

struct ButtonText {
    const char* name;
    const char* caption;
};

constexpr std::array<ButtonText, 5> kButtons{
    {{"cmdRestore", QT_TRANSLATE_NOOP("RecoveryDialog", "&Restore")},
     {"cmdRestoreAll", QT_TRANSLATE_NOOP("RecoveryDialog", "Restore &All")},
     {"cmdDiscard", QT_TRANSLATE_NOOP("RecoveryDialog", "&Throw Away")},
     {"cmdDiscardAll", QT_TRANSLATE_NOOP("RecoveryDialog", "Throw A&way All")},
     {"cmdClose", QT_TRANSLATE_NOOP("RecoveryDialog", "&Later")}}};

}  // namespace

RecoveryDialog::RecoveryDialog(RecoveryModel& model, QWidget* parent)
    : QDialog(parent), model_(model), list_(new QListWidget(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Unsaved Changes"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* text =
        new QLabel(tr("The program ended before these re&cipes were saved. Restored ones open with their "
                      "changes; what is stored stays as it is until you save them."),
                   this);
    text->setWordWrap(true);
    text->setBuddy(list_);
    column->addWidget(text);
    list_->setObjectName(QStringLiteral("lstRecipes"));
    list_->setAccessibleName(tr("Recipes with unsaved changes"));
    column->addWidget(list_, 1);
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (const ButtonText& button : kButtons) {
        auto* push = new QPushButton(tr(button.caption), this);
        const QString name = QLatin1String(button.name);
        push->setObjectName(name);
        push->setDefault(name == QLatin1String("cmdRestoreAll"));
        connect(push, &QPushButton::clicked, this, [this, name] { Press(name); });
        row->addWidget(push);
    }
    column->addLayout(row);
    ShowEntries();
    connect(list_, &QListWidget::currentRowChanged, this, [this](int index) { model_.Select(index); });
    connect(list_, &QListWidget::itemDoubleClicked, this, [this] { Press(QStringLiteral("cmdRestore")); });
}

void RecoveryDialog::ShowEntries() {
    const QSignalBlocker blocker(list_);
    list_->clear();
    for (const std::string& entry : model_.Entries()) list_->addItem(ToQt(entry));
    list_->setCurrentRow(model_.Selected());
    list_->setFocus();
}

void RecoveryDialog::Press(const QString& button) {
    model_.Press(FromQt(button));
    if (model_.IsOpen())
        ShowEntries();
    else
        QDialog::accept();
}

void RecoveryDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
