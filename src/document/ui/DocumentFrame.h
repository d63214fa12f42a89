// What a document window needs from the main window around it.
#pragma once

#include <QPoint>
#include <string>

#include "commands/Commands.h"
#include "document/TypingUnits.h"
#include "platform/qt/CellColors.h"

class QAction;

namespace tw {

// The two colour pairs of the settings. A colour that the brewer has not chosen is invalid.
struct GridColors {
    CellColors readOnly, total;
};

class DocumentFrame {
  public:
    virtual ~DocumentFrame() = default;
    // Runs a command of the main window. Returns false if the command is disabled; its key may then have its
    // usual effect.
    virtual bool RunCommand(CommandId command) = 0;
    // Opens the Edit menu as a popup, with first above its items; first is deleted when the menu closes.
    virtual void ShowEditMenu(const QPoint& globalPosition, QAction* first = nullptr) = 0;
    virtual GridColors Colors() const = 0;
    // Shows a text in the status bar for a few seconds.
    virtual void SayBriefly(const std::string& text) = 0;
    // The units of the examples in hints.
    virtual TypingUnits Units() const = 0;
    // True if the recipes show the strip of figures below their tabs; HideFigures removes it from all.
    virtual bool ShowsFigures() const = 0;
    virtual void HideFigures() = 0;
};

}  // namespace tw
