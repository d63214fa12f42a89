#include "doctor/ui/DoctorFileTree.h"

#include <QHeaderView>
#include <QPainter>

#include "doctor/FigureTexts.h"
#include "doctor/ui/SeverityIcon.h"
#include "platform/ScopeGuard.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ui/NameTip.h"

namespace tw {
namespace {

enum Column : int { kName, kFound, kFirstFigure };
enum Role : int { kKindRole = Qt::UserRole, kFileRole, kRecipeRole };

constexpr int kFoundDigits = 16;

// In the order of FigureColumns: what the figures are, and the width of a pair of them in digits.
struct FigureHeading {
    const char* tip;
    int digits;
};
constexpr FigureHeading kHeadings[] = {
    {QT_TR_NOOP("Original gravity"), 13},
    {QT_TR_NOOP("Final gravity"), 13},
    {QT_TR_NOOP("Alcohol, percent by volume"), 10},
    {QT_TR_NOOP("Bitterness, IBU"), 9},
    {QT_TR_NOOP("Color, SRM"), 11},
};

DoctorItem ItemOf(const QTreeWidgetItem& item) {
    return {static_cast<DoctorItem::Kind>(item.data(kName, kKindRole).toInt()),
            static_cast<std::size_t>(item.data(kName, kFileRole).toInt()),
            static_cast<std::size_t>(item.data(kName, kRecipeRole).toInt())};
}

// REQUIRES: the item is not shown yet.
QTreeWidgetItem* MakeItem(const DoctorItem& item) {
    auto* made = new QTreeWidgetItem;
    made->setData(kName, kKindRole, static_cast<int>(item.kind));
    made->setData(kName, kFileRole, static_cast<int>(item.file));
    made->setData(kName, kRecipeRole, static_cast<int>(item.recipe));
    return made;
}

void ShowWorst(QTreeWidgetItem& item, const std::optional<Severity>& worst) {
    item.setText(kFound, worst ? ToQt(std::string(WordOf(*worst))) : QString());
    item.setIcon(kFound, worst ? SeverityIcon(*worst) : QIcon());
}

void ShowName(QTreeWidgetItem& item, const std::string& name) {
    item.setText(kName, ToQt(name).simplified());
    item.setToolTip(kName, NameTip(ToQt(name)));
}

}  // namespace

DoctorFileTree::DoctorFileTree(ImportDoctorModel& model, QWidget* parent)
    : QTreeWidget(parent), model_(model) {
    setObjectName(QStringLiteral("treeRecipes"));
    setAccessibleName(tr("Files and recipes"));
    setAccessibleDescription(tr("The space bar chooses what is imported"));
    QStringList headings = {tr("Name"), tr("Found")};
    for (const FigureColumn& column : FigureColumns()) headings.append(ToQt(std::string(column.caption)));
    setHeaderLabels(headings);
    header()->setFont(BoldFont(font()));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    header()->resizeSection(kFound, DigitsWidth(*this, kFoundDigits));
    headerItem()->setToolTip(kFound, tr("The worst of what was found"));
    for (int i = 0; i < static_cast<int>(std::size(kHeadings)); ++i) {
        const FigureHeading& heading = kHeadings[i];
        header()->resizeSection(kFirstFigure + i, DigitsWidth(*this, heading.digits));
        headerItem()->setToolTip(kFirstFigure + i,
                                 tr("%1: stated in the file / calculated here").arg(tr(heading.tip)));
        headerItem()->setTextAlignment(kFirstFigure + i, Qt::AlignRight | Qt::AlignVCenter);
    }
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (filling_ || !item) return;
        model_.Select(ItemOf(*item));
        emit Changed();
    });
    connect(this, &QTreeWidget::itemChanged, this, [this](const QTreeWidgetItem* item, int column) {
        if (!filling_ && column == kName) Take(*item);
    });
    ShowFiles();
}

void DoctorFileTree::Take(const QTreeWidgetItem& item) {
    model_.Choose(ItemOf(item), item.checkState(kName) == Qt::Checked);
    ShowFiles();
    emit Changed();
}

void DoctorFileTree::ShowFiles() {
    const ScopedValue filling(filling_, true);
    const auto wanted = static_cast<int>(model_.Files().All().size()) + (model_.HasImported() ? 1 : 0);
    if (topLevelItemCount() != wanted) MakeItems();
    for (QTreeWidgetItemIterator item(this); *item; ++item) ShowItem(**item);
    if (model_.Selected()) setCurrentItem(Find(*model_.Selected()));
}

void DoctorFileTree::MakeItems() {
    clear();
    QList<QTreeWidgetItem*> items;
    if (model_.HasImported()) items.append(MakeItem({DoctorItem::Kind::Account, 0, 0}));
    for (std::size_t file = 0; file < model_.Files().All().size(); ++file) {
        items.append(MakeItem({DoctorItem::Kind::File, file, 0}));
        for (std::size_t i = 0; i < model_.Files().All()[file].recipes.size(); ++i)
            items.back()->addChild(MakeItem({DoctorItem::Kind::Recipe, file, i}));
    }
    addTopLevelItems(items);
    expandAll();
}

void DoctorFileTree::ShowItem(QTreeWidgetItem& item) const {
    const DoctorItem shown = ItemOf(item);
    if (shown.kind == DoctorItem::Kind::Account) {
        ShowName(item, model_.NameOf(shown));
        return ShowWorst(item, WorstOf(model_.Account()));
    }
    const DoctorFile& file = model_.Files().All()[shown.file];
    ShowName(item, model_.NameOf(shown));
    if (!file.recipes.empty()) {
        constexpr Qt::CheckState kStates[] = {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked};
        item.setCheckState(kName, kStates[static_cast<std::size_t>(model_.ChoiceOf(shown))]);
    }
    if (shown.kind == DoctorItem::Kind::File) {
        item.setToolTip(kName, NameTip(ToQt(file.path)));
        return ShowWorst(item, file.Worst());
    }
    const DoctorRecipe& recipe = file.recipes[shown.recipe];
    ShowWorst(item, WorstOf(recipe.findings));
    int column = kFirstFigure;
    for (const FigureColumn& figure : FigureColumns()) {
        item.setText(column, ToQt(FigurePair(figure, recipe.stated, recipe.calculated)));
        item.setTextAlignment(column++, Qt::AlignRight | Qt::AlignVCenter);
    }
}

QTreeWidgetItem* DoctorFileTree::Find(const DoctorItem& wanted) const {
    if (wanted.kind == DoctorItem::Kind::Account) return topLevelItem(0);
    QTreeWidgetItem* const file =
        topLevelItem(static_cast<int>(wanted.file) + (model_.HasImported() ? 1 : 0));
    const bool isRecipe = file && wanted.kind == DoctorItem::Kind::Recipe;
    return isRecipe ? file->child(static_cast<int>(wanted.recipe)) : file;
}

void DoctorFileTree::paintEvent(QPaintEvent* event) {
    QTreeWidget::paintEvent(event);
    if (topLevelItemCount() > 0) return;
    QPainter painter(viewport());
    painter.setPen(HintColor(palette()));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("Add files, or drop them here."));
}

}  // namespace tw
