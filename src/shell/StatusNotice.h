// The notice in the status bar: what is wrong and stays so for a while.
#pragma once

#include <string>

#include "shell/OpenedDatabase.h"
#include "shell/ShellView.h"

namespace tw {

class StatusNotice {
  public:
    explicit StatusNotice(ViewSlot& view) : view_(view) {}
    // Says nothing about the database for nullptr, while none is open.
    void Watch(const OpenedDatabase* database) { database_ = database; }
    // Whether the last try could not keep all unsaved work. Update brings it to the window.
    void SetUnsavedNotKept(bool notKept) { unsavedNotKept_ = notKept; }
    bool UnsavedNotKept() const { return unsavedNotKept_; }
    // Brings the notice in line with what is wrong now; the window is told of changes alone.
    void Update();

  private:
    ViewSlot& view_;
    const OpenedDatabase* database_ = nullptr;
    bool unsavedNotKept_ = false;
    std::string shown_;
};

}  // namespace tw
