// The window that shows the progress of an operation on many objects (frmProgress) and can stop it after the
// current object. The operation starts when the window is shown, and its end closes the window.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "platform/ScopeGuard.h"

namespace tw {

// lblObject contains the name of the current object, ProgressBar1 the number of objects done. cmdCancel stops
// the operation.
class ProgressModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmProgress";

    using Work = std::function<void(ProgressModel&)>;
    // Up to this many objects need no window: they are done before it could be read.
    static constexpr int kWithoutWindow = 10;

    // title says what is being done, such as "Deleting". work reports its progress by calling Show.
    ProgressModel(std::string title, Work work);

    // Sets a callback that runs after each change of the displayed values: it paints the window and processes
    // waiting events.
    void SetObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    const std::string& Title() const { return title_; }
    // The name of the current object.
    const std::string& Name() const { return name_; }
    int Done() const { return done_; }
    int Total() const { return total_; }
    // True if the brewer has cancelled the operation.
    bool IsCancelled() const { return cancelled_; }
    // True if the hourglass is to be shown: the operation is running and no other dialog is open.
    bool IsBusy() const { return busy_; }

    // For the work: shows its progress. False once the brewer has cancelled.
    bool Show(const std::string& name, int done, int total);
    void SetBusy(bool busy);

    // Cancels the operation after the current object; before it has started, closes the window.
    void CloseBox() override;
    // Runs the operation and closes the window, even if the operation raises an error.
    void FirstShown() override;

  private:
    void Tell() const;

    std::string title_;
    Work work_;
    std::function<void()> observer_;
    std::string name_;
    int done_ = 0;
    int total_ = 0;
    bool running_ = false;
    bool busy_ = false;
    bool cancelled_ = false;
};

// Pauses the progress window until the end of a scope in which another dialog is open.
inline auto Pause(ProgressModel& progress) {
    progress.SetBusy(false);
    return ScopeGuard([&progress] { progress.SetBusy(true); });
}

// Runs step for each of the objects, in order, until it returns false; with the progress window if there are
// more than kWithoutWindow. Raises the error of a step; the steps before it remain done.
void RunSteps(DialogPort& dialogs, const std::string& title, const std::vector<std::string>& names,
              const std::function<bool(std::size_t index)>& step);

}  // namespace tw
