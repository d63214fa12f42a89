#include "tools/ui/ConvertUnitsDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/CloseButton.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/FocusMoves.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr int kBoxDigits = 16;

// The letters of the mnemonics, a string for each kind, in the order of the boxes.
constexpr const char* kMnemonics[kQuantityKinds] = {"POKG", "GQPCFBELM", "SD", "FCK", "PAKS"};

QString CaptionOf(QuantityKind kind, int box) {
    QString caption = ToQt(UnitsOf(kind)[static_cast<std::size_t>(box)]);
    const QChar letter = QLatin1Char(kMnemonics[static_cast<int>(kind)][box]);
    return caption.insert(caption.indexOf(letter, 0, Qt::CaseInsensitive), QLatin1Char('&'));
}

}  // namespace

ConvertUnitsDialog::ConvertUnitsDialog(ConvertUnitsModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Convert Units"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* rows = new QGridLayout;
    rows->setSpacing(Unit(*this) * kGapUnits);
    rows->setHorizontalSpacing(Unit(*this) * 2 * kGapUnits);
    rows->setColumnStretch(1, 1);
    AddTypes(*rows);
    AddBoxes(*rows);
    column->addLayout(rows);
    column->addStretch();
    QPushButton* close = AddCloseButton(*this, *column, model, "cmdClose");
    close->setText(tr("Close"));
    close->setAutoDefault(false);
    // The window has room for the kind with the most boxes, so that it never changes its size.
    resize(sizeHint());
    ShowKind();
    rows_[0].box->setFocus();
}

void ConvertUnitsDialog::AddTypes(QGridLayout& rows) {
    types_ = new QComboBox(this);
    types_->setObjectName(QStringLiteral("cmbType"));
    types_->setAccessibleName(tr("Unit Type"));
    for (int kind = 0; kind < kQuantityKinds; ++kind)
        types_->addItem(ToQt(KindName(static_cast<QuantityKind>(kind))));
    auto* label = new QLabel(tr("Unit &Type"), this);
    label->setObjectName(QStringLiteral("labelType"));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(types_);
    rows.addWidget(label, 0, 0);
    rows.addWidget(types_, 0, 1);
    rows.setRowMinimumHeight(1, Unit(*this));
    connect(types_, &QComboBox::currentIndexChanged, this, &ConvertUnitsDialog::ChooseType);
}

void ConvertUnitsDialog::AddBoxes(QGridLayout& rows) {
    int widest = 0;
    for (int kind = 0; kind < kQuantityKinds; ++kind)
        for (const std::string_view unit : UnitsOf(static_cast<QuantityKind>(kind)))
            widest = std::max(widest, fontMetrics().size(0, ToQt(unit)).width());
    rows.setColumnMinimumWidth(0, widest);
    for (int box = 0; box < ConvertUnitsModel::kBoxes; ++box) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QStringLiteral("Text%1").arg(box + 1));
        edit->setMinimumWidth(DigitsWidth(*edit, kBoxDigits));
        edit->installEventFilter(this);
        connect(edit, &QLineEdit::textEdited, this, [this, edit, box] {
            model_.TypeInto(box, FromQt(TypedQuantity(*edit)));
            ShowTexts();
        });
        auto* label = new QLabel(this);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setBuddy(edit);
        rows.addWidget(label, box + 2, 0);
        rows.addWidget(edit, box + 2, 1);
        rows_[static_cast<std::size_t>(box)] = {label, edit};
    }
}

void ConvertUnitsDialog::ChooseType(int index) {
    model_.SetKind(static_cast<QuantityKind>(index));
    ShowKind();
}

void ConvertUnitsDialog::ShowKind() {
    const QuantityKind kind = model_.Kind();
    types_->setCurrentIndex(static_cast<int>(kind));
    for (int box = 0; box < ConvertUnitsModel::kBoxes; ++box) {
        const Row& row = rows_[static_cast<std::size_t>(box)];
        const bool shown = box < model_.BoxCount();
        row.label->setVisible(shown);
        row.box->setVisible(shown);
        if (!shown) continue;
        row.label->setText(CaptionOf(kind, box));
        row.box->setAccessibleName(ToQt(model_.Label(box)));
    }
    ShowTexts();
}

void ConvertUnitsDialog::ShowTexts() {
    for (int box = 0; box < model_.BoxCount(); ++box) {
        QLineEdit* edit = rows_[static_cast<std::size_t>(box)].box;
        const QString text = ToQt(model_.Text(box));
        if (edit->text() != text) edit->setText(text);
    }
}

int ConvertUnitsDialog::BoxOf(const QObject* object) const {
    for (int box = 0; box < model_.BoxCount(); ++box)
        if (rows_[static_cast<std::size_t>(box)].box == object) return box;
    return -1;
}

bool ConvertUnitsDialog::eventFilter(QObject* object, QEvent* event) {
    const int box = BoxOf(object);
    if (box < 0 || !model_.IsOpen()) return QDialog::eventFilter(object, event);
    // A box that was not edited converts as well, from the rounded number that it shows.
    if (event->type() == QEvent::FocusOut && IsMove(*static_cast<QFocusEvent*>(event))) {
        model_.ConvertFromBox(box);
        ShowTexts();
    }
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return QDialog::eventFilter(object, event);
    model_.ConvertFromBox(box);
    ShowTexts();
    rows_[static_cast<std::size_t>(box)].box->selectAll();
    return true;
}

void ConvertUnitsDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
