// Distinguishes the brewer's moves between fields from other changes of focus.
#pragma once

#include <QFocusEvent>

namespace tw {

// True if the brewer moved from one field to another. False for a menu, a drop-down list, or the activation
// of another window or program: the field is then neither entered nor left.
inline bool IsMove(const QFocusEvent& event) {
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason &&
           event.reason() != Qt::ActiveWindowFocusReason;
}

}  // namespace tw
