// The layout of the three tabs of the options dialog.
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTabWidget>

#include "commands/PopupCommands.h"
#include "document/ui/FancyLabel.h"
#include "document/ui/PageBuilder.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/ColorButton.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ScrollingContents.h"
#include "shell/ui/IconStrip.h"
#include "shell/ui/OptionsDialog.h"
#include "shell/ui/UpDown.h"

namespace tw {
namespace {

constexpr int kExtractDigits = 12;
constexpr int kMinutesDigits = 4;
constexpr int kListCharacters = 14;

QVBoxLayout* ColumnOf(QWidget& page) {
    auto* column = new QVBoxLayout(&page);
    SetSpacing(*column, page, true);
    return column;
}

QHBoxLayout* RowIn(QWidget& page) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(page) * kGapUnits);
    return row;
}

void AddHeading(QBoxLayout& column, const QString& caption, QWidget* page) {
    if (column.count() > 0) column.addSpacing(Unit(*page) * (kGroupUnits - kGapUnits));
    column.addWidget(new FancyLabel(caption, page));
}

}  // namespace

QWidget* OptionsDialog::AddPage(const QString& caption) {
    auto* page = new QWidget(tabs_);
    page->setObjectName(QStringLiteral("ContainerBox(%1)").arg(tabs_->count()));
    page->setAccessibleName(caption);
    tabs_->addTab(new ScrollingContents(page, tabs_), caption);
    return page;
}

void OptionsDialog::BuildDefaultsPage() {
    QWidget* page = AddPage(tr("Brewhouse Defaults"));
    QVBoxLayout* column = ColumnOf(*page);
    auto* rows = new QGridLayout;
    rows->setSpacing(Unit(*this) * kGapUnits);
    rows->setHorizontalSpacing(Unit(*this) * 2 * kGapUnits);
    const auto list = [&](const char* name, const QString& caption) {
        AddRow(*rows, caption, List(name, caption, page));
    };
    const auto field = [&](const char* name, const QString& caption) {
        AddRow(*rows, caption, Field(name, caption, kExtractDigits, page));
    };
    list("cmbHopForm", tr("Hop &Form:"));
    const QString socks = tr("Hop &Socks?:");
    QCheckBox* box = Check("chkHopSocks", QString(), page);
    box->setAccessibleName(PlainCaption(socks));
    AddRow(*rows, socks, box);
    list("cmbIBUMethod", tr("&IBU Method:"));
    field("txtExtract", tr("Grain &Extraction Rate (%):"));
    field("txtHopExtraction", tr("&Hop Extraction Constant:"));
    field("txtBoilVol", tr("&Boil Volume (gal):"));
    field("txtTotalVol", tr("&Total Volume (gal):"));
    list("cmbWaterProfile", tr("Source &Water Profile:"));
    list("cmbPackaging", tr("&Packaging:"));
    rows->setColumnStretch(2, 1);
    column->addLayout(rows);
    column->addStretch();
}

void OptionsDialog::BuildSettingsPage() {
    QWidget* page = AddPage(tr("Settings"));
    QVBoxLayout* column = ColumnOf(*page);
    auto* row = new QGridLayout;
    row->setHorizontalSpacing(Unit(*this) * 2 * kGapUnits);
    const QString report = tr("Default &Report Type:");
    AddRow(*row, report, List("cmbReportType", report, page));
    row->setColumnStretch(2, 1);
    column->addLayout(row);
    column->addSpacing(Unit(*this));
    const auto check = [&](const char* name, const QString& caption, const QString& tip) {
        QCheckBox* box = Check(name, caption, page);
        box->setToolTip(tip);
        column->addWidget(box);
    };
    check("chkCopyHeaders", tr("Include Grid &Headers When Copying Entire Rows/Columns"),
          tr("The titles of the columns are copied with the cells, for a spreadsheet for example"));
    check("chkPasteBlockSize", tr("Allow &Pasting Into Grid With Mismatched Selection Size"),
          tr("Cells can be pasted even if another number of cells is selected than was copied"));
    column->addWidget(AutoSaveRow(page));
    check("chkAskNonUndoableChange", tr("Ask Before Applying a &Change That Cannot Be Undone"),
          tr("Asks before a change that Undo cannot take back, such as scaling a recipe"));
    check("chkUndoScaling", tr("Make Scaling a Recipe &Undoable, Without Asking"),
          tr("Resizing and adjusting a recipe becomes one step of Undo"));
    check("chkKeepTypedUnits", tr("&Keep the Units of Typed Amounts When Scaling"),
          tr("8 lb 4 oz doubled is 16 lb 8 oz; otherwise it becomes 16.5 lbs."));
    check("chkQuickPrint", tr("Do &Quick Print From Toolbar"),
          tr("The button of the toolbar prints at once, without asking for the printer"));
    column->addStretch();
}

