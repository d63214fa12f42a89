#include "document/ui/FancyLabel.h"

#include <QPainter>

#include "platform/qt/Appearance.h"

namespace tw {

FancyLabel::FancyLabel(const QString& caption, QWidget* parent) : QWidget(parent), caption_(caption) {
    setFont(BoldFont(font()));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(caption);
}

void FancyLabel::SetAutoSize(bool autoSize) {
    autoSize_ = autoSize;
    setSizePolicy(autoSize ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Fixed);
    updateGeometry();
}

void FancyLabel::SetCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    updateGeometry();
    update();
}

void FancyLabel::SetCaptionOffset(int twips) {
    captionOffset_ = twips;
    updateGeometry();
    update();
}

int FancyLabel::OffsetPixels() const {
    return PixelsOfTwips(captionOffset_, logicalDpiX());
}

QSize FancyLabel::sizeHint() const {
    const int caption = fontMetrics().horizontalAdvance(caption_);
    return {autoSize_ ? caption : caption + 2 * OffsetPixels(), fontMetrics().lineSpacing()};
}

void FancyLabel::paintEvent(QPaintEvent*) {
    const auto colorOr = [this](const QColor& own, QPalette::ColorRole role) {
        return own.isValid() ? own : palette().color(role);
    };
    QPainter painter(this);
    if (backColor_.isValid()) painter.fillRect(rect(), backColor_);
    const int textLeft = autoSize_ ? 0 : OffsetPixels();
    const int textRight = textLeft + fontMetrics().horizontalAdvance(caption_);
    const int gap = Unit(*this) / 2 + 1;
    const int middle = height() / 2;
    const auto rule = [&](int from, int to) {
        if (to <= from) return;
        painter.fillRect(from, middle - 1, to - from, 1, colorOr(lineColor_, QPalette::Mid));
        painter.fillRect(from, middle, to - from, 1, colorOr(hiLiteColor_, QPalette::Light));
    };
    rule(0, textLeft - gap);
    rule(textRight + gap, width());
    painter.setPen(colorOr(foreColor_, QPalette::ButtonText));
    painter.drawText(rect().adjusted(textLeft, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, caption_);
}

}  // namespace tw
