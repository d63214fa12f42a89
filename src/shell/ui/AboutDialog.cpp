#include "shell/ui/AboutDialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "shell/ui/Icons.h"

namespace tw {

AboutDialog::AboutDialog(DialogModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("About Tunwright"));
    auto* grid = new QGridLayout(this);
    SetSpacing(*grid, *this, true);
    grid->setHorizontalSpacing(Unit(*this) * kGroupUnits);
    auto* picture = new QLabel(this);
    const int side = Unit(*this) * 8;
    picture->setPixmap(ProgramIcon().pixmap(QSize(side, side), devicePixelRatioF()));
    picture->setAccessibleName(tr("A glass of pale ale"));
    grid->addWidget(picture, 0, 0, 3, 1, Qt::AlignTop);
    int row = 0;
    for (const DialogControl& control : model.Controls()) {
        auto* label = new QLabel(ToQt(control.text), this);
        label->setObjectName(ToQt(control.name));
        label->setTextFormat(Qt::PlainText);
        if (row == 0) label->setFont(BoldFont(FigureFont(font())));
        grid->addWidget(label, row++, 1);
    }
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(1, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        model_.Press("cmdOK");
        QDialog::accept();
    });
    grid->addWidget(buttons, row + 1, 0, 1, 2);
}

void AboutDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