QWidget* OptionsDialog::AutoSaveRow(QWidget* page) {
    auto* holder = new QWidget(page);
    auto* row = RowIn(*holder);
    row->setContentsMargins(0, 0, 0, 0);
    holder->setLayout(row);
    QCheckBox* autoSave = Check("chkAutoSave", tr("&Auto-Save Open Documents"), holder);
    autoSave->setToolTip(tr("Open recipes that have a name are saved by themselves"));
    row->addWidget(autoSave);
    every_ = new QLabel(tr("E&very"), holder);
    QLineEdit* minutes = Field("txtSaveInc", tr("Minutes between saves"), kMinutesDigits, holder);
    minutes->setFixedWidth(minutes->minimumWidth());
    every_->setBuddy(minutes);
    upDown_ = new UpDown(tr("One minute more"), tr("One minute less"), holder);
    upDown_->setObjectName(QStringLiteral("UpDown1"));
    upDown_->setAccessibleName(minutes->accessibleName());
    connect(upDown_, &UpDown::Stepped, this, [this](int by) {
        model_.StepSaveInc(by);
        ShowModel();
    });
    minutes_ = new QLabel(tr("minutes"), holder);
    row->addSpacing(Unit(*this));
    row->addWidget(every_);
    row->addWidget(minutes);
    row->addWidget(upDown_);
    row->addWidget(minutes_);
    row->addStretch();
    return holder;
}

void OptionsDialog::BuildAppearancePage() {
    QWidget* page = AddPage(tr("Appearance"));
    QVBoxLayout* column = ColumnOf(*page);
    AddIconChoices(page, *column);
    AddButtonChoices(page, *column);
    AddHeading(*column, tr("Recipes"), page);
    column->addWidget(Check("chkFigureStrip", tr("Show the &Figures Below the Tabs"), page));
    AddHeading(*column, tr("Grid Colors"), page);
    column->addWidget(ColorGroup(page));
    column->addStretch();
    colorMenu_ = new QMenu(this);
    QAction* reset = colorMenu_->addAction(tr(RowOf(PopupCommand::ResetColors).caption));
    reset->setObjectName(ToQt(RowOf(PopupCommand::ResetColors).name));
    connect(reset, &QAction::triggered, this, [this] { Press(NameOf(PopupCommand::ResetColors).c_str()); });
}

void OptionsDialog::AddIconChoices(QWidget* page, QBoxLayout& column) {
    AddHeading(column, tr("Toolbar Icons"), page);
    auto* group = new QButtonGroup(page);
    int style = 0;
    for (const QString& caption :
         {tr("Si&mple (16 color)"), tr("&High Color (256 color)"), tr("&XP Style (256 Color)")}) {
        auto* row = RowIn(*page);
        const QString name = QStringLiteral("optIcons(%1)").arg(style);
        AddOption(name, caption, page, *row);
        group->addButton(page->findChild<QRadioButton*>(name));
        row->addStretch();
        row->addWidget(new IconStrip(style++, tr("Sample of %1").arg(PlainCaption(caption)), page));
        column.addLayout(row);
    }
}

void OptionsDialog::AddButtonChoices(QWidget* page, QBoxLayout& column) {
    AddHeading(column, tr("Toolbar Buttons"), page);
    auto* group = new QButtonGroup(page);
    auto* row = RowIn(*page);
    int style = 0;
    for (const QString& caption : {tr("&Classic (3-D)"), tr("F&lat")}) {
        const QString name = QStringLiteral("optButtons(%1)").arg(style++);
        AddOption(name, caption, page, *row);
        group->addButton(page->findChild<QRadioButton*>(name));
        row->addSpacing(Unit(*page) * kGroupUnits);
    }
    row->addStretch();
    column.addLayout(row);
}

