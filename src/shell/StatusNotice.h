// The notice in the status bar about persistent problems.
#pragma once

#include <string>

#include "shell/OpenedDatabase.h"
#include "shell/ShellView.h"

namespace tw {

class StatusNotice {
  public:
    explicit StatusNotice(ViewSlot& view) : view_(view) {}
    // Sets the database to watch; nullptr while none is open.
    void Watch(const OpenedDatabase* database) { database_ = database; }
    // Sets whether the last attempt failed to keep all unsaved work. Update passes it to the window.
    void SetUnsavedNotKept(bool notKept) { unsavedNotKept_ = notKept; }
    bool UnsavedNotKept() const { return unsavedNotKept_; }
    // Computes the notice from the current problems, and notifies the window if it has changed.
    void Update();

  private:
    ViewSlot& view_;
    const OpenedDatabase* database_ = nullptr;
    bool unsavedNotKept_ = false;
    std::string shown_;
};

}  // namespace tw
