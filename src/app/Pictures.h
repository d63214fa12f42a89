// Takes pictures of the windows, for inspection and for the handbook.
#pragma once

#include <QSize>
#include <QString>

namespace tw {

class QtDialogs;
class Shell;
class MainWindow;

// Resizes the main window for pictures; an empty size means its default size. In pixels.
void TakeSize(MainWindow& window, const QSize& size);

// Writes a picture of the main window into a PNG file. False if the file cannot be written or is one of the
// program's own files.
bool TakePicture(MainWindow& window, Shell& shell, const QString& file);

// Writes pictures of every tab of the active recipe and of every dialog into folder, once in light and once
// in dark colours. False if a file cannot be written or is one of the program's own.
bool TakeAllPictures(MainWindow& window, Shell& shell, QtDialogs& dialogs, const QString& folder);

}  // namespace tw
