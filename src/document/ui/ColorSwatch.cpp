#include "document/ui/ColorSwatch.h"

#include <QPainter>

#include "platform/qt/Appearance.h"

namespace tw {

ColorSwatch::ColorSwatch(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("swatch"));
    setAccessibleName(tr("Color of the beer"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void ColorSwatch::SetColor(Rgb color) {
    const QColor wanted(color.red, color.green, color.blue);
    setAccessibleDescription(wanted.name());
    if (wanted == color_) return;
    color_ = wanted;
    update();
}

QSize ColorSwatch::sizeHint() const {
    return {Unit(*this) * 5, Unit(*this) * 3};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(color_);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tw
