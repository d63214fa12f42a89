#include "help/ui/AssistantLinkButton.h"

#include <QKeyEvent>
#include <QPainter>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

constexpr int kPictureUnits = 4;
constexpr double kHighlightOpacity = 0.14;
constexpr int kRingWidth = 2;

}  // namespace

AssistantLinkButton::AssistantLinkButton(const QIcon& picture, const QString& caption, QWidget* parent)
    : QAbstractButton(parent) {
    setIcon(picture);
    setText(caption);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
}

void AssistantLinkButton::Highlight(bool on) {
    if (highlighted_ == on) return;
    highlighted_ = on;
    update();
}

int AssistantLinkButton::PictureSide() const {
    return Unit(*this) * kPictureUnits;
}

QSize AssistantLinkButton::sizeHint() const {
    const int gap = Unit(*this) * kGapUnits;
    const QSize line = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {PictureSide() + line.width() + gap * 4, PictureSide() + gap};
}

void AssistantLinkButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int gap = Unit(*this) * kGapUnits;
    if (highlighted_) {
        QColor ground = Accent(palette());
        ground.setAlphaF(kHighlightOpacity);
        painter.fillRect(rect(), ground);
    }
    const QRect picture(gap, (height() - PictureSide()) / 2, PictureSide(), PictureSide());
    icon().paint(&painter, picture);
    const QRect line = rect().adjusted(picture.right() + 1 + gap, 0, -gap, 0);
    QFont face = font();
    face.setUnderline(highlighted_);
    painter.setFont(face);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text());
    if (!hasFocus()) return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), kRingWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void AssistantLinkButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    pointedAt_ = true;
    emit Reached();
}

void AssistantLinkButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    pointedAt_ = false;
    emit Left();
}

void AssistantLinkButton::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    emit Reached();
}

void AssistantLinkButton::focusOutEvent(QFocusEvent* event) {
    QAbstractButton::focusOutEvent(event);
    emit Left();
}

void AssistantLinkButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

}  // namespace tw
