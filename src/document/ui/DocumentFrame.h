// What a document window asks of the main window around it.
#pragma once

#include <QPoint>
#include <string_view>

#include "platform/qt/CellColors.h"

namespace tw {

// The two colour pairs of the settings, as far as the brewer has chosen them.
struct GridColors {
    CellColors readOnly, total;
};

class DocumentFrame {
  public:
    virtual ~DocumentFrame() = default;
    // Runs the action of a menu item by its control name. False when it is off: the key may then do what it
    // does elsewhere.
    virtual bool RunCommand(std::string_view menuItem) = 0;
    // Opens the edit menu as a popup.
    virtual void ShowEditMenu(const QPoint& globalPosition) = 0;
    virtual GridColors Colors() const = 0;
};

}  // namespace tw
