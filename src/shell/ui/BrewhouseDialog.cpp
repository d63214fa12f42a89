#include "shell/ui/BrewhouseDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "document/ui/PageBuilder.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ScrollingContents.h"

namespace tw {
namespace {

constexpr int kBoxDigits = 12;
constexpr int kTextCharacters = 60;

struct CheckText {
    const char* name;
    const char* caption;
    const char* tip;
};
constexpr CheckText kChecks[] = {
    {"chkAppendRows", QT_TRANSLATE_NOOP("BrewhouseDialog", "New rows go to the &end of a grid"),
     QT_TRANSLATE_NOOP("BrewhouseDialog", "Otherwise they are inserted at the current row")},
    {"chkMaximize", QT_TRANSLATE_NOOP("BrewhouseDialog", "Recipes &fill the window"),
     QT_TRANSLATE_NOOP("BrewhouseDialog", "Otherwise they open as windows of their own size")},
    {"chkUndoScaling", QT_TRANSLATE_NOOP("BrewhouseDialog", "Resizing and adjusting a recipe can be &undone"),
     QT_TRANSLATE_NOOP("BrewhouseDialog", "Otherwise the program asks first, and empties the history")},
    {"chkKeepUnits",
     QT_TRANSLATE_NOOP("BrewhouseDialog", "Resizing and adjusting keeps the units you have &typed"),
     QT_TRANSLATE_NOOP("BrewhouseDialog", "Otherwise amounts become pounds and ounces")},
    {"chkDesktopColors", QT_TRANSLATE_NOOP("BrewhouseDialog", "Use the &colors of the desktop"),
     QT_TRANSLATE_NOOP("BrewhouseDialog", "Removes grid colors chosen in the options")},
};

}  // namespace

BrewhouseDialog::BrewhouseDialog(BrewhouseModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Your Brewhouse"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* contents = new QWidget(this);
    contents->setAccessibleName(windowTitle());
    auto* entries = new QVBoxLayout(contents);
    SetSpacing(*entries, *this, false);
    AddHeading(*entries);
    AddEntries(*entries);
    AddChecks(*entries);
    entries->addStretch(1);
    column->addWidget(new ScrollingContents(contents, this), 1);
    AddButtons(*column);
    ShowModel();
    findChild<QComboBox*>(QStringLiteral("cmbMethod"))->setFocus();
}

void BrewhouseDialog::AddHeading(QBoxLayout& column) {
    auto* heading = new QLabel(tr("How do you brew?"), this);
    heading->setObjectName(QStringLiteral("lblHeading"));
    heading->setFont(FigureFont(font()));
    auto* text = new QLabel(tr("New recipes begin with these figures. Each recipe can have its own, and the "
                               "Tools menu brings this page back."),
                            this);
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * kTextCharacters);
    column.addWidget(heading);
    column.addWidget(text);
    column.addSpacing(Unit(*this));
}

QComboBox* BrewhouseDialog::List(const char* name, const std::vector<std::string>& entries) {
    auto* list = new QComboBox(this);
    list->setObjectName(QLatin1String(name));
    for (const std::string& entry : entries) list->addItem(entry.empty() ? tr("(not known)") : ToQt(entry));
    connect(list, &QComboBox::activated, this, [this, list, &entries](int index) {
        Enter(list->objectName(), ToQt(entries[static_cast<std::size_t>(index)]));
    });
    return list;
}

QLineEdit* BrewhouseDialog::Box(const char* name, const QString& example) {
    auto* box = new QLineEdit(this);
    box->setObjectName(QLatin1String(name));
    box->setPlaceholderText(tr("e.g. %1").arg(example));
    box->setMinimumWidth(DigitsWidth(*this, kBoxDigits));
    connect(box, &QLineEdit::textEdited, this,
            [this, box] { Enter(box->objectName(), TypedQuantity(*box)); });
    return box;
}

void BrewhouseDialog::AddEntries(QBoxLayout& column) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Unit(*this) * kMarginUnits);
    grid->setVerticalSpacing(Unit(*this) * kGapUnits);
    const auto add = [&](const QString& caption, QWidget* control) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(control);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        control->setAccessibleName(PlainCaption(caption));
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(control, row, 1);
    };
    add(tr("You &brew:"), List("cmbMethod", BrewhouseModel::Methods()));
    add(tr("E&xtraction rate (%):"), Box("txtExtract", tr("72%")));
    add(tr("Examples &in:"), List("cmbUnits", BrewhouseModel::Units()));
    add(tr("Batch si&ze, into the fermenter:"), Box("txtTotalVol", tr("5 gal, 20 L")));
    add(tr("&Volume of the boil:"), Box("txtBoilVol", tr("6.5 gal, 26 L")));
    add(tr("Your &water:"), List("cmbWaterProfile", model_.Waters()));
    grid->setColumnStretch(1, 1);
    column.addLayout(grid);
    column.addSpacing(Unit(*this));
}

void BrewhouseDialog::AddChecks(QBoxLayout& column) {
    for (const CheckText& text : kChecks) {
        auto* check = new QCheckBox(tr(text.caption), this);
        check->setObjectName(QLatin1String(text.name));
        check->setToolTip(tr(text.tip));
        connect(check, &QCheckBox::toggled, this, [this, name = text.name](bool on) {
            Enter(QLatin1String(name), on ? QStringLiteral("yes") : QStringLiteral("no"));
        });
        column.addWidget(check);
    }
}

void BrewhouseDialog::AddButtons(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    row->addStretch();
    for (const auto& [name, caption] : {std::pair("cmdOK", tr("&OK")), std::pair("cmdSkip", tr("&Skip"))}) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        button->setDefault(std::string_view(name) == "cmdOK");
        button->setAutoDefault(button->isDefault());
        connect(button, &QPushButton::clicked, this, [this, name = name] { Press(name); });
        row->addWidget(button);
    }
    column.addSpacing(Unit(*this));
    column.addLayout(row);
}

void BrewhouseDialog::Enter(const QString& control, const QString& text) {
    model_.SetControl(FromQt(control), FromQt(text));
    ShowModel();
}

void BrewhouseDialog::Press(const char* button) {
    model_.Press(button);
    if (!model_.IsOpen()) {
        QDialog::accept();
        return;
    }
    ShowModel();
    if (auto* box = findChild<QLineEdit*>(ToQt(model_.Refused()))) {
        box->setFocus();
        box->selectAll();
    }
}

void BrewhouseDialog::ShowModel() {
    for (const DialogControl& control : model_.Controls()) {
        auto* widget = findChild<QWidget*>(ToQt(control.name));
        const QSignalBlocker blocker(widget);
        const QString text = ToQt(control.text);
        if (auto* box = qobject_cast<QLineEdit*>(widget)) {
            if (box->text() != text) box->setText(text);
        } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
            list->setCurrentIndex(text.isEmpty() ? 0 : list->findText(text));
        } else if (auto* check = qobject_cast<QCheckBox*>(widget)) {
            check->setChecked(control.text == "yes");
        }
    }
}

void BrewhouseDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
