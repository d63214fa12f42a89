// How much of the screen a window may take when it comes up, the first time or in a size that was kept.
#pragma once

#include <QRect>

class QWidget;

namespace tw {

// Where the window may lie on its screen, as QWidget::move and resize take it: what the panels of the desktop
// leave free, smaller by the frame around a window. The screen of a window that has a parent is the parent's.
// The frame is that of a window on the screen; where there is none yet, one of the usual size is assumed.
QRect RoomOf(const QWidget& window);

// Moves place into room, without its size where that fits and shrunk where it does not.
QRect FittedInto(const QRect& place, const QRect& room);

// Gives the window that size, within its room and large enough for its contents.
void ResizeIntoRoom(QWidget& window, const QSize& wanted);

}  // namespace tw
