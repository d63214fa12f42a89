// The help as the main window opens it.
#pragma once

#include <string_view>

#include "shell/DocumentManager.h"
#include "shell/ShellEnvironment.h"
#include "shell/ShellView.h"

namespace tw {

class HelpDesk {
  public:
    // All must outlive the object.
    HelpDesk(const ShellEnvironment& environment, const DocumentManager& documents, ViewSlot& view)
        : environment_(environment), documents_(documents), view_(view) {}

    // What F1 does in a window; an error is shown.
    void ShowContextHelp(std::string_view formName, std::string_view context);
    // The page of the active document's tab; the home page without one, and while it is minimised.
    void ShowForActive();
    void ShowContents();

  private:
    const ShellEnvironment& environment_;
    const DocumentManager& documents_;
    ViewSlot& view_;
};

}  // namespace tw
