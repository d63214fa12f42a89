#include "platform/qt/GenericDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

// Turns a control name into words: "txtNewOG" becomes "New OG".
QString Spoken(const QString& controlName) {
    int start = 0;
    while (start < controlName.size() && controlName[start].isLower()) ++start;
    QString words;
    for (int i = start; i < controlName.size(); ++i) {
        const QChar c = controlName[i];
        if (i > start && c.isUpper() && controlName[i - 1].isLower()) words += QLatin1Char(' ');
        words += c;
    }
    return words.isEmpty() ? controlName : words;
}

bool IsCheckBox(const DialogControl& control) {
    return control.name.starts_with("chk") || control.name.starts_with("opt");
}

}  // namespace

GenericDialog::GenericDialog(DialogModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(Spoken(objectName()));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* form = new QFormLayout;
    form->setSpacing(Unit(*this) * kGapUnits);
    column->addLayout(form);
    for (const DialogControl& control : model.Controls()) AddControl(*form, control);
    column->addStretch();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Press({"cmdOK", "cmdClose"}); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { Press({"cmdCancel", "cmdClose"}); });
}

void GenericDialog::AddControl(QFormLayout& form, const DialogControl& control) {
    const QString name = ToQt(control.name);
    QWidget* widget = nullptr;
    if (IsCheckBox(control)) {
        auto* box = new QCheckBox(Spoken(name), this);
        box->setChecked(control.text == "yes");
        connect(box, &QCheckBox::clicked, this, [this, name](bool on) {
            model_.SetControl(FromQt(name), on ? "yes" : "no");
            ShowControls();
        });
        form.addRow(QString(), widget = box);
    } else if (control.name.starts_with("lbl")) {
        auto* label = new QLabel(ToQt(control.text), this);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form.addRow(Spoken(name) + QLatin1Char(':'), widget = label);
    } else {
        auto* edit = new QLineEdit(ToQt(control.text), this);
        connect(edit, &QLineEdit::textEdited, this,
                [this, name](const QString& text) { model_.SetControl(FromQt(name), FromQt(text)); });
        form.addRow(Spoken(name) + QLatin1Char(':'), widget = edit);
    }
    widget->setObjectName(name);
    widget->setAccessibleName(Spoken(name));
}

void GenericDialog::Press(const std::vector<std::string>& buttons) {
    for (const std::string& button : buttons)
        if (model_.Press(button)) break;
    if (model_.IsOpen())
        ShowControls();
    else
        QDialog::accept();
}

void GenericDialog::ShowControls() {
    for (const DialogControl& control : model_.Controls()) {
        const QString name = ToQt(control.name);
        if (auto* box = findChild<QCheckBox*>(name)) box->setChecked(control.text == "yes");
        if (auto* label = findChild<QLabel*>(name)) label->setText(ToQt(control.text));
        auto* edit = findChild<QLineEdit*>(name);
        if (edit && edit->text() != ToQt(control.text)) edit->setText(ToQt(control.text));
    }
}

void GenericDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
