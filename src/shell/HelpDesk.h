// Opens the help from the main window.
#pragma once

#include <string_view>

#include "shell/DocumentManager.h"
#include "shell/ShellEnvironment.h"
#include "shell/ShellView.h"

namespace tw {

class HelpDesk {
  public:
    // All arguments must outlive the object.
    HelpDesk(const ShellEnvironment& environment, const DocumentManager& documents, ViewSlot& view)
        : environment_(environment), documents_(documents), view_(view) {}

    // Shows the page that F1 opens in a window, or its error.
    void ShowContextHelp(std::string_view formName, std::string_view context);
    // Shows the page of the active document's tab, or the home page if there is no active document or its
    // window is minimised.
    void ShowForActive();
    void ShowContents();
    // Shows the page about what is new, or its error.
    void ShowNews();

  private:
    const ShellEnvironment& environment_;
    const DocumentManager& documents_;
    ViewSlot& view_;
};

}  // namespace tw
