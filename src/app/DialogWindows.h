// The window class of every dialog, in one table.
#pragma once

namespace tw {

class ColorChooser;
class QtDialogs;

// colors must outlive the windows.
void RegisterDialogWindows(QtDialogs& dialogs, ColorChooser& colors);

}  // namespace tw
