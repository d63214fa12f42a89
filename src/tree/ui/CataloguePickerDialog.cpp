#include "tree/ui/CataloguePickerDialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/GuidesLabel.h"
#include "tree/ui/ListFilterBox.h"
#include "tree/ui/ListPane.h"
#include "tree/ui/TreePane.h"

namespace tw {
namespace {

constexpr int kLeastWidthUnits = 60;
constexpr int kWidestUnits = 150;
constexpr int kHeightUnits = 60;
constexpr int kFolderUnits = 32;

}  // namespace

CataloguePickerDialog::CataloguePickerDialog(CataloguePickerModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
    // The window size is stored per object name: each catalogue has its own, because the columns differ.
    setObjectName(ToQt(model.FormName()) + QString::number(static_cast<int>(model.Type())));
    setWindowTitle(ToQt(model.Title()));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* splitter = new QSplitter(this);
    splitter->setObjectName(QStringLiteral("Splitter"));
    splitter->setAccessibleName(tr("Border between folders and styles"));
    splitter->setChildrenCollapsible(false);
    if (model.HasFolders()) AddFolders(*splitter);
    items_ = new ListPane(model.Items(), ToQt(model.Items().Columns().front().title), splitter);
    items_->setObjectName(QStringLiteral("lvItems"));
    items_->SetHint(model.HasFolders() ? tr("There are no styles in this folder.")
                                       : tr("There is nothing in this catalogue."));
    splitter->addWidget(items_);
    splitter->setStretchFactor(splitter->count() - 1, 1);
    splitter->setSizes({Unit(*this) * kFolderUnits, Unit(*this) * kWidestUnits});
    auto* filter = new ListFilterBox(model.Items(), *items_, this);
    column->addWidget(filter);
    column->addWidget(splitter, 1);
    auto* guides = new GuidesLabel(this);
    guides->Show(model.Guides());
    column->addWidget(guides);
    column->addLayout(MakeButtons());
    connect(items_, &ListPane::ChosenChanged, this, &CataloguePickerDialog::ShowButtons);
    connect(items_, &ListPane::RowsChanged, this, &CataloguePickerDialog::ShowButtons);
    connect(items_, &ListPane::RowActivated, this, [this] { Press("cmdOK"); });
    resize(FirstWidth(), Unit(*this) * kHeightUnits);
    // What is typed filters, so that Enter takes a row that has been seen.
    filter->setFocus();
    ShowButtons();
}

// Returns a width in which all columns are visible when the dialog opens.
int CataloguePickerDialog::FirstWidth() const {
    const int list = std::clamp(items_->WantedWidth() + Unit(*this) * 2 * kMarginUnits,
                                Unit(*this) * kLeastWidthUnits, Unit(*this) * kWidestUnits);
    return list + (model_.HasFolders() ? Unit(*this) * kFolderUnits : 0);
}

void CataloguePickerDialog::AddFolders(QSplitter& splitter) {
    auto* folders = new TreePane(model_.Folders(), tr("Style folders"), &splitter);
    folders->setObjectName(QStringLiteral("treeFolders"));
    folders->SetChoose([this](const std::string& key) { return model_.ChooseFolder(key); });
    connect(folders, &TreePane::ChosenChanged, this, &CataloguePickerDialog::ShowButtons);
    splitter.addWidget(folders);
}

QLayout* CataloguePickerDialog::MakeButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    const auto add = [&](const char* name, const QString& caption) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, name] { Press(name); });
        row->addWidget(button);
        return button;
    };
    view_ = add("cmdView", tr("&View..."));
    view_->setToolTip(tr("Shows the chosen entry to be read"));
    row->addStretch();
    ok_ = add("cmdOK", tr("OK"));
    ok_->setDefault(true);
    add("cmdCancel", tr("Cancel"));
    return row;
}

void CataloguePickerDialog::Press(const char* button) {
    model_.Press(button);
    ShowButtons();
    if (!model_.IsOpen()) QDialog::done(model_.Cancelled() ? Rejected : Accepted);
}

void CataloguePickerDialog::ShowButtons() {
    ok_->setEnabled(model_.OkEnabled());
    view_->setEnabled(model_.ViewEnabled());
}

void CataloguePickerDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
