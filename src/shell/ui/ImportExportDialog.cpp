#include "shell/ui/ImportExportDialog.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/RecipeChooserView.h"
#include "tree/ui/TreePane.h"

namespace tw {

ImportExportDialog::ImportExportDialog(ImportExportModel& model, QWidget* parent)
    : QDialog(parent), model_(model), next_(new QPushButton(tr("&Next"), this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Caption()));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* recipes = new RecipeChooserView(model.Recipes(), this);
    connect(recipes, &RecipeChooserView::SelectionChanged, this, &ImportExportDialog::ShowButtons);
    column->addWidget(recipes, 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    if (!model.IsImport()) {
        auto* append = new QCheckBox(tr("Add to the &file if it exists"), this);
        append->setObjectName(QStringLiteral("chkAppend"));
        append->setToolTip(tr("Keeps the recipes that are in the file; otherwise it is replaced"));
        append->setChecked(model.Append());
        connect(append, &QCheckBox::toggled, this, [this](bool on) { model_.SetAppend(on); });
        row->addWidget(append);
    }
    row->addStretch();
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
    connect(cancel, &QPushButton::clicked, this, &ImportExportDialog::reject);
    row->addWidget(cancel);
    column->addLayout(row);
    resize(Unit(*this) * 110, Unit(*this) * 60);
    ShowButtons();
    recipes->findChild<TreePane*>()->setFocus();
}

void ImportExportDialog::ShowButtons() {
    next_->setEnabled(model_.NextEnabled());
}

void ImportExportDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
