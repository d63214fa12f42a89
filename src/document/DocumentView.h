// The window of a recipe as the logic sees it, and the tabs that it shows.
#pragma once

#include <string>

namespace tw {

// The nine tabs.
enum class Tab : int { General, Grains, Extracts, Hops, Water, Carbonation, Adjuncts, Log, Notes };
inline constexpr int kTabs = 9;

class DocumentView {
  public:
    virtual ~DocumentView() = default;
    // Commits whatever is being edited in the window: the open cell editor, the focused text box. False when
    // an entry was refused; it stays open and its box has been shown.
    virtual bool FlushEditors() = 0;
    // An undo or redo works on that tab.
    virtual void TabWanted(Tab) {}
    // The control of that name should have the focus, if it can be seen.
    virtual void ControlWanted(const std::string& /*name*/) {}
    // Many changes come: nothing needs to be painted until they are all there. Calls nest.
    virtual void HoldRedraw(bool /*hold*/) {}
};

// For the time of a scope the window does not paint.
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
