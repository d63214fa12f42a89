#include "reports/ui/ChooseFontDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/qt/Appearance.h"
#include "platform/qt/ColorButton.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/QtText.h"
#include "platform/qt/StoredColor.h"
#include "reports/ui/ReportFace.h"

namespace tw {
namespace {

QString Plain(QString caption) {
    return caption.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
}

}  // namespace

ChooseFontDialog::ChooseFontDialog(ChooseFontModel& model, ColorChooser& colors, QWidget* parent)
    : QDialog(parent), model_(model), colors_(colors) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Choose Font"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* grid = new QGridLayout;
    grid->setSpacing(Unit(*this) * kGapUnits);
    grid->setColumnStretch(1, 1);
    AddLists(*grid);
    AddChecks(*grid);
    AddColors(*grid);
    AddSample(*grid);
    column->addLayout(grid, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setObjectName(QStringLiteral("cmdOK"));
    ok_->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Press("cmdOK"); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { Press("cmdCancel"); });
    column->addWidget(buttons);
    ShowModel();
    findChild<QComboBox*>(QStringLiteral("cmbFontName"))->setFocus();
}

void ChooseFontDialog::AddList(QComboBox& list, const char* name, const QString& caption, QGridLayout& grid,
                               int row) {
    list.setObjectName(QLatin1String(name));
    list.setAccessibleName(Plain(caption));
    list.setEditable(true);
    list.setInsertPolicy(QComboBox::NoInsert);
    list.lineEdit()->setAccessibleName(Plain(caption));
    auto* label = new QLabel(caption, this);
    label->setBuddy(&list);
    grid.addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(&list, row, 1);
    connect(&list, &QComboBox::editTextChanged, this, [this, &list, name](const QString& text) {
        const bool size = std::string_view(name) == "cmbFontSize";
        Enter(name, size ? TypedQuantity(*list.lineEdit()) : text);
    });
}

void ChooseFontDialog::AddLists(QGridLayout& grid) {
    auto* names = new QComboBox(this);
    names->addItems(QFontDatabase::families());
    names->setMinimumContentsLength(24);
    AddList(*names, "cmbFontName", tr("&Font:"), grid, 0);
    auto* sizes = new QComboBox(this);
    for (const std::string& size : ChooseFontModel::Sizes()) sizes->addItem(ToQt(size));
    AddList(*sizes, "cmbFontSize", tr("Si&ze:"), grid, 1);
}

void ChooseFontDialog::AddChecks(QGridLayout& grid) {
    auto* checks = new QGridLayout;
    checks->setSpacing(Unit(*this) * kGapUnits);
    int place = 0;
    for (const auto& [name, caption] :
         {std::pair("chkBold", tr("&Bold")), std::pair("chkItalic", tr("&Italic")),
          std::pair("chkUnderline", tr("&Underline")), std::pair("chkStrikethru", tr("&Strikethrough"))}) {
        auto* box = new QCheckBox(caption, this);
        box->setObjectName(QLatin1String(name));
        connect(box, &QCheckBox::clicked, this, [this, name = name](bool on) {
            Enter(name, on ? QStringLiteral("yes") : QStringLiteral("no"));
        });
        checks->addWidget(box, place / 2, place % 2);
        ++place;
    }
    grid.addLayout(checks, 2, 1);
}

void ChooseFontDialog::AddColors(QGridLayout& grid) {
    int row = 3;
    for (const auto& [name, caption, shown] :
         {std::tuple("picFontColor", tr("&Color:"), true),
          std::tuple("picFontBColor", tr("Back&ground:"), model_.ShowFontBColor())}) {
        if (!shown) continue;
        auto* picture = new ColorButton(Plain(caption), this);
        picture->setObjectName(QLatin1String(name));
        connect(picture, &ColorButton::clicked, this, [this, picture] { ChooseColor(*picture); });
        auto* label = new QLabel(caption, this);
        label->setBuddy(picture);
        grid.addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
        grid.addWidget(picture, row++, 1);
    }
}

void ChooseFontDialog::AddSample(QGridLayout& grid) {
    auto* label = new QLabel(tr("S&ample:"), this);
    sample_ = new QLineEdit(this);
    sample_->setObjectName(QStringLiteral("txtSample"));
    sample_->setAccessibleName(tr("Sample"));
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setMinimumHeight(Unit(*this) * 8);
    sample_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(sample_, &QLineEdit::textEdited, this, [this](const QString& text) { Enter("txtSample", text); });
    label->setBuddy(sample_);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(sample_, row, 1);
    grid.setRowStretch(row, 1);
}

void ChooseFontDialog::Enter(const char* control, const QString& text) {
    model_.SetControl(control, FromQt(text));
    ShowModel();
}

void ChooseFontDialog::ChooseColor(ColorButton& button) {
    const auto chosen = colors_.Choose(button.Shown(), button.accessibleName(), this);
    if (chosen) Enter(qPrintable(button.objectName()), QString::number(StoredColorOf(*chosen)));
}

void ChooseFontDialog::ShowModel() {
    for (const DialogControl& control : model_.Controls()) {
        auto* widget = findChild<QWidget*>(ToQt(control.name));
        if (!widget) continue;
        const QSignalBlocker blocker(widget);
        const QString text = ToQt(control.text);
        if (auto* list = qobject_cast<QComboBox*>(widget)) {
            if (list->currentText() != text) list->setEditText(text);
        } else if (auto* box = qobject_cast<QCheckBox*>(widget)) {
            box->setChecked(control.text == "yes");
        } else if (auto* color = qobject_cast<ColorButton*>(widget)) {
            color->Show(ColorOf(text.toInt()));
        } else if (sample_->text() != text) {
            sample_->setText(text);
        }
    }
    ShowFace(*sample_, model_.FontFace(), model_.BGColor(), model_.ShowFontBColor());
    ok_->setEnabled(model_.CanAccept());
}

void ChooseFontDialog::Press(const char* button) {
    model_.Press(button);
    if (!model_.IsOpen()) QDialog::accept();
}

void ChooseFontDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
