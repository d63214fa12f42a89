#include "tools/ui/UtilisationGraphView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionFocusRect>
#include <algorithm>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

constexpr IbuMethod kAllMethods[kMethods] = {IbuMethod::Tinseth, IbuMethod::Rager, IbuMethod::Garetz};
constexpr int kPointsPerMark = 5;
constexpr int kPageMinutes = 15;
constexpr int kParts = 16;

QColor CurveColor(IbuMethod method, const QPalette& palette) {
    switch (method) {
        case IbuMethod::Tinseth:
            return Accent(palette);
        case IbuMethod::Rager:
            return palette.color(QPalette::Text);
        case IbuMethod::Garetz:
            break;
    }
    return palette.color(QPalette::Link);
}

QPen CurvePen(IbuMethod method, const QPalette& palette, double unit) {
    QPen pen(CurveColor(method, palette), std::max(1.5, unit * 0.22));
    if (method == IbuMethod::Rager) pen.setDashPattern({5, 3});
    if (method == IbuMethod::Garetz) pen.setDashPattern({1, 2});
    return pen;
}

// Draws a disc, a square or a triangle, by the method.
void PaintMark(QPainter& painter, IbuMethod method, const QPalette& palette, QPointF at, double unit) {
    const double size = unit * 0.45;
    painter.setPen(QPen(palette.color(QPalette::Base), std::max(1.0, unit * 0.1)));
    painter.setBrush(CurveColor(method, palette));
    switch (method) {
        case IbuMethod::Tinseth:
            painter.drawEllipse(at, size, size);
            return;
        case IbuMethod::Rager:
            painter.drawRect(QRectF(at.x() - size, at.y() - size, 2 * size, 2 * size));
            return;
        case IbuMethod::Garetz:
            break;
    }
    const double tall = size * 1.25;
    painter.drawPolygon(
        QPolygonF({{at.x(), at.y() - tall}, {at.x() + tall, at.y() + size}, {at.x() - tall, at.y() + size}}));
}

QString NameOf(IbuMethod method) {
    return QLatin1String(MethodName(method));
}

QString PercentText(int percent) {
    return UtilisationGraphView::tr("%1%").arg(percent);
}

}  // namespace

void PaintCurveSample(QPainter& painter, IbuMethod method, const QPalette& palette, const QLineF& line,
                      double unit) {
    painter.setPen(CurvePen(method, palette, unit));
    painter.drawLine(line);
    PaintMark(painter, method, palette, line.center(), unit);
}

