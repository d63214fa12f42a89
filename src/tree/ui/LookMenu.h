// The menus "View" and "Arrange" of the lists of folders and recipes.
#pragma once

#include <QString>
#include <functional>

#include "tree/NodeList.h"

class QMenu;

namespace tw {

using RunPopup = std::function<void(PopupChoice choice)>;

// The item of a command, with the caption of its row, or with another one.
void AddCommand(QMenu& menu, PopupCommand command, bool enabled, const RunPopup& run);
void AddCommand(QMenu& menu, PopupCommand command, const QString& caption, bool enabled, const RunPopup& run);
// The sub-menus "View" and "Arrange", and LineUp.
void AddLookMenus(QMenu& menu, const ListLook& look, const ListTable& list, bool lineUpEnabled,
                  const RunPopup& run);
// The contents of the two sub-menus.
void AddViews(QMenu& menu, const ListLook& look, const RunPopup& run);
void AddArrangements(QMenu& menu, const ListLook& look, const ListTable& list, const RunPopup& run);

}  // namespace tw
