#include "document/ui/RangeBar.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

QAccessibleInterface* MakeInterface(const QString& key, QObject* object) {
    if (key != QLatin1String("tw::RangeBar")) return nullptr;
    auto* bar = qobject_cast<QWidget*>(object);
    return bar ? new QAccessibleWidget(bar, QAccessible::Indicator) : nullptr;
}

// Returns a diamond for a figure within the range, and an arrow pointing away from it for one outside.
QPolygonF Mark(RangePlace place, const QPointF& center, double size) {
    const double x = center.x(), y = center.y();
    switch (place) {
        case RangePlace::Below:
            return QPolygonF({{x + size, y - size}, {x + size, y + size}, {x - size, y}});
        case RangePlace::Above:
            return QPolygonF({{x - size, y - size}, {x - size, y + size}, {x + size, y}});
        default:
            return QPolygonF({{x, y - size}, {x + size, y}, {x, y + size}, {x - size, y}});
    }
}

}  // namespace

RangeBar::RangeBar(const QString& what, QWidget* parent) : QWidget(parent), what_(what) {
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
    setAccessibleName(RangeBar::tr("%1 in the style's range").arg(what));
}

void RangeBar::Show(std::string_view rangeLabel, std::string_view figureText) {
    const std::optional<StyleRange> range = RangeOfLabel(rangeLabel);
    const std::optional<double> figure = FigureOf(figureText);
    if (range == range_ && figure == figure_) return;
    range_ = range;
    figure_ = figure;
    const QString verdict = Verdict();
    setToolTip(verdict.isEmpty() ? QString() : what_ + QStringLiteral(": ") + verdict);
    setAccessibleDescription(verdict);
    update();
}

QString RangeBar::Verdict() const {
    if (!range_ || !figure_) return {};
    switch (PlaceIn(*range_, *figure_)) {
        case RangePlace::Below:
            return tr("below the style's range");
        case RangePlace::Above:
            return tr("above the style's range");
        default:
            return tr("within the style's range");
    }
}

QSize RangeBar::sizeHint() const {
    return {Unit(*this) * 20, Unit(*this) * 2};
}

QSize RangeBar::minimumSizeHint() const {
    return {Unit(*this) * 7, Unit(*this) * 2};
}

void RangeBar::paintEvent(QPaintEvent*) {
    if (!range_) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = Unit(*this);
    const double markSize = unit * 0.8;
    const QRectF track(markSize, height() / 2.0 - unit * 0.3, width() - 2 * markSize, unit * 0.6);
    const auto at = [&](double place) { return track.left() + place * track.width(); };
    const RangeScale scale = ScaleOf(*range_, figure_.value_or(0));

    painter.setPen(Qt::NoPen);
    painter.setBrush(HairlineColor(palette()));
    painter.drawRoundedRect(track, track.height() / 2, track.height() / 2);
    const QRectF band(QPointF(at(scale.bandStart), track.top()), QPointF(at(scale.bandEnd), track.bottom()));
    painter.setBrush(Accent(palette()));
    painter.drawRoundedRect(band, track.height() / 2, track.height() / 2);
    if (!figure_) return;
    painter.setPen(QPen(palette().color(QPalette::Window), 1.5));
    painter.setBrush(palette().color(QPalette::WindowText));
    painter.drawPolygon(Mark(PlaceIn(*range_, *figure_), {at(scale.mark), track.center().y()}, markSize));
}

void InstallRangeBarAccessibility() {
    QAccessible::installFactory(&MakeInterface);
}

}  // namespace tw