UtilisationGraphView::UtilisationGraphView(HopUtilisationModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
    setObjectName(QStringLiteral("picGraph"));
    setAccessibleName(tr("Graph of hop utilization against boil time"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    ShowModel();
}

void UtilisationGraphView::ShowModel() {
    curves_ = model_.Curves();
    update();
}

GraphArea UtilisationGraphView::Area() const {
    const QFontMetrics metrics = fontMetrics();
    const int unit = Unit(*this);
    int names = 0;
    for (const IbuMethod method : kAllMethods)
        names = std::max(names, metrics.horizontalAdvance(NameOf(method)));
    GraphArea area;
    area.left = metrics.horizontalAdvance(PercentText(kGraphPercent)) + 2 * unit;
    area.top = metrics.lineSpacing() + 2 * unit;
    area.width = std::max(1, width() - area.left - names - 3 * unit);
    area.height = std::max(1, height() - area.top - 2 * metrics.lineSpacing() - 2 * unit);
    return area;
}

QSize UtilisationGraphView::sizeHint() const {
    return {Unit(*this) * 72, Unit(*this) * 44};
}

QSize UtilisationGraphView::minimumSizeHint() const {
    return {Unit(*this) * 44, Unit(*this) * 26};
}

void UtilisationGraphView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool focused = hasFocus();
    painter.setPen(focused ? QPen(palette().color(QPalette::Highlight), 2)
                           : QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    const GraphArea area = Area();
    PaintAxes(painter, area);
    PaintTime(painter, area);
    for (const IbuMethod method : kAllMethods) PaintCurve(painter, area, method);
    PaintNames(painter, area);
}

void UtilisationGraphView::PaintAxes(QPainter& painter, const GraphArea& area) const {
    const QFontMetrics metrics = fontMetrics();
    const int line = metrics.lineSpacing(), unit = Unit(*this);
    const int right = area.left + area.width, bottom = area.top + area.height;
    const QPen hairline(HairlineColor(palette()), 1), text(palette().color(QPalette::Text), 1);
    for (int percent = 0; percent <= kGraphPercent; percent += kGraphPercentStep) {
        const int y = area.UtilisationToY(percent);
        painter.setPen(percent == 0 ? text : hairline);
        painter.drawLine(area.left, y, right, y);
        painter.setPen(text);
        painter.drawText(QRect(0, y - line / 2, area.left - unit / 2, line),
                         Qt::AlignRight | Qt::AlignVCenter, PercentText(percent));
    }
    for (int minutes = 0; minutes <= kGraphMinutes; minutes += kGraphMinutesStep) {
        const int x = area.TimeToX(minutes);
        painter.setPen(minutes == 0 ? text : hairline);
        painter.drawLine(x, area.top, x, bottom);
        painter.setPen(text);
        painter.drawLine(x, bottom, x, bottom + unit / 3);
        painter.drawText(QRect(x - 4 * unit, bottom + unit / 2, 8 * unit, line), Qt::AlignHCenter,
                         QString::number(minutes));
    }
    painter.setPen(HintColor(palette()));
    painter.drawText(QRect(unit, unit / 2, right, line), Qt::AlignLeft | Qt::AlignVCenter, tr("Utilization"));
    painter.drawText(QRect(area.left, bottom + unit / 2 + line, area.width, line),
                     Qt::AlignHCenter | Qt::AlignVCenter, tr("Boil time (minutes)"));
}

void UtilisationGraphView::PaintCurve(QPainter& painter, const GraphArea& area, IbuMethod method) const {
    const double unit = Unit(*this);
    const Curve& curve = curves_[static_cast<std::size_t>(method)];
    // Computed in parts of a pixel, so that the line is smooth.
    const GraphArea fine{area.left * kParts, area.top * kParts, area.width * kParts, area.height * kParts};
    QPolygonF line;
    for (const CurvePoint& point : curve)
        line << QPointF(fine.TimeToX(point.minutes), fine.UtilisationToY(point.percent)) / kParts;
    painter.setPen(CurvePen(method, palette(), unit));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
    for (int i = kPointsPerMark; i < line.size(); i += kPointsPerMark)
        PaintMark(painter, method, palette(), line[i], unit);
}

// Each name is at the end of its curve; if two would overlap, the lower one moves down.
void UtilisationGraphView::PaintNames(QPainter& painter, const GraphArea& area) const {
    struct Name {
        IbuMethod method;
        int y;
    };
    std::array<Name, kMethods> names{};
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = {kAllMethods[i], area.UtilisationToY(curves_[i].back().percent)};
    std::ranges::stable_sort(names, {}, &Name::y);
    const int line = fontMetrics().lineSpacing();
    for (std::size_t i = 1; i < names.size(); ++i) names[i].y = std::max(names[i].y, names[i - 1].y + line);
    const int left = area.left + area.width + Unit(*this);
    for (const Name& name : names) {
        painter.setPen(CurveColor(name.method, palette()));
        painter.drawText(QRect(left, name.y - line / 2, width() - left, line),
                         Qt::AlignLeft | Qt::AlignVCenter, NameOf(name.method));
    }
}

void UtilisationGraphView::PaintTime(QPainter& painter, const GraphArea& area) const {
    const int x = area.TimeToX(model_.Minutes());
    painter.setPen(QPen(HintColor(palette()), 1.5));
    painter.drawLine(x, area.top, x, area.top + area.height);
    const double size = Unit(*this) * 0.6;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Text));
    painter.drawPolygon(QPolygonF({{x - size, area.top - size},
                                   {x + size, area.top - size},
                                   {static_cast<double>(x), area.top + size / 2}}));
}

void UtilisationGraphView::MoveTo(int minutes) {
    model_.MoveTo(minutes);
    update();
    emit Moved();
}

void UtilisationGraphView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return MoveTo(model_.Minutes() - 1);
        case Qt::Key_Right:
            return MoveTo(model_.Minutes() + 1);
        case Qt::Key_PageUp:
            return MoveTo(model_.Minutes() - kPageMinutes);
        case Qt::Key_PageDown:
            return MoveTo(model_.Minutes() + kPageMinutes);
        case Qt::Key_Home:
            return MoveTo(0);
        case Qt::Key_End:
            return MoveTo(kGraphMinutes);
        default:
            QWidget::keyPressEvent(event);
    }
}

void UtilisationGraphView::mousePressEvent(QMouseEvent* event) {
    MoveTo(Area().MinutesAt(event->pos().x()));
}

void UtilisationGraphView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) MoveTo(Area().MinutesAt(event->pos().x()));
}

}  // namespace tw
