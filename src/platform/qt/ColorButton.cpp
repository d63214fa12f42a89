#include "platform/qt/ColorButton.h"

#include <QPainter>

#include "platform/qt/Appearance.h"

namespace tw {

ColorButton::ColorButton(const QString& what, QWidget* parent) : QPushButton(parent) {
    setAccessibleName(what);
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorButton::Show(const QColor& color) {
    if (color_ == color) return;
    color_ = color;
    setAccessibleDescription(color.name().toUpper());
    setToolTip(accessibleDescription());
    update();
}

QSize ColorButton::sizeHint() const {
    return QSize(9, 4) * Unit(*this);
}

void ColorButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // A gap separates the focus ring from the colour, so that it is visible beside any colour.
    const double ring = 2, gap = 2;
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), ring));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
    }
    const double inset = ring + gap + (isDown() ? 1 : 0);
    painter.setPen(QPen(HintColor(palette()), 1));
    painter.setBrush(color_);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset).adjusted(.5, .5, -.5, -.5),
                            2, 2);
}

}  // namespace tw
