// The interface through which the shell notifies the main window.
#pragma once

#include <string>

namespace tw {

class RecipeDocument;

// How to arrange the document windows.
enum class Arrangement : int { Cascade, TileHorizontal, TileVertical };

// Every notification follows the change.
class ShellView {
  public:
    virtual ~ShellView() = default;
    virtual void DocumentOpened(RecipeDocument&) {}
    // The document still exists during the call.
    virtual void DocumentClosing(RecipeDocument&) {}
    // Shows, restores and focuses the document's window; nullptr if no document is left, or if the
    // suggestions in the empty window may have changed.
    virtual void DocumentActivated(RecipeDocument*) {}
    // The caption or the modified flag has changed.
    virtual void DocumentRenamed(const RecipeDocument&) {}
    virtual void ArrangeDocuments(Arrangement) {}
    // The icon set or the button style of the settings has changed.
    virtual void ToolbarIconsChanged() {}
    virtual void ToolbarButtonStyleChanged() {}
    // The grid colours in the settings have changed: the document's grids must be repainted.
    virtual void GridColorsChanged(const RecipeDocument&) {}
    // The strips of figures in all recipe windows must be shown or hidden, as the settings say.
    virtual void FigureStripSwitched() {}
    // The autosave timer must be started or stopped.
    virtual void AutoSaveSwitched(bool /*on*/) {}
    // A recipe has edits that are not yet kept: UnsavedWork::Keep must be called within a few seconds.
    virtual void UnsavedWorkWaits() {}
    // A problem that persists until the next call, for example that unsaved work is not kept; empty if there
    // is none.
    virtual void NoticeChanged(const std::string& /*notice*/) {}
    // Good news, to be shown for a few seconds.
    virtual void SayBriefly(const std::string& /*text*/) {}
    // True if the document's window is minimised.
    virtual bool IsMinimized(const RecipeDocument&) const { return false; }
    // True if a window other than the main window and the recipe windows is open.
    virtual bool IsDialogOpen() const { return false; }
    // The main window must come to the front, with the dialog that is open in it.
    virtual void BringToFront() {}
    // Commands from outside are queued: InstanceService::TickDDE must be called every kDDETickMilliseconds
    // until none is left.
    virtual void OutsideCommandsWait() {}
    // Ends the program: the brewer has agreed to close it, or the database could not be opened.
    virtual void CloseMainWindow() {}
};

// Holds the main window, which is created after the logic and destroyed before it. Without a window, calls
// have no effect.
class ViewSlot {
  public:
    ViewSlot() = default;
    ViewSlot(const ViewSlot&) = delete;
    ViewSlot& operator=(const ViewSlot&) = delete;
    // nullptr removes the window.
    void Set(ShellView* view) { view_ = view != nullptr ? view : &none_; }
    ShellView* operator->() const { return view_; }

  private:
    ShellView none_;
    ShellView* view_ = &none_;
};

}  // namespace tw
