// The main window, as far as the logic needs it.
#pragma once

#include <string>

namespace tw {

class RecipeDocument;

// The arrangements of the document windows.
enum class Arrangement : int { Cascade, TileHorizontal, TileVertical };

// Every call comes after the change.
class ShellView {
  public:
    virtual ~ShellView() = default;
    virtual void DocumentOpened(RecipeDocument&) {}
    // The document still exists during the call.
    virtual void DocumentClosing(RecipeDocument&) {}
    // Shows and focuses that document's window, un-minimised; nullptr when none is left.
    virtual void DocumentActivated(RecipeDocument*) {}
    // The caption or the modified flag has changed.
    virtual void DocumentRenamed(const RecipeDocument&) {}
    virtual void ArrangeDocuments(Arrangement) {}
    // The icon set or the button style of the settings has changed.
    virtual void ToolbarIconsChanged() {}
    virtual void ToolbarButtonStyleChanged() {}
    // The grid colours of the settings have changed: that document's grids repaint.
    virtual void GridColorsChanged(const RecipeDocument&) {}
    // The autosave timer is to run or to stand still.
    virtual void AutoSaveSwitched(bool /*on*/) {}
    // A recipe has edits that are kept nowhere: UnsavedWork::Keep is due within a few seconds.
    virtual void UnsavedWorkWaits() {}
    // What is wrong and stays so until the next call, such as that unsaved work is not kept; empty when all
    // is well.
    virtual void NoticeChanged(const std::string& /*notice*/) {}
    // Good news, to be shown for a moment.
    virtual void SayBriefly(const std::string& /*text*/) {}
    // Whether that document's window is minimised.
    virtual bool IsMinimized(const RecipeDocument&) const { return false; }
    // A window other than the main window and the recipes' windows is open.
    virtual bool IsDialogOpen() const { return false; }
    // The main window is to stand before all others, with the dialog that is open in it.
    virtual void BringToFront() {}
    // Commands from outside are queued: InstanceService::TickDDE is due every kDDETickMilliseconds until none
    // is left.
    virtual void OutsideCommandsWait() {}
    // Ends the program (the close request has been granted, or the database could not be opened).
    virtual void CloseMainWindow() {}
};

// Holds the window, which comes after the logic and goes before it. Meanwhile what is told goes nowhere.
class ViewSlot {
  public:
    ViewSlot() = default;
    ViewSlot(const ViewSlot&) = delete;
    ViewSlot& operator=(const ViewSlot&) = delete;
    // nullptr for none.
    void Set(ShellView* view) { view_ = view != nullptr ? view : &none_; }
    ShellView* operator->() const { return view_; }

  private:
    ShellView none_;
    ShellView* view_ = &none_;
};

}  // namespace tw
