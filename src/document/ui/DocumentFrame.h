// What a document window asks of the main window around it.
#pragma once

#include <QPoint>

#include "commands/Commands.h"
#include "platform/qt/CellColors.h"

namespace tw {

// The two colour pairs of the settings, as far as the brewer has chosen them.
struct GridColors {
    CellColors readOnly, total;
};

class DocumentFrame {
  public:
    virtual ~DocumentFrame() = default;
    // Runs a command of the main window. False when it is disabled: the key may then do what it does
    // elsewhere.
    virtual bool RunCommand(CommandId command) = 0;
    // Opens the edit menu as a popup.
    virtual void ShowEditMenu(const QPoint& globalPosition) = 0;
    virtual GridColors Colors() const = 0;
};

}  // namespace tw
