// How much of the screen a window may use when it opens, in its default size or in a stored one.
#pragma once

#include <QRect>

class QWidget;

namespace tw {

// Returns the rectangle in which the window may be placed on its screen, in the coordinates of QWidget::move
// and resize: the area that the desktop's panels leave free, reduced by the size of a window frame. A window
// with a parent uses the parent's screen. The frame is measured on a window already shown; if there is none,
// a usual size is assumed.
QRect RoomOf(const QWidget& window);

// Returns place moved into room, and shrunk only if it does not fit.
QRect FittedInto(const QRect& place, const QRect& room);

// Resizes the window to wanted, enlarged to its minimum size and then limited to its room.
void ResizeIntoRoom(QWidget& window, const QSize& wanted);

}  // namespace tw
