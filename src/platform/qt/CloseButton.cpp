#include "platform/qt/CloseButton.h"

#include <QBoxLayout>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include "platform/DialogModel.h"

namespace tw {

QPushButton* AddCloseButton(QDialog& dialog, QBoxLayout& column, DialogModel& model, const char* name) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QPushButton* close = buttons->button(QDialogButtonBox::Close);
    close->setObjectName(QLatin1String(name));
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, [&dialog, &model, name] {
        model.Press(name);
        dialog.QDialog::accept();
    });
    column.addWidget(buttons);
    return close;
}

}  // namespace tw
