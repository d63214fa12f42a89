#include "platform/qt/GridHeader.h"

#include <QEvent>
#include <QPainter>
#include <cmath>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

constexpr double kLines = 1.7;

}  // namespace

int CellPadding(const QWidget& widget) {
    return Unit(widget) * 3 / 4;
}

GridHeader::GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setResizeContentsPrecision(-1);
    setMinimumSectionSize(Unit(*this) * 3);
    setTextElideMode(Qt::ElideRight);
    setFont(BoldFont(parent->font()));
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    painter->fillRect(rect, palette().brush(QPalette::Button));
    painter->setPen(HairlineColor(palette()));
    painter->drawLine(rect.topRight(), rect.bottomRight());
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    const int padding = CellPadding(*this);
    const QRect place = rect.adjusted(padding, 0, -padding, 0);
    const QString text = model()->headerData(section, orientation(), Qt::DisplayRole).toString();
    const int alignment = model()->headerData(section, orientation(), Qt::TextAlignmentRole).toInt();
    painter->setFont(font());
    painter->setPen(palette().color(QPalette::ButtonText));
    painter->drawText(place, alignment | Qt::TextSingleLine,
                      fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
    if (isSortIndicatorShown() && sortIndicatorSection() == section) PaintSortMark(*painter, rect);
}

// Draws a small arrow at the upper edge, where it takes no space from the text.
void GridHeader::PaintSortMark(QPainter& painter, const QRect& rect) const {
    const double half = Unit(*this) * 0.6;
    const double middle = rect.center().x();
    const bool up = sortIndicatorOrder() == Qt::AscendingOrder;
    const double tip = rect.top() + (up ? 1.5 : 1.5 + half);
    const double base = rect.top() + (up ? 1.5 + half : 1.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::ButtonText));
    painter.drawPolygon(
        QPolygonF({QPointF(middle - half, base), QPointF(middle + half, base), QPointF(middle, tip)}));
    painter.restore();
}

// Also paints the space beyond the last column, without text.
void GridHeader::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().brush(QPalette::Button));
    painter.setPen(HairlineColor(palette()));
    painter.drawLine(viewport()->rect().bottomLeft(), viewport()->rect().bottomRight());
    painter.end();
    QHeaderView::paintEvent(event);
}

QSize GridHeader::sectionSizeFromContents(int section) const {
    const QString text = model()->headerData(section, orientation(), Qt::DisplayRole).toString();
    return {fontMetrics().horizontalAdvance(text) + 2 * CellPadding(*this) + 2,
            static_cast<int>(std::lround(kLines * fontMetrics().lineSpacing()))};
}

void GridHeader::changeEvent(QEvent* event) {
    QHeaderView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) viewport()->update();
}

}  // namespace tw
