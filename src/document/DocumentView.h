// The window of a recipe as the logic sees it, and the tabs that it shows.
#pragma once

#include <string>

namespace tw {

// The nine tabs, in the order in which they are shown.
enum class Tab : int { General, Grains, Extracts, Hops, Water, Carbonation, Adjuncts, Log, Notes };
inline constexpr int kTabs = 9;

class DocumentView {
  public:
    virtual ~DocumentView() = default;
    // Commits whatever is being edited in the window: the open cell editor and the focused text box. Returns
    // false if an entry was refused; a message has been shown and the entry is still open.
    virtual bool FlushEditors() = 0;
    // An undo or redo has moved to that tab, which should now be shown.
    virtual void TabWanted(Tab) {}
    // The control of that name should get the focus, if it is visible.
    virtual void ControlWanted(const std::string& /*name*/) {}
    // Suspends painting (true) until a matching call resumes it (false), because many changes follow.
    // Calls nest.
    virtual void HoldRedraw(bool /*hold*/) {}
};

// Suspends the window's painting during a scope. view is nullptr without a window.
class RedrawHold {
  public:
    explicit RedrawHold(DocumentView* view) : view_(view) {
        if (view_) view_->HoldRedraw(true);
    }
    ~RedrawHold() {
        if (view_) view_->HoldRedraw(false);
    }
    RedrawHold(const RedrawHold&) = delete;
    RedrawHold& operator=(const RedrawHold&) = delete;

  private:
    DocumentView* view_;
};

}  // namespace tw
