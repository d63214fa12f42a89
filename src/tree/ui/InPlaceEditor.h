// The editor of a name in a list or a tree.
#pragma once

#include <QWidget>

namespace tw {

// True if the editor has the keyboard focus, or will have it when its window is active again: a message box
// that refuses a name takes the activation and returns it only after the editor has closed. The view must
// take the focus then, which it does not do by itself.
inline bool IsTypedIn(const QWidget& editor) {
    return editor.window()->focusWidget() == &editor;
}

}  // namespace tw
