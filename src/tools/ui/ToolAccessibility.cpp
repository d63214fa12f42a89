#include "tools/ui/ToolAccessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace tw {
namespace {

QAccessibleInterface* MakeInterface(const QString& key, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget) return nullptr;
    if (key == QLatin1String("tw::UtilisationGraphView"))
        return new QAccessibleWidget(widget, QAccessible::Chart);
    if (key == QLatin1String("tw::ColorScaleView") || key == QLatin1String("tw::CurveSample"))
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    return nullptr;
}

}  // namespace

void InstallToolAccessibility() {
    QAccessible::installFactory(&MakeInterface);
}

}  // namespace tw
