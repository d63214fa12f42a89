// The menus "View" and "Arrange" of the lists of folders and recipes.
#pragma once

#include <QString>
#include <functional>

#include "tree/NodeList.h"

class QMenu;

namespace tw {

using RunCommand = std::function<void(const std::string& command)>;

// An item of that name; run is given the name.
void AddCommand(QMenu& menu, const char* name, const QString& caption, bool enabled, const RunCommand& run);
// mnuView, mnuArrange and mnuLineUp.
void AddLookMenus(QMenu& menu, const ListLook& look, const ListTable& list, bool lineUpEnabled,
                  const RunCommand& run);
// The contents of the two sub-menus.
void AddViews(QMenu& menu, const ListLook& look, const RunCommand& run);
void AddArrangements(QMenu& menu, const ListLook& look, const ListTable& list, const RunCommand& run);

}  // namespace tw
