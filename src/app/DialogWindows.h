// The window class of every dialog, in one table.
#pragma once

namespace tw {

class ColorChooser;
class QtDialogs;
class SettingsPort;

// Both services must outlive the windows.
void RegisterDialogWindows(QtDialogs& dialogs, ColorChooser& colors, SettingsPort& settings);

}  // namespace tw
