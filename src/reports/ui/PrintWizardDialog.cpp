#include "reports/ui/PrintWizardDialog.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/RecipeChooserView.h"

namespace tw {

PrintWizardDialog::PrintWizardDialog(PrintWizardModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Print Report"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    heading_ = new QLabel(this);
    heading_->setFont(BoldFont(heading_->font()));
    column->addWidget(heading_);
    pages_ = new QStackedWidget(this);
    pages_->setObjectName(QStringLiteral("SSTab1"));
    column->addWidget(pages_, 1);
    BuildUnits();
    BuildRecipes();
    BuildOutput();
    AddButtons(*column);
    resize(QSize(92, 56) * Unit(*this));
    ShowModel();
    FocusPage();
}

QWidget* PrintWizardDialog::AddPage() {
    auto* page = new QWidget(pages_);
    const int index = pages_->addWidget(page);
    page->setObjectName(QStringLiteral("FrameTab(%1)").arg(index));
    page->setAccessibleName(ToQt(PrintWizardModel::PageTitle(index)));
    return page;
}

void PrintWizardDialog::BuildUnits() {
    QWidget* page = AddPage();
    auto* column = new QVBoxLayout(page);
    SetSpacing(*column, *page, false);
    for (const ReportUnitGroup& units : ReportUnitGroups()) {
        auto* group = new QGroupBox(ToQt(units.caption), page);
        auto* row = new QHBoxLayout(group);
        auto* buttons = new QButtonGroup(group);
        for (const ReportUnitGroup::Option& option : units.options) {
            auto* button = new QRadioButton(ToQt(option.caption), group);
            button->setObjectName(ToQt(option.name));
            connect(button, &QRadioButton::clicked, this,
                    [this, name = option.name] { Enter(name.data(), QStringLiteral("yes")); });
            buttons->addButton(button);
            row->addWidget(button);
            row->addSpacing(Unit(*this));
        }
        row->addStretch();
        column->addWidget(group);
    }
    column->addStretch();
}

void PrintWizardDialog::BuildRecipes() {
    QWidget* page = AddPage();
    auto* column = new QVBoxLayout(page);
    SetSpacing(*column, *page, false);
    auto* chooser = new RecipeChooserView(model_.Chooser(), page);
    connect(chooser, &RecipeChooserView::SelectionChanged, this, &PrintWizardDialog::ShowModel);
    column->addWidget(chooser);
}

void PrintWizardDialog::BuildOutput() {
    QWidget* page = AddPage();
    auto* column = new QVBoxLayout(page);
    SetSpacing(*column, *page, false);
    auto* grid = new QGridLayout;
    grid->setSpacing(Unit(*this) * kGapUnits);
    grid->setColumnStretch(1, 1);
    auto* typeLabel = new QLabel(tr("File &Type:"), page);
    type_ = new QComboBox(page);
    type_->setObjectName(QStringLiteral("cmbFileType"));
    type_->setAccessibleName(tr("File type"));
    for (const std::string_view name : kReportTypeNames) type_->addItem(ToQt(name));
    connect(type_, &QComboBox::textActivated, this,
            [this](const QString& text) { Enter("cmbFileType", text); });
    typeLabel->setBuddy(type_);
    auto* typeRow = new QHBoxLayout;
    typeRow->addWidget(type_);
    AddButton("cmdConfigure", tr("&Configure"), page, *typeRow);
    typeRow->addStretch();
    grid->addWidget(typeLabel, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addLayout(typeRow, 0, 1);
    auto* fileLabel = new QLabel(tr("File &Name:"), page);
    file_ = new QLineEdit(page);
    file_->setObjectName(QStringLiteral("txtFileName"));
    file_->setAccessibleName(tr("File name"));
    connect(file_, &QLineEdit::textEdited, this, [this](const QString& text) { Enter("txtFileName", text); });
    fileLabel->setBuddy(file_);
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(file_, 1);
    AddButton("cmdBrowse", tr("B&rowse"), page, *fileRow);
    grid->addWidget(fileLabel, 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addLayout(fileRow, 1, 1);
    column->addLayout(grid);
    column->addStretch();
}

void PrintWizardDialog::AddButtons(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    row->addStretch();
    back_ = AddButton("cmdBack", tr("< &Back"), this, *row);
    next_ = AddButton("cmdNext", ToQt(model_.NextCaption()), this, *row);
    next_->setDefault(true);
    row->addSpacing(Unit(*this));
    AddButton("cmdCancel", tr("Cancel"), this, *row);
    column.addLayout(row);
}

QPushButton* PrintWizardDialog::AddButton(const char* name, const QString& caption, QWidget* parent,
                                          QBoxLayout& row) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, name] { Press(name); });
    row.addWidget(button);
    return button;
}

void PrintWizardDialog::Press(const char* button) {
    const int page = model_.CurrentPage();
    model_.Press(button);
    if (!model_.IsOpen()) {
        QDialog::accept();
        return;
    }
    ShowModel();
    // If creating the report has failed, the file name is to be corrected.
    if (page != model_.CurrentPage() || button == std::string_view("cmdNext")) FocusPage();
}

void PrintWizardDialog::Enter(const char* control, const QString& text) {
    model_.SetControl(control, FromQt(text));
    ShowModel();
}

void PrintWizardDialog::ShowModel() {
    const int page = model_.CurrentPage();
    pages_->setCurrentIndex(page);
    heading_->setText(tr("Step %1 of %2: %3")
                          .arg(page + 1)
                          .arg(PrintWizardModel::kPages)
                          .arg(ToQt(PrintWizardModel::PageTitle(page))));
    for (const ReportUnitGroup& group : ReportUnitGroups())
        for (const ReportUnitGroup::Option& option : group.options)
            findChild<QRadioButton*>(ToQt(option.name))
                ->setChecked(model_.ChosenUnits().IsChosen(option.name));
    type_->setCurrentIndex(static_cast<int>(model_.Type()));
    if (file_->text() != ToQt(model_.FileName())) file_->setText(ToQt(model_.FileName()));
    next_->setText(ToQt(model_.NextCaption()));
    next_->setEnabled(model_.IsEnabled("cmdNext"));
    back_->setEnabled(model_.IsEnabled("cmdBack"));
}

void PrintWizardDialog::FocusPage() {
    if (model_.CurrentPage() == PrintWizardModel::Output) {
        file_->setFocus();
        file_->selectAll();
    } else if (model_.CurrentPage() == PrintWizardModel::Recipes) {
        findChild<QWidget*>(QStringLiteral("treeRecipes"))->setFocus();
    } else {
        for (QRadioButton* option : findChildren<QRadioButton*>())
            if (option->isChecked()) return option->setFocus();
    }
}

void PrintWizardDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
