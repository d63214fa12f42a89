// The menus "View" and "Sort" for lists of folders and recipes.
#pragma once

#include <QKeySequence>
#include <QString>
#include <functional>

#include "tree/NodeList.h"

class QMenu;

namespace tw {

using RunPopup = std::function<void(PopupChoice choice)>;

// Returns the key of a command in these windows, which its menu item shows; empty if it has none.
QKeySequence KeyOf(PopupCommand command);
// Add the item of a command, with the caption of its row or with another one.
void AddCommand(QMenu& menu, PopupCommand command, bool enabled, const RunPopup& run);
void AddCommand(QMenu& menu, PopupCommand command, const QString& caption, bool enabled, const RunPopup& run);
// Adds the submenus "View" and "Sort", and the item LineUp.
void AddLookMenus(QMenu& menu, const ListLook& look, const ListTable& list, bool lineUpEnabled,
                  const RunPopup& run);
// Add the contents of the two submenus.
void AddViews(QMenu& menu, const ListLook& look, const RunPopup& run);
void AddArrangements(QMenu& menu, const ListLook& look, const ListTable& list, const RunPopup& run);

}  // namespace tw
