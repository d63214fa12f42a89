// F1 in a window that is worked by a dialog's model.
#pragma once

#include <functional>
#include <string>

class QDialog;

namespace tw {

// Shows the help of a form; tab is the position of the tab in front, from 1, or 0 in a window without tabs.
using HelpOpener = std::function<void(const std::string& form, int tab)>;

// F1 without another key opens the help of the window from now on.
void InstallHelpKey(QDialog& window, const std::string& form, const HelpOpener& open);

}  // namespace tw
