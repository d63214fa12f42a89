// The main window's place and size in the settings, in twips, and on the screen.
#pragma once

#include <QRect>

#include "shell/Settings.h"

class QMainWindow;
class QWidget;

namespace tw {

// The size of the main window before any has been stored, in pixels.
QSize FirstSize(const QWidget& window);

// The settings' place and size in pixels, moved and made to fit so that all of it lies in the room.
QRect GeometryOf(const Settings& settings, double dotsPerInch, const QSize& least, const QRect& room);

void ApplyGeometry(QMainWindow& window, const Settings& settings, const SettingsStore& store);
// Keeps the present normal geometry, and whether the window is maximised.
void KeepGeometry(const QMainWindow& window, Settings& settings, const SettingsStore& store);

}  // namespace tw
