#include "reports/ui/PrintFormatDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/qt/Appearance.h"
#include "platform/qt/ColorButton.h"
#include "platform/qt/QtText.h"
#include "platform/qt/StoredColor.h"
#include "reports/ui/ReportFace.h"

namespace tw {
namespace {

constexpr int kWidthDigits = 6;

// The line above the options, which explains the type of report.
struct Intro {
    const char* name;
    QString text;
};

Intro IntroOf(ReportType type) {
    if (type == ReportType::Html)
        return {"lblHTML", PrintFormatDialog::tr("A page for a web browser, with fonts and colors.")};
    if (type == ReportType::RichText)
        return {"lblRTF", PrintFormatDialog::tr("A document for a word processor, with fonts and colors.")};
    return {"lblTxt", PrintFormatDialog::tr("Plain text, wrapped to a width in characters.")};
}

}  // namespace

PrintFormatDialog::PrintFormatDialog(PrintFormatModel& model, ColorChooser& colors, QWidget* parent)
    : QDialog(parent), model_(model), colors_(colors) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Title()));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    const Intro intro = IntroOf(model.Mode());
    auto* label = new QLabel(intro.text, this);
    label->setObjectName(QLatin1String(intro.name));
    column->addWidget(label);
    column->addSpacing(Unit(*this));
    auto* grid = new QGridLayout;
    grid->setSpacing(Unit(*this) * kGapUnits);
    grid->setColumnStretch(1, 1);
    if (model.Mode() == ReportType::Text) AddWidth(*grid);
    if (model.Mode() == ReportType::Html) AddGround(*grid);
    if (model.Mode() != ReportType::Text) {
        AddFont(*grid, "pbTitles", "cmdTitles", tr("&Titles..."));
        AddFont(*grid, "pbLabels", "cmdLabels", tr("&Labels..."));
        AddFont(*grid, "pbText", "cmdText", tr("Te&xt..."));
    }
    AddSwitch(*grid, "chkOne", ToQt(model.OneCaption()));
    if (model.Mode() == ReportType::Text) AddSwitch(*grid, "chkTwo", tr("&Append to an Existing File"));
    column->addLayout(grid);
    column->addStretch();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Press("cmdOK"); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { Press("cmdCancel"); });
    column->addWidget(buttons);
    ShowModel();
    if (auto* width = findChild<QLineEdit*>(QStringLiteral("txtCols"))) width->selectAll();
}

void PrintFormatDialog::AddWidth(QGridLayout& grid) {
    auto* label = new QLabel(tr("&Width in Columns:"), this);
    auto* box = new QLineEdit(this);
    box->setObjectName(QStringLiteral("txtCols"));
    box->setAccessibleName(tr("Width in columns"));
    box->setFixedWidth(DigitsWidth(*this, kWidthDigits) + Unit(*this) * 2);
    connect(box, &QLineEdit::textEdited, this, [this](const QString& text) { Enter("txtCols", text); });
    label->setBuddy(box);
    grid.addWidget(label, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(box, 0, 1);
}

void PrintFormatDialog::AddGround(QGridLayout& grid) {
    auto* button = new QPushButton(tr("Bac&kground..."), this);
    button->setObjectName(QStringLiteral("cmdBGColor"));
    button->setAutoDefault(false);
    auto* box = new ColorButton(tr("Background"), this);
    box->setObjectName(QStringLiteral("pbBGColor"));
    const auto choose = [this, box] {
        const auto chosen = colors_.Choose(box->Shown(), box->accessibleName(), this);
        if (chosen) Enter("pbBGColor", QString::number(StoredColorOf(*chosen)));
    };
    connect(button, &QPushButton::clicked, this, choose);
    connect(box, &ColorButton::clicked, this, choose);
    grid.addWidget(button, 0, 0);
    grid.addWidget(box, 0, 1);
}

void PrintFormatDialog::AddFont(QGridLayout& grid, const char* box, const char* button,
                                const QString& caption) {
    auto* choose = new QPushButton(caption, this);
    choose->setObjectName(QLatin1String(button));
    choose->setAutoDefault(false);
    choose->setToolTip(tr("Chooses the font and its colors"));
    connect(choose, &QPushButton::clicked, this, [this, button] { Press(button); });
    auto* sample = new QLabel(this);
    sample->setObjectName(QLatin1String(box));
    sample->setAutoFillBackground(true);
    sample->setMargin(Unit(*this) / 2);
    const int row = grid.rowCount();
    grid.addWidget(choose, row, 0);
    grid.addWidget(sample, row, 1);
}

void PrintFormatDialog::AddSwitch(QGridLayout& grid, const char* name, const QString& caption) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(QLatin1String(name));
    connect(box, &QCheckBox::clicked, this,
            [this, name](bool on) { Enter(name, on ? QStringLiteral("yes") : QStringLiteral("no")); });
    grid.addWidget(box, grid.rowCount(), 0, 1, 2);
}

void PrintFormatDialog::Press(const char* button) {
    model_.Press(button);
    if (!model_.IsOpen())
        QDialog::accept();
    else
        ShowModel();
}

void PrintFormatDialog::Enter(const char* control, const QString& text) {
    model_.SetControl(control, FromQt(text));
    ShowModel();
}

void PrintFormatDialog::ShowModel() {
    const ReportOptions& options = model_.Options();
    const bool ownGround = model_.Mode() == ReportType::RichText;
    for (const auto& [name, font] :
         {std::pair("pbTitles", &options.title), std::pair("pbLabels", &options.label),
          std::pair("pbText", &options.text)})
        if (auto* sample = findChild<QLabel*>(QLatin1String(name)))
            ShowFace(*sample, *font, options.bgColor, ownGround);
    for (const DialogControl& control : model_.Controls()) {
        auto* widget = findChild<QWidget*>(ToQt(control.name));
        if (!widget) continue;
        const QString text = ToQt(control.text);
        if (auto* field = qobject_cast<QLineEdit*>(widget)) {
            if (field->text() != text) field->setText(text);
        } else if (auto* box = qobject_cast<QCheckBox*>(widget)) {
            box->setChecked(control.text == "yes");
        } else if (auto* color = qobject_cast<ColorButton*>(widget)) {
            color->Show(ColorOf(options.bgColor));
        } else if (auto* sample = qobject_cast<QLabel*>(widget)) {
            sample->setText(text);
        }
    }
}

void PrintFormatDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
