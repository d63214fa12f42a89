#include "platform/qt/ScreenRoom.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace tw {
namespace {

// The space assumed for a title bar and thin edges, in pixels.
constexpr QSize kUsualFrame(10, 40);

QSize FrameSize() {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        const Qt::WindowType type = window->windowType();
        if (!window->isVisible() || !window->windowHandle() || (type != Qt::Window && type != Qt::Dialog))
            continue;
        const QMargins frame = window->windowHandle()->frameMargins();
        if (!frame.isNull()) return {frame.left() + frame.right(), frame.top() + frame.bottom()};
    }
    return kUsualFrame;
}

}  // namespace

QRect RoomOf(const QWidget& window) {
    const QWidget& placed = window.parentWidget() ? *window.parentWidget() : window;
    QRect room = placed.screen()->availableGeometry();
    room.setSize(room.size() - FrameSize());
    return room;
}

QRect FittedInto(const QRect& place, const QRect& room) {
    const QSize size = place.size().boundedTo(room.size());
    return {QPoint(std::clamp(place.left(), room.left(), room.right() + 1 - size.width()),
                   std::clamp(place.top(), room.top(), room.bottom() + 1 - size.height())),
            size};
}

void ResizeIntoRoom(QWidget& window, const QSize& wanted) {
    window.resize(wanted.expandedTo(window.minimumSizeHint()).boundedTo(RoomOf(window).size()));
}

}  // namespace tw
