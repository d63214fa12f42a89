#include "tree/ui/IconPane.h"

#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>

namespace tw {
namespace {

constexpr double kLinesPerRow = 1.5;
constexpr int kLargeIconUnits = 5;
constexpr int kLargeNameUnits = 17;
// A longer name is cut off; its tooltip shows all of it.
constexpr int kWidestInDigits = 32;

// Places the picture above the name for large icons, and lets each row fill its cell of the grid.
class IconDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void SetLarge(bool large) { large_ = large; }
    void SetPlace(const QSize& place) { place_ = place; }
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return place_; }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!large_) return;
        option->decorationPosition = QStyleOptionViewItem::Top;
        option->decorationAlignment = Qt::AlignCenter;
        option->displayAlignment = Qt::AlignHCenter | Qt::AlignTop;
        option->features |= QStyleOptionViewItem::WrapText;
    }

  private:
    bool large_ = false;
    QSize place_;
};

}  // namespace

IconPane::IconPane(ListTable& list, const QString& name, QWidget* parent) : RowView(list, name, parent) {
    setModel(model_);
    setItemDelegate(new IconDelegate(this));
    setWrapping(true);
    setResizeMode(Adjust);
    setMovement(Static);
    setUniformItemSizes(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    ListChanged();
}

void IconPane::SetKind(ListViewType kind) {
    kind_ = kind;
    const bool large = kind == ListViewType::LargeIcons;
    static_cast<IconDelegate*>(itemDelegate())->SetLarge(large);
    setFlow(kind == ListViewType::List ? TopToBottom : LeftToRight);
    setWordWrap(large);
    FitGrid();
    ShowSelection();
}

void IconPane::FitGrid() {
    const QFontMetrics metrics = fontMetrics();
    const int line = metrics.lineSpacing();
    if (kind_ == ListViewType::LargeIcons) {
        const int side = Unit(*this) * kLargeIconUnits;
        setIconSize({side, side});
        SetPlace({Unit(*this) * kLargeNameUnits, side + 2 * line + Unit(*this) * 2});
        return;
    }
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    setIconSize({side, side});
    int name = DigitsWidth(*this, kWidestInDigits / 2);
    for (const ListRow& row : list_.Rows())
        name = std::max(name, metrics.horizontalAdvance(ListPaneModel::NameOf(row)));
    name = std::min(name, DigitsWidth(*this, kWidestInDigits));
    const int height = std::max(side + Unit(*this) / 2, static_cast<int>(std::lround(kLinesPerRow * line)));
    SetPlace({side + name + Unit(*this) * 3, height});
}

void IconPane::SetPlace(const QSize& place) {
    static_cast<IconDelegate*>(itemDelegate())->SetPlace(place);
    setGridSize(place);
}

void IconPane::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange) FitGrid();
}

}  // namespace tw
