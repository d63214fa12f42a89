// The F1 key in a dialog window.
#pragma once

#include <functional>
#include <string>

class QDialog;

namespace tw {

// Shows the help of a form. tab is the number of the current tab, from 1, or 0 in a window without tabs.
using HelpOpener = std::function<void(const std::string& form, int tab)>;

// Calls open for form whenever F1 is pressed in the window without a modifier key.
void InstallHelpKey(QDialog& window, const std::string& form, const HelpOpener& open);

}  // namespace tw
