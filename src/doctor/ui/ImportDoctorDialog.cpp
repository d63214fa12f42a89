#include "doctor/ui/ImportDoctorDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include "doctor/ui/DoctorFileTree.h"
#include "doctor/ui/FindingTree.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/ElidedLabel.h"
#include "platform/qt/FileDrop.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr QSize kUsualUnits(130, 84);
constexpr int kLeastListUnits = 11;
constexpr int kFolderDigits = 18;

// Adds a list below a row that names it; the rest of the row is beside.
QWidget* Headed(QLabel& heading, QWidget& beside, QWidget& list) {
    auto* part = new QWidget;
    heading.setParent(part);
    beside.setParent(part);
    auto* column = new QVBoxLayout(part);
    SetSpacing(*column, *part, false);
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*part) * kGapUnits);
    row->addWidget(&heading);
    row->addWidget(&beside, 1);
    column->addLayout(row);
    column->addWidget(&list, 1);
    heading.setBuddy(&list);
    list.setMinimumHeight(Unit(*part) * kLeastListUnits);
    return part;
}

}  // namespace

ImportDoctorDialog::ImportDoctorDialog(ImportDoctorModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Import from Other Programs"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    column->addWidget(MakeLists(), 1);
    AddOptions(*column);
    column->addSpacing(Unit(*this) * kGapUnits);
    AddButtons(*column);
    connect(files_, &DoctorFileTree::Changed, this, &ImportDoctorDialog::ShowSelected);
    new FileDrop(*this, [this](const QStringList& files) {
        std::vector<std::string> paths;
        for (const QString& file : files) paths.push_back(FromQt(file));
        model_.AddFiles(paths);
        ShowAll();
    });
    resize(kUsualUnits * Unit(*this));
    ShowAll();
    files_->setFocus();
}

QWidget* ImportDoctorDialog::MakeLists() {
    auto* lists = new QSplitter(Qt::Vertical, this);
    lists->setChildrenCollapsible(false);
    auto* figures = new QLabel(tr("Figures: stated in the file / calculated here"));
    figures->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    files_ = new DoctorFileTree(model_, lists);
    lists->addWidget(Headed(*new QLabel(tr("Fi&les and recipes:")), *figures, *files_));
    selection_ = new ElidedLabel(lists);
    selection_->setObjectName(QStringLiteral("lblFindings"));
    findings_ = new FindingTree(lists);
    lists->addWidget(Headed(*new QLabel(tr("Fin&dings:")), *selection_, *findings_));
    lists->setStretchFactor(0, 3);
    lists->setStretchFactor(1, 2);
    return lists;
}

QCheckBox* ImportDoctorDialog::MakeBox(const char* name, const QString& text, const QString& tip) {
    auto* box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(tip);
    connect(box, &QCheckBox::clicked, this, [this, box, name](bool on) {
        model_.SetControl(name, on ? "yes" : "no");
        ShowAll();
    });
    boxes_.push_back(box);
    return box;
}

// Column by column, as the tab key goes.
void ImportDoctorDialog::AddOptions(QBoxLayout& column) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Unit(*this) * kGapUnits);
    grid->setVerticalSpacing(Unit(*this) * kGapUnits);
    grid->setColumnStretch(2, 1);
    grid->addWidget(MakeBox("chkCatalogue", tr("&Take unknown figures from the catalogue"),
                            tr("Fills what the file leaves open; what it states stays")),
                    0, 0);
    grid->addWidget(MakeBox("chkGrams", tr("Read amounts as &grams"),
                            tr("For recipes whose amounts are impossible in kilograms")),
                    1, 0);
    grid->addWidget(
        MakeBox("chkEbc", tr("&Colors are EBC"), tr("For recipes whose colors look like EBC, not Lovibond")),
        2, 0);
    grid->addWidget(MakeBox("chkGravity", tr("&Extraction for the stated gravity"),
                            tr("For recipes whose gravity differs from the stated one")),
                    0, 1);
    grid->addWidget(MakeBox("chkBitterness", tr("Constant for the stated &bitterness"),
                            tr("For recipes whose bitterness differs from the stated one")),
                    1, 1);
    grid->addWidget(MakeBox("chkAddStyles", tr("Add new &styles"),
                            tr("Adds the styles of the files that the catalogue does not have")),
                    2, 1);
    grid->addLayout(MakeUnits(), 0, 2);
    grid->addLayout(MakeFolder(), 1, 2);
    grid->addWidget(MakeBox("chkAddIngredients", tr("Add &new ingredients"),
                            tr("Adds the ingredients of the files that the catalogue does not have")),
                    2, 2);
    column.addLayout(grid);
}

QBoxLayout* ImportDoctorDialog::MakeUnits() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    auto* label = new QLabel(tr("&Units:"), this);
    units_ = new QComboBox(this);
    units_->setObjectName(QStringLiteral("cmbUnits"));
    for (const std::string& word : ImportDoctorModel::UnitWords()) units_->addItem(ToQt(word));
    label->setBuddy(units_);
    connect(units_, &QComboBox::activated, this, [this] {
        model_.SetControl("cmbUnits", FromQt(units_->currentText()));
        ShowAll();
    });
    row->addWidget(label);
    row->addWidget(units_);
    row->addStretch();
    return row;
}

QBoxLayout* ImportDoctorDialog::MakeFolder() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    folder_ = new ElidedLabel(this);
    folder_->setObjectName(QStringLiteral("lblFolder"));
    folder_->setMinimumWidth(DigitsWidth(*this, kFolderDigits));
    row->addWidget(MakeButton("cmdFolder", tr("F&older...")));
    row->addWidget(folder_, 1);
    return row;
}

QPushButton* ImportDoctorDialog::MakeButton(const char* name, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, name] { Press(name); });
    buttons_.push_back(button);
    return button;
}

void ImportDoctorDialog::AddButtons(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    row->addWidget(MakeButton("cmdAddFiles", tr("Add &Files...")));
    row->addWidget(MakeButton("cmdReport", tr("Save &Report...")));
    row->addStretch();
    QPushButton* const import = MakeButton("cmdImport", tr("&Import"));
    import->setDefault(true);
    row->addWidget(import);
    row->addWidget(MakeButton("cmdCancel", tr("Cancel")));
    column.addLayout(row);
}

void ImportDoctorDialog::Press(const char* button) {
    model_.Press(button);
    if (!model_.IsOpen()) return QDialog::accept();
    ShowAll();
}

void ImportDoctorDialog::ShowAll() {
    files_->ShowFiles();
    units_->setCurrentIndex(static_cast<int>(model_.Options().units));
    folder_->SetFullText(ToQt(model_.FolderName()));
    folder_->setAccessibleName(tr("Folder: %1").arg(ToQt(model_.FolderName())));
    ShowSelected();
}

void ImportDoctorDialog::ShowSelected() {
    selection_->SetFullText(ToQt(model_.SelectionText()));
    findings_->ShowFindings(model_.SelectedFindings());
    findings_->setEnabled(findings_->topLevelItemCount() > 0);
    for (QCheckBox* const box : boxes_) {
        const std::string name = FromQt(box->objectName());
        box->setEnabled(model_.IsOffered(name));
        box->setChecked(model_.Text(name) == "yes");
    }
    for (QPushButton* const button : buttons_)
        button->setEnabled(model_.IsEnabled(FromQt(button->objectName())));
    buttons_.back()->setText(model_.HasImported() ? tr("Close") : tr("Cancel"));
}

void ImportDoctorDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
