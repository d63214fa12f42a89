// The window of each dialog: the one table of them.
#pragma once

namespace tw {

class ColorChooser;
class QtDialogs;

// colors must outlive the windows.
void RegisterDialogWindows(QtDialogs& dialogs, ColorChooser& colors);

}  // namespace tw
