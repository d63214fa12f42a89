// Which focus events are moves of the brewer from one field to another.
#pragma once

#include <QFocusEvent>

namespace tw {

// False for a menu, a list that drops down, or another program or box in front: the field is neither entered
// nor left then.
inline bool IsMove(const QFocusEvent& event) {
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason &&
           event.reason() != Qt::ActiveWindowFocusReason;
}

}  // namespace tw
