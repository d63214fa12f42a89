#include "shell/ui/RecipePickDialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/RecipeChooserView.h"
#include "tree/ui/TreePane.h"

namespace tw {

RecipePickDialog::RecipePickDialog(RecipePickModel& model, QWidget* parent)
    : QDialog(parent), model_(model), column_(new QVBoxLayout(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Caption()));
    SetSpacing(*column_, *this, true);
    auto* recipes = new RecipeChooserView(model.Recipes(), this);
    connect(recipes, &RecipeChooserView::SelectionChanged, this, &RecipePickDialog::ShowButtons);
    column_->addWidget(recipes, 1);
    resize(Unit(*this) * 110, Unit(*this) * 60);
    recipes->findChild<TreePane*>()->setFocus();
}

void RecipePickDialog::AddLastRow(std::initializer_list<QWidget*> options) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    for (QWidget* option : options) row->addWidget(option);
    row->addStretch();
    next_ = new QPushButton(tr("&Next"), this);
    next_->setObjectName(QStringLiteral("cmdNext"));
    next_->setDefault(true);
    connect(next_, &QPushButton::clicked, this, [this] {
        model_.Press("cmdNext");
        QDialog::accept();
    });
    row->addWidget(next_);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &RecipePickDialog::reject);
    row->addWidget(cancel);
    column_->addLayout(row);
    ShowButtons();
}

void RecipePickDialog::ShowButtons() {
    next_->setEnabled(model_.NextEnabled());
}

void RecipePickDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
