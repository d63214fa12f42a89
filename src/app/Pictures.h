// Pictures of the windows, for looking at them and for the handbook.
#pragma once

#include <QSize>
#include <QString>

namespace tw {

class QtDialogs;
class Shell;
class MainWindow;

// Gives the main window that size for pictures, or its usual one for an empty size.
void TakeSize(MainWindow& window, const QSize& size);

// Writes what the main window shows into a PNG file. False when the file cannot be written,
// or is one of the program's own.
bool TakePicture(MainWindow& window, Shell& shell, const QString& file);

// Writes every tab of the recipe in front and every dialog into folder, on light and on dark. False when a
// file cannot be written, or is one of the program's own.
bool TakeAllPictures(MainWindow& window, Shell& shell, QtDialogs& dialogs, const QString& folder);

}  // namespace tw
