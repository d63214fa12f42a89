#include "tools/ui/CurveSample.h"

#include <QPainter>

#include "platform/qt/Appearance.h"
#include "tools/ui/UtilisationGraphView.h"

namespace tw {

CurveSample::CurveSample(IbuMethod method, QWidget* parent) : QWidget(parent), method_(method) {
    setAccessibleName(tr("Line of %1").arg(QLatin1String(MethodName(method))));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CurveSample::sizeHint() const {
    return {Unit(*this) * 6, Unit(*this) * 2};
}

void CurveSample::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = height() / 2.0;
    PaintCurveSample(painter, method_, palette(), QLineF(0, middle, width(), middle), Unit(*this));
}

}  // namespace tw
