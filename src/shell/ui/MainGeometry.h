// The position and size of the main window, stored in twips in the settings.
#pragma once

#include <QRect>

#include "shell/Settings.h"

class QMainWindow;
class QWidget;

namespace tw {

// Returns the size of the main window when none has been stored, in pixels.
QSize FirstSize(const QWidget& window);

// Returns the stored position and size in pixels, enlarged to least, then moved and shrunk to fit into room.
QRect GeometryOf(const Settings& settings, double dotsPerInch, const QSize& least, const QRect& room);

// Gives the window its stored position and size, on the screen on which it was left. If that screen is gone,
// the window appears on its present one.
void ApplyGeometry(QMainWindow& window, const Settings& settings, const SettingsStore& store);
// Stores the position and size of the window, those without maximising, and whether it is maximised.
void KeepGeometry(const QMainWindow& window, Settings& settings, const SettingsStore& store);

}  // namespace tw
