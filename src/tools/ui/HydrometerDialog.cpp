#include "tools/ui/HydrometerDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "document/ui/PageBuilder.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/CloseButton.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/FocusMoves.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr int kEntryDigits = 18;
constexpr int kResultDigits = 22;

}  // namespace

HydrometerDialog::HydrometerDialog(HydrometerModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Hydrometer Calibration"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* rows = new QGridLayout;
    rows->setSpacing(Unit(*this) * kGapUnits);
    rows->setHorizontalSpacing(Unit(*this) * 2 * kGapUnits);
    rows->setColumnStretch(1, 1);
    AddRow(*rows, tr("Hydrometer &Reading (SG):"), Entry("txtActRead", tr("1.050 or 12 P")));
    AddRow(*rows, tr("&Sample Temperature (F):"), Entry("txtActTemp", tr("80 F or 27 C")));
    AddRow(*rows, tr("&Calibration Temperature (F):"), Calibration());
    rows->setRowMinimumHeight(rows->rowCount(), Unit(*this));
    AddRow(*rows, tr("Corrected &Gravity:"), Result());
    column->addLayout(rows);
    column->addStretch();
    QPushButton* close = AddCloseButton(*this, *column, model, "cmdEscape");
    close->setText(tr("Close"));
    close->setAutoDefault(false);
    // A click closes without checking the box that has the focus.
    close->setFocusPolicy(Qt::TabFocus);
    LookComputed();
    EditOf(QStringLiteral("txtActRead"))->setFocus();
}

void HydrometerDialog::AddRow(QGridLayout& rows, const QString& caption, QWidget* control) {
    control->setAccessibleName(PlainCaption(caption));
    auto* label = new QLabel(caption, this);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(control);
    const int row = rows.rowCount();
    rows.addWidget(label, row, 0);
    rows.addWidget(control, row, 1);
}

QLineEdit* HydrometerDialog::Entry(const char* name, const QString& hint) {
    auto* entry = new QLineEdit(ToQt(model_.Text(name)), this);
    entry->setObjectName(QLatin1String(name));
    entry->setPlaceholderText(hint);
    entry->setMinimumWidth(DigitsWidth(*entry, kEntryDigits));
    entry->installEventFilter(this);
    connect(entry, &QLineEdit::textEdited, this,
            [this, entry, name] { model_.TypeInto(name, FromQt(TypedQuantity(*entry))); });
    return entry;
}

QComboBox* HydrometerDialog::Calibration() {
    auto* list = new QComboBox(this);
    list->setObjectName(QStringLiteral("cmbCalTemp"));
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    // A typed text is not completed: "6" does not mean "60.0 F (15.6 C)".
    list->setCompleter(nullptr);
    for (const std::string& entry : HydrometerModel::CalibrationEntries()) list->addItem(ToQt(entry));
    list->setCurrentText(ToQt(model_.Text("cmbCalTemp")));
    list->lineEdit()->setAccessibleName(tr("Calibration Temperature (F)"));
    list->installEventFilter(this);
    connect(list, &QComboBox::editTextChanged, this,
            [this, list] { model_.TypeInto("cmbCalTemp", FromQt(TypedQuantity(*list->lineEdit()))); });
    connect(list, &QComboBox::activated, this, &HydrometerDialog::Update);
    return list;
}

QLineEdit* HydrometerDialog::Result() {
    auto* result = new QLineEdit(ToQt(model_.Text("txtCalRead")), this);
    result->setObjectName(QStringLiteral("txtCalRead"));
    result->setReadOnly(true);
    result->setFont(FigureFont(font()));
    result->setMinimumWidth(DigitsWidth(*result, kResultDigits));
    return result;
}

QLineEdit* HydrometerDialog::EditOf(const QString& name) const {
    if (auto* list = findChild<QComboBox*>(name)) return list->lineEdit();
    return findChild<QLineEdit*>(name);
}

void HydrometerDialog::Update() {
    const std::string refused = model_.UpdateCorrection();
    EditOf(QStringLiteral("txtCalRead"))->setText(ToQt(model_.Text("txtCalRead")));
    if (!refused.empty()) GoBackTo(ToQt(refused));
}

void HydrometerDialog::GoBackTo(const QString& name) {
    refusing_ = true;
    QMetaObject::invokeMethod(
        this,
        [this, name] {
            QLineEdit* entry = EditOf(name);
            entry->setFocus();
            entry->selectAll();
            refusing_ = false;
        },
        Qt::QueuedConnection);
}

bool HydrometerDialog::eventFilter(QObject* object, QEvent* event) {
    if (refusing_ || !model_.IsOpen()) return QDialog::eventFilter(object, event);
    if (event->type() == QEvent::FocusOut && IsMove(*static_cast<QFocusEvent*>(event))) Update();
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return QDialog::eventFilter(object, event);
    Update();
    EditOf(object->objectName())->selectAll();
    return true;
}

// The result cannot be typed into, so it has the background of the window.
void HydrometerDialog::LookComputed() {
    QLineEdit* result = EditOf(QStringLiteral("txtCalRead"));
    QPalette colors = result->palette();
    const QColor ground = palette().color(QPalette::Window);
    if (colors.color(QPalette::Base) == ground) return;
    colors.setColor(QPalette::Base, ground);
    result->setPalette(colors);
}

void HydrometerDialog::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) LookComputed();
}

void HydrometerDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
