#include "shell/ui/NameConflictDialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/ElidedLabel.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr int kNameUnits = 44;

}  // namespace

NameConflictDialog::NameConflictDialog(NameConflictModel& model, QWidget* parent)
    : QDialog(parent), model_(model), newName_(new QLineEdit(this)) {
    if (!model.Proposal().empty()) model.SetControl("txtNewName", model.Proposal());
    newName_->setText(ToQt(model.NewName()));
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Name Conflict"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    column->addWidget(new QLabel(tr("There is a recipe of this name already:"), this));
    auto* name = new ElidedLabel(this);
    name->setObjectName(QStringLiteral("lblName"));
    name->setFont(BoldFont(font()));
    name->SetFullText(ToQt(model.RecipeName()));
    column->addWidget(name);
    column->addSpacing(Unit(*this) * kGroupUnits);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Unit(*this) * kMarginUnits);
    grid->setVerticalSpacing(Unit(*this) * kGapUnits);
    grid->setColumnStretch(1, 1);
    // Enter renames, which keeps both recipes.
    AddChoice(*grid, "cmdRename", tr("&Rename"), "lblRename", ToQt(model.RenameText()))->setDefault(true);
    AddNewName(*grid);
    AddChoice(*grid, "cmdOverwrite", tr("&Overwrite"), "lblOverwrite",
              tr("Overwrite the recipe of that name"));
    AddChoice(*grid, "cmdSkip", tr("&Skip"), "lblSkip", ToQt(model.SkipText()));
    AddChoice(*grid, "cmdAbort", tr("&Abort"), "lblAbort", ToQt(model.AbortText()));
    column->addLayout(grid);
    if (model.OffersAll()) AddForAll(*column);
    column->addStretch();
    newName_->setFocus();
    newName_->selectAll();
}

QPushButton* NameConflictDialog::AddChoice(QGridLayout& grid, const char* button, const QString& caption,
                                           const char* label, const QString& text) {
    const int row = grid.rowCount();
    auto* push = new QPushButton(caption, this);
    push->setObjectName(QLatin1String(button));
    push->setAutoDefault(false);
    connect(push, &QPushButton::clicked, this, [this, button] { Press(button); });
    grid.addWidget(push, row, 0);
    auto* words = new QLabel(text, this);
    words->setObjectName(QLatin1String(label));
    push->setAccessibleDescription(text);
    grid.addWidget(words, row, 1);
    return push;
}

void NameConflictDialog::AddNewName(QGridLayout& grid) {
    newName_->setObjectName(QStringLiteral("txtNewName"));
    newName_->setAccessibleName(tr("New name"));
    newName_->setMinimumWidth(Unit(*this) * kNameUnits);
    connect(newName_, &QLineEdit::textEdited, this,
            [this](const QString& text) { model_.SetControl("txtNewName", FromQt(text)); });
    auto* label = new QLabel(tr("New &name:"), this);
    label->setBuddy(newName_);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(newName_, row, 1);
    grid.setRowMinimumHeight(row + 1, Unit(*this) * kGapUnits);
}

void NameConflictDialog::AddForAll(QVBoxLayout& column) {
    auto* forAll = new QCheckBox(tr("Do the same for all &the rest"), this);
    forAll->setObjectName(QStringLiteral("chkAll"));
    forAll->setToolTip(tr("Further recipes are not asked about; to rename them, each gets a free name"));
    connect(forAll, &QCheckBox::toggled, this,
            [this](bool on) { model_.SetControl("chkAll", on ? "yes" : "no"); });
    column.addSpacing(Unit(*this) * kGapUnits);
    column.addWidget(forAll);
}

void NameConflictDialog::Press(const char* button) {
    model_.Press(button);
    if (!model_.IsOpen()) return QDialog::accept();
    newName_->setFocus();
    newName_->selectAll();
}

void NameConflictDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
