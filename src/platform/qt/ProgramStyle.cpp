#include "platform/qt/ProgramStyle.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

// The colour of an edge. An enabled control, whose edge shows where to click, has a contrast of at least 3:1.
QColor EdgeColor(const QPalette& palette, bool enabled) {
    return enabled ? HintColor(palette) : HairlineColor(palette);
}

void PaintFocusableFrame(QPainter& painter, const QRect& rect, const QPalette& palette, bool enabled,
                         bool focused) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = focused ? 2 : 1;
    painter.setPen(QPen(focused ? palette.color(QPalette::Highlight) : EdgeColor(palette, enabled), width));
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), 2, 2);
    painter.restore();
}

void PaintRadio(QPainter& painter, const QStyleOption& option) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool on = option.state.testFlag(QStyle::State_On);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = enabled ? option.palette.color(QPalette::Text) : EdgeColor(option.palette, false);
    painter.setPen(QPen(on ? ink : EdgeColor(option.palette, enabled), 1.2));
    painter.setBrush(option.palette.brush(QPalette::Base));
    const QRectF circle = QRectF(option.rect).adjusted(1, 1, -1, -1);
    painter.drawEllipse(circle);
    if (on) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        const double inset = circle.width() * 0.27;
        painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
}

}  // namespace

void PaintCheckIndicator(QPainter& painter, const QRect& rect, const QPalette& palette, bool checked) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(EdgeColor(palette, true), 1));
    painter.setBrush(palette.brush(QPalette::Base));
    painter.drawRoundedRect(box, 2, 2);
    if (checked) {
        QPainterPath tick(box.topLeft() + QPointF(box.width() * 0.22, box.height() * 0.52));
        tick.lineTo(box.topLeft() + QPointF(box.width() * 0.43, box.height() * 0.74));
        tick.lineTo(box.topLeft() + QPointF(box.width() * 0.80, box.height() * 0.25));
        painter.setPen(QPen(palette.color(QPalette::Text), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(tick);
    }
    painter.restore();
}

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void ProgramStyle::Install() {
    if (QApplication::style()->name() == QLatin1String("fusion")) QApplication::setStyle(new ProgramStyle);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const bool enabled = option->state.testFlag(State_Enabled);
    switch (element) {
        case PE_IndicatorRadioButton:
            PaintRadio(*painter, *option);
            return;
        case PE_IndicatorCheckBox:
            if (option->state.testFlag(State_NoChange)) break;
            PaintCheckIndicator(*painter, option->rect, option->palette, option->state.testFlag(State_On));
            return;
        case PE_FrameLineEdit:
            PaintFocusableFrame(*painter, option->rect, option->palette, enabled,
                                option->state.testFlag(State_HasFocus));
            return;
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    // A slider has no other sign of focus.
    if (control == CC_Slider && option->state.testFlag(State_HasFocus))
        PaintFocusableFrame(*painter, option->rect, option->palette, true, true);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* result) const {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, result);
}

}  // namespace tw
