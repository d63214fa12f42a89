#include "doctor/ui/FindingTree.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

#include "doctor/ui/SeverityIcon.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

enum Column : int { kSeverity, kPlace, kText };

constexpr int kSeverityDigits = 20;
constexpr int kPlaceDigits = 24;

// Makes rows as high as their texts, which are broken into lines as wide as their columns.
class WrappingDelegate final : public QStyledItemDelegate {
  public:
    explicit WrappingDelegate(QTreeWidget& tree) : QStyledItemDelegate(&tree), tree_(tree) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize line = QStyledItemDelegate::sizeHint(option, index);
        if (index.column() == kSeverity) return line;
        const int margin = tree_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &tree_) + 1;
        const int width = tree_.columnWidth(index.column()) - 2 * margin;
        const QRect lines = tree_.fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX),
                                                             Qt::TextWordWrap, index.data().toString());
        const int single = tree_.fontMetrics().height();
        return {line.width(), std::max(line.height(), line.height() + lines.height() - single)};
    }

  private:
    QTreeWidget& tree_;
};

QTreeWidgetItem* MakeItem(Severity severity, const std::string& place, const std::string& text) {
    auto* item = new QTreeWidgetItem;
    item->setIcon(kSeverity, SeverityIcon(severity));
    item->setText(kSeverity, ToQt(std::string(WordOf(severity))));
    item->setText(kPlace, ToQt(place).simplified());
    item->setText(kText, ToQt(text).simplified());
    return item;
}

}  // namespace

FindingTree::FindingTree(QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("treeFindings"));
    setAccessibleName(tr("Findings"));
    setHeaderLabels({tr("Severity"), tr("Place"), tr("What")});
    header()->setFont(BoldFont(font()));
    header()->resizeSection(kSeverity, DigitsWidth(*this, kSeverityDigits));
    header()->resizeSection(kPlace, DigitsWidth(*this, kPlaceDigits));
    setAllColumnsShowFocus(true);
    setWordWrap(true);
    setItemDelegate(new WrappingDelegate(*this));
    setVerticalScrollMode(ScrollPerPixel);
    connect(header(), &QHeaderView::sectionResized, this, [this] { doItemsLayout(); });
}

void FindingTree::ShowFindings(const std::vector<FoldedFinding>& findings) {
    clear();
    QList<QTreeWidgetItem*> items;
    for (const FoldedFinding& finding : findings) {
        items.append(MakeItem(finding.severity, finding.place, finding.text));
        if (finding.lines.size() == 1) continue;
        for (const FindingLine& line : finding.lines)
            items.back()->addChild(MakeItem(line.severity, line.place, line.text));
    }
    addTopLevelItems(items);
    if (!items.empty()) setCurrentItem(items.front());
}

}  // namespace tw
