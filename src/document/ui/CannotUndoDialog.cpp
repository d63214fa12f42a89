#include "document/ui/CannotUndoDialog.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "document/CannotUndo.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {

CannotUndoDialog::CannotUndoDialog(DialogModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(CannotUndoModel::kTitle));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* row = new QHBoxLayout;
    auto* picture = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    picture->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
    picture->setAccessibleName(tr("Warning"));
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addSpacing(Unit(*this));
    auto* texts = new QVBoxLayout;
    for (const std::string_view text : {CannotUndoModel::kWarning, CannotUndoModel::kQuestion})
        texts->addWidget(new QLabel(ToQt(text), this));
    row->addLayout(texts, 1);
    column->addLayout(row);
    auto* dontShow = new QCheckBox(ToQt(CannotUndoModel::kDontShow), this);
    dontShow->setObjectName(QStringLiteral("chkDontShow"));
    connect(dontShow, &QCheckBox::toggled, this,
            [this](bool on) { model_.SetControl("chkDontShow", on ? "yes" : "no"); });
    column->addWidget(dontShow);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const auto& [name, caption] : {std::pair("cmdYes", tr("&Yes")), std::pair("cmdNo", tr("&No"))}) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        connect(button, &QPushButton::clicked, this, [this, name = name] { Press(name); });
        buttons->addWidget(button);
        // The safe button is the default: a brewer who just presses Enter loses nothing.
        button->setDefault(std::string_view(name) == "cmdNo");
        if (button->isDefault()) button->setFocus();
    }
    column->addLayout(buttons);
}

void CannotUndoDialog::Press(const char* button) {
    model_.Press(button);
    QDialog::accept();
}

void CannotUndoDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
