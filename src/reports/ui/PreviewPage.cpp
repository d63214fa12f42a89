#include "reports/ui/PreviewPage.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/Appearance.h"
#include "reports/qt/PaperPainter.h"

namespace tw {
namespace {

constexpr double kPercent = 100;

}  // namespace

PreviewPage::PreviewPage(const PrintPreviewModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    setObjectName(QStringLiteral("PreviewPage"));
    setAccessibleName(tr("Page"));
}

void PreviewPage::Fit(const QSize& room) {
    const PrintSize sheet = PaperSize(model_.CurrentPaper());
    const int edge = 2 * Unit(*this);
    double scale = logicalDpiX() * model_.Zoom() / kPercent;
    if (model_.Zoom() == 0)
        scale = std::min((room.width() - edge) / sheet.width, (room.height() - edge) / sheet.height);
    const QSizeF size(std::max(scale, 1.0) * sheet.width, std::max(scale, 1.0) * sheet.height);
    setFixedSize(size.toSize() + QSize(edge, edge));
    setAccessibleDescription(tr("Page %1 of %2").arg(model_.Page()).arg(model_.Pages()));
    update();
}

QRectF PreviewPage::Sheet() const {
    const int edge = Unit(*this);
    return QRectF(rect()).adjusted(edge, edge, -edge, -edge);
}

void PreviewPage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QRectF sheet = Sheet();
    // Paper is white whatever the colours of the desktop are.
    painter.setPen(QPen(HintColor(palette()), 1));
    painter.setBrush(Qt::white);
    painter.drawRect(sheet);
    const double scale = sheet.width() / PaperSize(model_.CurrentPaper()).width;
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft() + QPointF(kPaperEdge, kPaperEdge) * scale);
    painter.scale(scale / kPaperDpi, scale / kPaperDpi);
    PaintPage(painter, model_.Steps(), model_.Page());
}

}  // namespace tw
