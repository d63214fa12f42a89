#include "shell/ui/StylesNotImportedDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {

StylesNotImportedDialog::StylesNotImportedDialog(StylesNotImportedModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Styles Not Imported"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* text = new QLabel(
        tr("These recipes have been imported without a style, since theirs is not in your database."), this);
    text->setWordWrap(true);
    column->addWidget(text);
    column->addWidget(MakeGrid(), 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        model_.Press("cmdOK");
        QDialog::accept();
    });
    column->addWidget(buttons);
    resize(Unit(*this) * 70, Unit(*this) * 40);
    ok->setFocus();
}

QWidget* StylesNotImportedDialog::MakeGrid() {
    auto* grid = new QTreeWidget(this);
    grid->setObjectName(QStringLiteral("grdEffected"));
    grid->setAccessibleName(tr("Recipes and the styles that are not known"));
    QStringList headers;
    for (const std::string_view header : StylesNotImportedModel::kHeaders) headers.append(ToQt(header));
    grid->setHeaderLabels(headers);
    grid->setRootIsDecorated(false);
    grid->setUniformRowHeights(true);
    grid->setAllColumnsShowFocus(true);
    grid->header()->setFont(BoldFont(font()));
    grid->header()->setSectionResizeMode(QHeaderView::Stretch);
    for (const StyleNotImported& style : model_.Styles())
        new QTreeWidgetItem(grid, {ToQt(style.recipe), ToQt(style.style)});
    return grid;
}

void StylesNotImportedDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
