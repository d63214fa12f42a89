#include "tree/ui/ChooseFolderDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/FolderChooserView.h"

namespace tw {

ChooseFolderDialog::ChooseFolderDialog(ChooseFolderModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Choose Folder"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* chooser = new FolderChooserView(model.FolderChooser1(), this);
    chooser->setObjectName(QStringLiteral("FolderChooser1"));
    column->addWidget(chooser, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    QPushButton* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setAutoDefault(false);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        model_.Press("cmdOK");
        QDialog::accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &ChooseFolderDialog::reject);
    resize(Unit(*this) * 44, Unit(*this) * 48);
    chooser->setFocus();
}

void ChooseFolderDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
