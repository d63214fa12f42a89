#include "reports/ui/NoPrinterDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "reports/NoPrinterModel.h"

namespace tw {

NoPrinterDialog::NoPrinterDialog(DialogModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(NoPrinterModel::kTitle));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* row = new QHBoxLayout;
    auto* picture = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    picture->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(side, side));
    picture->setAccessibleName(tr("Information"));
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addSpacing(Unit(*this));
    row->addWidget(new QLabel(ToQt(NoPrinterModel::kText).remove(QLatin1Char('\r')), this), 1);
    column->addLayout(row);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const auto& [name, caption] :
         {std::pair("cmdPreview", tr("Pre&view")), std::pair("cmdPDF", tr("&Save as PDF...")),
          std::pair("cmdCancel", tr("Cancel"))}) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        connect(button, &QPushButton::clicked, this, [this, name = name] { Press(name); });
        buttons->addWidget(button);
        button->setDefault(std::string_view(name) == "cmdPreview");
        if (button->isDefault()) button->setFocus();
    }
    column->addLayout(buttons);
}

void NoPrinterDialog::Press(const char* button) {
    model_.Press(button);
    QDialog::accept();
}

void NoPrinterDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
