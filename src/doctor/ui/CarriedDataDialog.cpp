#include "doctor/ui/CarriedDataDialog.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/ElidedLabel.h"
#include "platform/qt/QtText.h"
#include "tree/ui/NameTip.h"

namespace tw {
namespace {

constexpr int kFieldRole = Qt::UserRole;
constexpr QSize kUsualUnits(72, 52);
constexpr int kNameUnits = 30;  // the width of the first column

// Returns the date in the form of the reader's desktop.
std::string LocalDate(const DateTime& when) {
    const QDate date(when.year, when.month, when.day);
    return FromQt(QLocale().toString(date, QLocale::ShortFormat));
}

}  // namespace

CarriedDataDialog::CarriedDataDialog(CarriedDataModel& model, QWidget* parent)
    : QDialog(parent), model_(model), source_(new ElidedLabel(this)), tree_(new QTreeWidget(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Carried Data - %1").arg(ToQt(model.Recipe())));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    source_->setObjectName(QStringLiteral("lblSource"));
    column->addWidget(source_);
    MakeTree();
    column->addWidget(tree_, 1);
    MakeButtons(*column);
    connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { Follow(item); });
    Fill();
    resize(kUsualUnits * Unit(*this));
    if (tree_->isEnabled()) tree_->setFocus();
}

void CarriedDataDialog::MakeTree() {
    tree_->setObjectName(QStringLiteral("treeFields"));
    tree_->setAccessibleName(tr("Carried fields and their values"));
    tree_->setAccessibleDescription(tr("Ctrl+C copies the selected field with all below it"));
    tree_->setHeaderLabels({tr("Field"), tr("Value")});
    tree_->header()->setFont(BoldFont(font()));
    tree_->header()->resizeSection(0, kNameUnits * Unit(*this));
    tree_->setUniformRowHeights(true);
    tree_->setAllColumnsShowFocus(true);
    auto* copy = new QShortcut(QKeySequence(QKeySequence::Copy), tree_);
    copy->setContext(Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, [this] { model_.CopySelected(); });
}

void CarriedDataDialog::MakeButtons(QBoxLayout& column) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* drop = buttons->addButton(tr("&Drop..."), QDialogButtonBox::ActionRole);
    drop->setObjectName(QStringLiteral("cmdDrop"));
    drop->setAutoDefault(false);
    drop->setEnabled(model_.IsEnabled("cmdDrop"));
    connect(drop, &QPushButton::clicked, this, [this] {
        model_.Press("cmdDrop");
        if (!model_.IsOpen()) QDialog::accept();
    });
    QPushButton* close = buttons->button(QDialogButtonBox::Close);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, [this] {
        model_.Press("cmdClose");
        QDialog::accept();
    });
    column.addWidget(buttons);
}

void CarriedDataDialog::Fill() {
    std::vector<QTreeWidgetItem*> items;
    QList<QTreeWidgetItem*> top;
    for (const CarriedField& field : model_.Fields()) {
        QTreeWidgetItem* item = nullptr;
        if (field.parent == CarriedField::kTop)
            top.append(item = new QTreeWidgetItem);
        else
            item = new QTreeWidgetItem(items[static_cast<std::size_t>(field.parent)]);
        const QString value = ToQt(field.value);
        item->setText(0, ToQt(field.name));
        // A row shows one line.
        item->setText(1, value.simplified());
        item->setToolTip(0, NameTip(ToQt(field.name)));
        if (!value.isEmpty()) item->setToolTip(1, NameTip(value));
        item->setData(0, kFieldRole, static_cast<int>(items.size()));
        items.push_back(item);
    }
    tree_->addTopLevelItems(top);
    tree_->setEnabled(!items.empty());
    if (items.empty()) return Follow(nullptr);
    top.front()->setExpanded(true);
    tree_->setCurrentItem(items[static_cast<std::size_t>(model_.Selected())]);
}

void CarriedDataDialog::Follow(const QTreeWidgetItem* item) {
    if (item) model_.Select(item->data(0, kFieldRole).toInt());
    source_->SetFullText(ToQt(model_.SourceText(LocalDate)));
}

void CarriedDataDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