QWidget* OptionsDialog::ColorGroup(QWidget* page) {
    colorGroup_ = new QWidget(page);
    colorGroup_->setObjectName(QStringLiteral("GridColors"));
    colorGroup_->setAccessibleName(tr("Grid Colors"));
    auto* cells = new QGridLayout(colorGroup_);
    cells->setContentsMargins(0, 0, 0, 0);
    cells->setHorizontalSpacing(Unit(*this) * 2 * kGapUnits);
    const QString background = tr("Background"), foreground = tr("Foreground");
    cells->addWidget(new QLabel(background, colorGroup_), 0, 1, Qt::AlignHCenter);
    cells->addWidget(new QLabel(foreground, colorGroup_), 0, 2, Qt::AlignHCenter);
    const auto name = [](const QString& what, const QString& part) {
        return QStringLiteral("%1 %2").arg(what, part);
    };
    const QString calc = tr("Read-Only"), sum = tr("Total");
    cells->addWidget(new QLabel(calc, colorGroup_), 1, 0);
    cells->addWidget(Picture("picCalcBackground", name(calc, background), colorGroup_), 1, 1);
    cells->addWidget(Picture("picCalcForeground", name(calc, foreground), colorGroup_), 1, 2);
    cells->addWidget(calcSample_ = Sample("lblCalc", calc, colorGroup_), 1, 3);
    cells->addWidget(new QLabel(sum, colorGroup_), 2, 0);
    cells->addWidget(Picture("picSumBackground", name(sum, background), colorGroup_), 2, 1);
    cells->addWidget(Picture("picSumForeground", name(sum, foreground), colorGroup_), 2, 2);
    cells->addWidget(sumSample_ = Sample("lblSum", sum, colorGroup_), 2, 3);
    cells->setColumnStretch(4, 1);
    return colorGroup_;
}

void OptionsDialog::AddRow(QGridLayout& rows, const QString& caption, QWidget* control) {
    auto* label = new QLabel(caption, control->parentWidget());
    label->setBuddy(control);
    const int row = rows.rowCount();
    rows.addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    rows.addWidget(control, row, 1);
}

QComboBox* OptionsDialog::List(const char* name, const QString& caption, QWidget* page) {
    auto* list = new QComboBox(page);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(PlainCaption(caption));
    list->setMinimumContentsLength(kListCharacters);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const std::string& entry : model_.Entries(name)) list->addItem(ToQt(entry));
    connect(list, &QComboBox::textActivated, this,
            [this, list](const QString& text) { Enter(list->objectName(), text); });
    return list;
}

QLineEdit* OptionsDialog::Field(const char* name, const QString& caption, int digits, QWidget* page) {
    auto* field = new QLineEdit(page);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(PlainCaption(caption));
    field->setMinimumWidth(DigitsWidth(*field, digits) + Unit(*field) * 2 + 4);
    connect(field, &QLineEdit::textEdited, this,
            [this, field] { Enter(field->objectName(), TypedQuantity(*field)); });
    field->installEventFilter(this);
    fields_.insert(field->objectName(), field);
    return field;
}

QCheckBox* OptionsDialog::Check(const char* name, const QString& caption, QWidget* page) {
    auto* box = new QCheckBox(caption, page);
    box->setObjectName(QLatin1String(name));
    // ShowModel reaches only the boxes that the model lists.
    box->setChecked(model_.Text(name) == "yes");
    connect(box, &QCheckBox::clicked, this, [this, box](bool on) {
        Enter(box->objectName(), on ? QStringLiteral("yes") : QStringLiteral("no"));
    });
    return box;
}

void OptionsDialog::AddOption(const QString& name, const QString& caption, QWidget* page, QBoxLayout& row) {
    auto* option = new QRadioButton(caption, page);
    option->setObjectName(name);
    connect(option, &QRadioButton::clicked, this, [this, name] { Enter(name, QStringLiteral("yes")); });
    row.addWidget(option);
}

ColorButton* OptionsDialog::Picture(const char* name, const QString& caption, QWidget* page) {
    auto* picture = new ColorButton(caption, page);
    picture->setObjectName(QLatin1String(name));
    connect(picture, &ColorButton::clicked, this, [this, picture] { ChooseColor(picture->objectName()); });
    return picture;
}

QLabel* OptionsDialog::Sample(const char* name, const QString& caption, QWidget* page) {
    auto* sample = new QLabel(tr("Sample"), page);
    sample->setObjectName(QLatin1String(name));
    sample->setAccessibleName(tr("Sample of %1").arg(caption));
    sample->setAutoFillBackground(true);
    sample->setAlignment(Qt::AlignCenter);
    sample->setMargin(Unit(*page) / 2);
    return sample;
}

}  // namespace tw
