#include "shell/ui/OptionsDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/ColorButton.h"
#include "platform/qt/FocusMoves.h"
#include "platform/qt/QtText.h"
#include "platform/qt/StoredColor.h"
#include "shell/ui/UpDown.h"

namespace tw {
namespace {

constexpr int kAppearanceTab = 2;

}  // namespace

OptionsDialog::OptionsDialog(OptionsModel& model, ColorChooser& colors, QWidget* parent)
    : QDialog(parent), model_(model), colors_(colors), tabs_(new QTabWidget(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Options"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    tabs_->setAccessibleName(tr("Groups of options"));
    column->addWidget(tabs_, 1);
    BuildDefaultsPage();
    BuildSettingsPage();
    BuildAppearancePage();
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    row->addStretch();
    QPushButton* ok = DialogButton("cmdOK", tr("&OK"));
    ok->setDefault(true);
    row->addWidget(ok);
    row->addWidget(DialogButton("cmdCancel", tr("Cancel")));
    column->addLayout(row);
    for (const auto& [keys, step] : {std::pair("Ctrl+PgDown", 1), std::pair("Ctrl+PgUp", -1)})
        connect(new QShortcut(QKeySequence(QLatin1String(keys)), this), &QShortcut::activated, this,
                [this, step = step] { tabs_->setCurrentIndex(tabs_->currentIndex() + step); });
    ShowModel();
    findChild<QComboBox*>(QStringLiteral("cmbHopForm"))->setFocus();
}

QPushButton* OptionsDialog::DialogButton(const char* name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    // A click leaves the focus in the field, so that OK can check that field and Cancel checks none.
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QPushButton::clicked, this, [this, name] { Press(name); });
    return button;
}

void OptionsDialog::Press(const char* button) {
    model_.Press(button);
    if (!model_.IsOpen()) {
        QDialog::accept();
        return;
    }
    ShowModel();
    if (!model_.FocusedField().empty()) GoBackTo(ToQt(model_.FocusedField()));
}

void OptionsDialog::Enter(const QString& control, const QString& text) {
    model_.SetControl(FromQt(control), FromQt(text));
    ShowModel();
}

void OptionsDialog::ChooseColor(const QString& picture) {
    const auto& button = *findChild<ColorButton*>(picture);
    const auto chosen = colors_.Choose(button.Shown(), button.accessibleName(), this);
    if (chosen) Enter(picture, QString::number(StoredColorOf(*chosen)));
}

void OptionsDialog::ShowModel() {
    for (const DialogControl& control : model_.Controls()) {
        auto* widget = findChild<QWidget*>(ToQt(control.name));
        const QSignalBlocker blocker(widget);
        const QString text = ToQt(control.text);
        if (auto* field = qobject_cast<QLineEdit*>(widget)) {
            if (field->text() != text) field->setText(text);
        } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
            // Every text is an entry of its list, even the empty text of a list without a choice.
            list->setCurrentIndex(list->findText(text));
        } else if (auto* color = qobject_cast<ColorButton*>(widget)) {
            const CellColors shown = ShownColors(control.name.starts_with("picCalc"));
            color->Show(control.name.ends_with("Background") ? shown.ground : shown.ink);
        } else if (auto* box = qobject_cast<QAbstractButton*>(widget)) {
            box->setChecked(control.text == "yes");
        }
    }
    for (QWidget* part : {static_cast<QWidget*>(fields_.value(QStringLiteral("txtSaveInc"))),
                          static_cast<QWidget*>(every_), static_cast<QWidget*>(minutes_)})
        part->setEnabled(model_.SaveIncEnabled());
    upDown_->setEnabled(model_.UpDownEnabled());
    ShowSample(*calcSample_, ShownColors(true));
    ShowSample(*sumSample_, ShownColors(false));
}

CellColors OptionsDialog::ShownColors(bool calculated) const {
    const char* const ground = calculated ? "picCalcBackground" : "picSumBackground";
    const char* const ink = calculated ? "picCalcForeground" : "picSumForeground";
    const CellColors chosen{ColorOf(model_.ChosenColor(ground)), ColorOf(model_.ChosenColor(ink))};
    return calculated ? CalculatedColors(chosen, palette()) : TotalColors(chosen, palette());
}

void OptionsDialog::ShowSample(QLabel& sample, const CellColors& shown) {
    QPalette colors = sample.palette();
    colors.setColor(QPalette::Window, shown.ground);
    colors.setColor(QPalette::WindowText, shown.ink);
    sample.setPalette(colors);
}

void OptionsDialog::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    // The tints depend on the desktop's colours.
    if (event->type() == QEvent::PaletteChange && sumSample_) ShowModel();
}

void OptionsDialog::FieldLeft() {
    if (model_.LeaveField()) return;
    ShowModel();
    GoBackTo(ToQt(model_.FocusedField()));
}

void OptionsDialog::GoBackTo(const QString& field) {
    refusing_ = true;
    QMetaObject::invokeMethod(
        this,
        [this, field] {
            refusing_ = false;
            QLineEdit* edit = fields_.value(field);
            for (int tab = 0; tab < tabs_->count(); ++tab)
                if (tabs_->widget(tab)->isAncestorOf(edit)) tabs_->setCurrentIndex(tab);
            edit->setFocus();
            edit->selectAll();
        },
        Qt::QueuedConnection);
}

bool OptionsDialog::eventFilter(QObject* object, QEvent* event) {
    auto* field = qobject_cast<QLineEdit*>(object);
    if (!field || !fields_.contains(field->objectName()) || refusing_ || !model_.IsOpen())
        return QDialog::eventFilter(object, event);
    if (event->type() == QEvent::FocusIn && IsMove(*static_cast<QFocusEvent*>(event)))
        model_.EnterField(FromQt(field->objectName()));
    if (event->type() == QEvent::FocusOut && IsMove(*static_cast<QFocusEvent*>(event))) FieldLeft();
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        model_.CheckField();
        ShowModel();
        field->selectAll();
        return true;
    }
    if (field->objectName() == QLatin1String("txtSaveInc") && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        emit upDown_->Stepped(key == Qt::Key_Up ? 1 : -1);
        return true;
    }
    return QDialog::eventFilter(object, event);
}

void OptionsDialog::contextMenuEvent(QContextMenuEvent* event) {
    if (tabs_->currentIndex() != kAppearanceTab) return;
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint center = colorGroup_->mapToGlobal(colorGroup_->rect().center());
    if (!byKey && !colorGroup_->rect().contains(colorGroup_->mapFromGlobal(event->globalPos()))) return;
    colorMenu_->popup(byKey ? center : event->globalPos());
}

void OptionsDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
