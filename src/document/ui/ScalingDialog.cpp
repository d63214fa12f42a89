#include "document/ui/ScalingDialog.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "platform/qt/Appearance.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

struct Texts {
    const char* title;
    const char* current;
    const char* entry;
    const char* example;
};

constexpr std::array<Texts, 4> kTexts{
    {{QT_TRANSLATE_NOOP("ScalingDialog", "Resize Recipe"),
      QT_TRANSLATE_NOOP("ScalingDialog", "Present size:"),
      QT_TRANSLATE_NOOP("ScalingDialog", "&New size (gal):"), "10 gal"},
     {QT_TRANSLATE_NOOP("ScalingDialog", "Adjust Strength"),
      QT_TRANSLATE_NOOP("ScalingDialog", "Present original gravity:"),
      QT_TRANSLATE_NOOP("ScalingDialog", "&New original gravity:"), "1.050"},
     {QT_TRANSLATE_NOOP("ScalingDialog", "Adjust Bitterness"),
      QT_TRANSLATE_NOOP("ScalingDialog", "Present bitterness:"),
      QT_TRANSLATE_NOOP("ScalingDialog", "&New bitterness (IBU):"), "30"},
     {QT_TRANSLATE_NOOP("ScalingDialog", "Adjust Carbonation"),
      QT_TRANSLATE_NOOP("ScalingDialog", "Present carbonation:"),
      QT_TRANSLATE_NOOP("ScalingDialog", "&New carbonation (volumes):"), "2.5"}}};

struct CheckText {
    std::string_view name;
    const char* caption;
};

constexpr std::array<CheckText, 3> kChecks{
    {{"chkScaleBV", QT_TRANSLATE_NOOP("ScalingDialog", "Scale the &boil volume")},
     {"chkPreserveIBU", QT_TRANSLATE_NOOP("ScalingDialog", "&Keep the bitterness")},
     {"chkKeepCarbonation", QT_TRANSLATE_NOOP("ScalingDialog", "Keep the ca&rbonation")}}};

constexpr int kEntryDigits = 14;

// True if the focus leaves the box for another control, false if it leaves for a menu or another program.
bool IsMove(const QFocusEvent& event) {
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason &&
           event.reason() != Qt::ActiveWindowFocusReason;
}

}  // namespace

ScalingDialog::ScalingDialog(ScalingModel& model, QWidget* parent)
    : QDialog(parent), model_(model), box_(new QLineEdit(this)) {
    model_.StartWithRemembered();
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr(kTexts[static_cast<std::size_t>(model.What())].title));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Unit(*this) * kMarginUnits);
    grid->setVerticalSpacing(Unit(*this) * kGapUnits);
    AddFigures(*grid);
    column->addLayout(grid);
    column->addSpacing(Unit(*this));
    AddChecks(*column);
    column->addStretch();
    AddButtons(*column);
    ShowEntry();
    box_->setFocus();
}

void ScalingDialog::AddFigures(QGridLayout& grid) {
    const Texts& texts = kTexts[static_cast<std::size_t>(model_.What())];
    auto* currentName = new QLabel(tr(texts.current), this);
    auto* current = new QLabel(ToQt(model_.Current()), this);
    current->setObjectName(ToQt(model_.LabelName()));
    current->setAccessibleName(tr(texts.current) + QLatin1Char(' ') + current->text());
    current->setTextFormat(Qt::PlainText);
    current->setFont(FigureFont(font()));
    auto* entryName = new QLabel(tr(texts.entry), this);
    entryName->setBuddy(box_);
    box_->setObjectName(ToQt(model_.BoxName()));
    box_->setAccessibleName(tr(texts.entry).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    box_->setPlaceholderText(tr("e.g. %1").arg(QLatin1String(texts.example)));
    box_->setMinimumWidth(DigitsWidth(*this, kEntryDigits));
    box_->installEventFilter(this);
    connect(box_, &QLineEdit::textEdited, this,
            [this] { model_.SetControl(model_.BoxName(), FromQt(TypedQuantity(*box_))); });
    int row = 0;
    for (const auto& [name, value] : {std::pair(currentName, static_cast<QWidget*>(current)),
                                      std::pair(entryName, static_cast<QWidget*>(box_))}) {
        name->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid.addWidget(name, row, 0);
        grid.addWidget(value, row++, 1);
    }
    grid.setColumnStretch(1, 1);
}

void ScalingDialog::AddChecks(QVBoxLayout& column) {
    const auto add = [&](std::string_view name, bool on) {
        const auto text = std::ranges::find(kChecks, name, &CheckText::name);
        if (text == kChecks.end()) return;
        auto* check = new QCheckBox(tr(text->caption), this);
        check->setObjectName(ToQt(text->name));
        check->setChecked(on);
        connect(check, &QCheckBox::toggled, this, [this, box = text->name](bool checked) {
            model_.SetControl(box, checked ? "yes" : "no");
            ShowEntry();
        });
        column.addWidget(check);
    };
    for (const DialogControl& control : model_.Controls()) add(control.name, control.text == "yes");
    if (const std::optional<bool> keep = model_.KeepCarbonation()) add("chkKeepCarbonation", *keep);
}

void ScalingDialog::AddButtons(QVBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    row->addStretch();
    for (const auto& [name, caption] :
         {std::pair("OKButton", tr("&OK")), std::pair("CancelButton", tr("&Cancel"))}) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        // A click leaves the focus in the box, so that Cancel does not check the entry.
        button->setFocusPolicy(Qt::TabFocus);
        button->setDefault(std::string_view(name) == "OKButton");
        connect(button, &QPushButton::clicked, this, [this, name = name] { Press(name); });
        row->addWidget(button);
    }
    column.addSpacing(Unit(*this));
    column.addLayout(row);
}

void ScalingDialog::Press(const char* button) {
    refusing_ = true;
    model_.Press(button);
    refusing_ = false;
    if (!model_.IsOpen()) {
        QDialog::accept();
        return;
    }
    ShowEntry();
    box_->setFocus();
    box_->selectAll();
}

void ScalingDialog::ShowEntry() {
    const QString text = ToQt(model_.Entry());
    if (box_->text() != text) box_->setText(text);
}

// Moves the focus back to the box as soon as the present event has been handled.
void ScalingDialog::GoBack() {
    refusing_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            refusing_ = false;
            box_->setFocus();
            box_->selectAll();
        },
        Qt::QueuedConnection);
}

bool ScalingDialog::eventFilter(QObject* object, QEvent* event) {
    const bool leaves = object == box_ && event->type() == QEvent::FocusOut && !refusing_ &&
                        model_.IsOpen() && IsMove(*static_cast<QFocusEvent*>(event));
    if (leaves && !model_.LeaveBox()) {
        ShowEntry();
        GoBack();
    }
    return QDialog::eventFilter(object, event);
}

void ScalingDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
