#include "reports/ui/NoPrinterBox.h"

#include <QPushButton>

#include "platform/qt/QtText.h"
#include "reports/NoPrinterModel.h"

namespace tw {

NoPrinterBox::NoPrinterBox(DialogModel& model, QWidget* parent) : QMessageBox(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(NoPrinterModel::kTitle));
    setIcon(QMessageBox::Information);
    setTextFormat(Qt::PlainText);
    setText(ToQt(NoPrinterModel::kText).remove(QLatin1Char('\r')));
    setDefaultButton(AddChoice("cmdPreview", tr("Pre&view"), AcceptRole));
    AddChoice("cmdPDF", tr("&Save as PDF..."), ActionRole);
    setEscapeButton(AddChoice("cmdCancel", tr("Cancel"), RejectRole));
}

std::unique_ptr<QDialog> NoPrinterBox::Make(DialogModel& model, QWidget* parent) {
    return std::make_unique<NoPrinterBox>(model, parent);
}

QPushButton* NoPrinterBox::AddChoice(const char* name, const QString& caption, ButtonRole role) {
    QPushButton* button = addButton(caption, role);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, [this, name] { model_.Press(name); });
    return button;
}

}  // namespace tw
