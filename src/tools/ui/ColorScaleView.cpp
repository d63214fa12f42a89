#include "tools/ui/ColorScaleView.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr int kPageSteps = 10;
// Lines of text that fit along the picture, so that the closest marks do not touch.
constexpr int kFewestLines = 13;
constexpr int kUsualLines = 18;

}  // namespace

ColorScaleView::ColorScaleView(ColorScaleModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    setObjectName(QStringLiteral("Image1"));
    setAccessibleName(tr("Picture of beer colors"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QColor ColorScaleView::ColorAt(double hcu) const {
    const Rgb color = colors_.HCUToColor(hcu);
    return {color.red, color.green, color.blue};
}

QRect ColorScaleView::Picture() const {
    const int unit = Unit(*this), line = fontMetrics().lineSpacing();
    const int side = fontMetrics().horizontalAdvance(QStringLiteral("HCU")) + 3 * unit;
    return rect().adjusted(side, 2 * line, -side, -line);
}

QSize ColorScaleView::sizeHint() const {
    return {Unit(*this) * 36, fontMetrics().lineSpacing() * (kUsualLines + 3)};
}

QSize ColorScaleView::minimumSizeHint() const {
    return {Unit(*this) * 24, fontMetrics().lineSpacing() * (kFewestLines + 3)};
}

void ColorScaleView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect picture = Picture();
    PaintGradient(painter, picture);
    PaintColumn(painter, picture, LeftColumn(model_.Scale()), true);
    PaintColumn(painter, picture, RightColumn(model_.Scale()), false);
    PaintPointer(painter, picture);
}

void ColorScaleView::PaintGradient(QPainter& painter, const QRect& picture) const {
    const int rows = std::max(1, static_cast<int>(std::lround(picture.height() * devicePixelRatioF())));
    QImage column(1, rows, QImage::Format_RGB32);
    for (int row = 0; row < rows; ++row)
        column.setPixelColor(0, row, ColorAt(ScaleHcu(model_.Scale(), (row + 0.5) / rows)));
    painter.drawImage(picture, column);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2)
                              : QPen(palette().color(QPalette::Mid), 1));
    painter.drawRect(picture);
}

void ColorScaleView::PaintColumn(QPainter& painter, const QRect& picture, const ScaleColumn& column,
                                 bool left) const {
    const int unit = Unit(*this), line = fontMetrics().lineSpacing();
    const int edge = left ? picture.left() : picture.right() + 1;
    const int outer = left ? edge - unit : edge + unit;
    const int textWidth = left ? outer - unit / 2 : width() - outer - unit / 2;
    const auto draw = [&](int y, const QString& text) {
        const QRect place(left ? 0 : outer + unit / 2, y - line / 2, textWidth, line);
        const Qt::Alignment side = left ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter), text);
    };
    painter.setPen(palette().color(QPalette::WindowText));
    for (const ScaleMark& mark : column.marks) {
        const int y = picture.top() + static_cast<int>(std::lround(mark.fraction * picture.height()));
        painter.drawLine(edge, y, outer, y);
        draw(y, QString::number(mark.value));
    }
    painter.setFont(BoldFont(font()));
    draw(picture.top() - 3 * line / 2, ToQt(column.caption));
    painter.setFont(font());
}

void ColorScaleView::PaintPointer(QPainter& painter, const QRect& picture) const {
    const double y = picture.top() +
                     static_cast<double>(model_.Pointer()) / ColorScaleModel::kPointerEnd * picture.height();
    const double size = Unit(*this) * 0.7;
    const double left = picture.left(), right = picture.right() + 1;
    // A white line on a black one: one of them is seen on any beer.
    painter.setPen(QPen(Qt::black, 3));
    painter.drawLine(QPointF(left, y), QPointF(right, y));
    painter.setPen(QPen(Qt::white, 1));
    painter.drawLine(QPointF(left, y), QPointF(right, y));
    painter.setPen(QPen(palette().color(QPalette::Window), 1));
    painter.setBrush(Accent(palette()));
    painter.drawPolygon(QPolygonF({{left - size, y - size}, {left - size, y + size}, {left + size, y}}));
    painter.drawPolygon(QPolygonF({{right + size, y - size}, {right + size, y + size}, {right - size, y}}));
}

void ColorScaleView::MoveTo(int step) {
    model_.MovePointer(step);
    update();
    emit Moved();
}

void ColorScaleView::MoveTo(const QPoint& place) {
    const QRect picture = Picture();
    const double part = static_cast<double>(place.y() - picture.top()) / std::max(1, picture.height());
    MoveTo(static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * ColorScaleModel::kPointerEnd)));
}

void ColorScaleView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Left:
            return MoveTo(model_.Pointer() - 1);
        case Qt::Key_Down:
        case Qt::Key_Right:
            return MoveTo(model_.Pointer() + 1);
        case Qt::Key_PageUp:
            return MoveTo(model_.Pointer() - kPageSteps);
        case Qt::Key_PageDown:
            return MoveTo(model_.Pointer() + kPageSteps);
        case Qt::Key_Home:
            return MoveTo(0);
        case Qt::Key_End:
            return MoveTo(ColorScaleModel::kPointerEnd);
        default:
            QWidget::keyPressEvent(event);
    }
}

void ColorScaleView::mousePressEvent(QMouseEvent* event) {
    MoveTo(event->pos());
}

void ColorScaleView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) MoveTo(event->pos());
}

}  // namespace tw
