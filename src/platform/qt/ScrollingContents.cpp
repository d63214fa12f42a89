#include "platform/qt/ScrollingContents.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

// The least height, in multiples of Unit: two lines with their boxes.
constexpr int kLeastUnits = 10;

}  // namespace

ScrollingContents::ScrollingContents(QWidget* contents, QWidget* parent) : QScrollArea(parent) {
    setAccessibleName(contents->accessibleName());
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(contents);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { ShowFocused(now); });
}

// The contents are destroyed after this object, and the one with the focus then loses it.
ScrollingContents::~ScrollingContents() {
    qApp->disconnect(this);
}

QSize ScrollingContents::sizeHint() const {
    return widget()->sizeHint().expandedTo(minimumSizeHint());
}

QSize ScrollingContents::minimumSizeHint() const {
    const QSize least = widget()->minimumSizeHint().expandedTo(widget()->minimumSize());
    return {least.width() + verticalScrollBar()->sizeHint().width(),
            qMin(least.height(), kLeastUnits * Unit(*this))};
}

void ScrollingContents::ShowFocused(QWidget* now) {
    if (now && widget()->isAncestorOf(now)) ensureWidgetVisible(now, 0, Unit(*this));
}

bool ScrollingContents::eventFilter(QObject* object, QEvent* event) {
    if (object == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(object, event);
}

}  // namespace tw
