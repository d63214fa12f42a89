// The editor of a name in a list or a tree.
#pragma once

#include <QWidget>

namespace tw {

// True if the keys go to the editor, or will when its window is active again: the box that refuses a name
// has taken the activation, and gives it back only after the editor has closed. The view is to have the
// focus then, and would not ask for it by itself.
inline bool IsTypedIn(const QWidget& editor) {
    return editor.window()->focusWidget() == &editor;
}

}  // namespace tw
