#include "document/ui/GapMark.h"

#include <QPainter>
#include <QPainterPath>
#include <utility>

#include "document/ui/DocumentBinding.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {

int GapMarkWidth(const QFontMetrics& metrics) {
    return metrics.ascent() + metrics.averageCharWidth();
}

int PaintGapMark(QPainter& painter, const QRect& place, const QPalette& palette) {
    const QFontMetrics metrics = painter.fontMetrics();
    const double side = metrics.ascent();
    const double left = place.right() - side, top = place.center().y() - side / 2;
    QPainterPath triangle(QPointF(left + side / 2, top));
    triangle.lineTo(left + side, top + side);
    triangle.lineTo(left, top + side);
    triangle.closeSubpath();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(Accent(palette), side / 9);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    painter.drawPath(triangle);
    // The exclamation mark.
    const double middle = left + side / 2;
    painter.drawLine(QPointF(middle, top + side * 0.4), QPointF(middle, top + side * 0.65));
    painter.drawPoint(QPointF(middle, top + side * 0.83));
    painter.restore();
    return GapMarkWidth(metrics);
}

GapMark::GapMark(DocumentBinding& binding, QString what, std::function<std::vector<std::string>()> reasons,
                 QWidget* parent)
    : QWidget(parent), what_(std::move(what)), reasons_(std::move(reasons)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // One operation may change many cells.
    binding.WatchAll([this] {
        if (!std::exchange(waiting_, true))
            QMetaObject::invokeMethod(this, &GapMark::Show, Qt::QueuedConnection);
    });
    Show();
}

QSize GapMark::sizeHint() const {
    const int side = GapMarkWidth(fontMetrics());
    return {side, side};
}

void GapMark::Show() {
    waiting_ = false;
    QStringList lines;
    for (const std::string& reason : reasons_()) lines.append(ToQt(reason));
    const QString text = lines.join(QLatin1Char('\n'));
    setToolTip(text);
    setAccessibleName(tr("%1 is incomplete").arg(what_));
    setAccessibleDescription(text);
    setVisible(!text.isEmpty());
}

void GapMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintGapMark(painter, rect().adjusted(1, 1, -1, -1), palette());
}

}  // namespace tw
