#include "doctor/ui/SeverityIcon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

// Draws into a square of 16 by 16.
void Draw(QPainter& painter, Severity severity, const QColor& color) {
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath path;
    switch (severity) {
        case Severity::Note:
            path.addEllipse(QPointF(8, 8), 4, 4);
            break;
        case Severity::Repaired:
            path.moveTo(3, 8.5);
            path.lineTo(6.5, 12);
            path.lineTo(13, 4.5);
            break;
        case Severity::Approximated:
            path.moveTo(2.5, 9.5);
            path.cubicTo(5, 4, 6.5, 5, 8, 8);
            path.cubicTo(9.5, 11, 11, 12, 13.5, 6.5);
            break;
        case Severity::NotCarried:
            path.moveTo(3, 8);
            path.lineTo(13, 8);
            break;
        case Severity::Suspicious:
            painter.setBrush(color);
            path.moveTo(8, 3);
            path.lineTo(14, 13);
            path.lineTo(2, 13);
            path.closeSubpath();
            break;
        case Severity::Refused:
            path.moveTo(3.5, 3.5);
            path.lineTo(12.5, 12.5);
            path.moveTo(12.5, 3.5);
            path.lineTo(3.5, 12.5);
            break;
    }
    painter.drawPath(path);
}

class SeverityIconEngine final : public QIconEngine {
  public:
    explicit SeverityIconEngine(Severity severity) : severity_(severity) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QApplication::palette();
        const bool isGrave = severity_ >= Severity::Suspicious;
        const QColor color = mode == QIcon::Selected ? palette.color(QPalette::HighlightedText)
                             : isGrave               ? Accent(palette)
                                                     : palette.color(QPalette::Text);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 16.0, rect.height() / 16.0);
        Draw(*painter, severity_, color);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new SeverityIconEngine(severity_); }

  private:
    Severity severity_;
};

}  // namespace

QIcon SeverityIcon(Severity severity) {
    return QIcon(new SeverityIconEngine(severity));
}

}  // namespace tw
