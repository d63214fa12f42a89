#include "shell/ui/ExportOtherDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/RecipeChooserView.h"
#include "tree/ui/TreePane.h"

namespace tw {

ExportOtherDialog::ExportOtherDialog(ExportOtherModel& model, QWidget* parent)
    : QDialog(parent), model_(model), next_(new QPushButton(tr("&Next"), this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Caption()));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* recipes = new RecipeChooserView(model.Recipes(), this);
    connect(recipes, &RecipeChooserView::SelectionChanged, this, &ExportOtherDialog::ShowButtons);
    column->addWidget(recipes, 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    auto* format = new QComboBox(this);
    format->setObjectName(QStringLiteral("cmbFormat"));
    format->setAccessibleName(tr("Format"));
    for (const std::string& name : ExportOtherModel::Formats()) format->addItem(ToQt(name));
    format->setCurrentIndex(model.FormatIndex());
    connect(format, &QComboBox::currentIndexChanged, this, [this](int index) { model_.SetFormat(index); });
    auto* label = new QLabel(tr("&Format:"), this);
    label->setBuddy(format);
    row->addWidget(label);
    row->addWidget(format);
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
    connect(cancel, &QPushButton::clicked, this, &ExportOtherDialog::reject);
    row->addWidget(cancel);
    column->addLayout(row);
    resize(Unit(*this) * 110, Unit(*this) * 60);
    ShowButtons();
    recipes->findChild<TreePane*>()->setFocus();
}

void ExportOtherDialog::ShowButtons() {
    next_->setEnabled(model_.NextEnabled());
}

void ExportOtherDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
