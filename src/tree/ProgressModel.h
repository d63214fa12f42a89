// The window that shows how far an operation on many objects has come (frmProgress), and lets it be stopped
// between two of them. It works as soon as it is shown, and goes.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"

namespace tw {

// lblObject, the name of the object being worked on; ProgressBar1, the number of those done; cmdCancel.
class ProgressModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmProgress";

    using Work = std::function<void(ProgressModel&)>;
    // So many objects are done before a window would be read.
    static constexpr int kWithoutWindow = 10;

    // title: what is being done, such as "Deleting". work tells its progress here.
    ProgressModel(std::string title, Work work);

    // Called after each change of what the window shows: it paints, and lets waiting events run.
    void SetObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    const std::string& Title() const { return title_; }
    // The object that is being worked on.
    const std::string& Name() const { return name_; }
    int Done() const { return done_; }
    int Total() const { return total_; }
    // The brewer has called it off.
    bool IsCancelled() const { return cancelled_; }
    // The hourglass is wanted: it works and asks nothing.
    bool IsBusy() const { return busy_; }

    // For the work. False once the brewer has called it off.
    bool Show(const std::string& name, int done, int total);
    void SetBusy(bool busy);

    // Calls the work off behind the present object; before the work it closes the window.
    void CloseBox() override;
    // Works and closes, also when an error rises from the work.
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

// Runs step for each of the objects, in their order, until one is false; for more than a few of them behind
// the progress window. Raises what a step raises; the objects before it are done then.
void RunSteps(DialogPort& dialogs, const std::string& title, const std::vector<std::string>& names,
              const std::function<bool(std::size_t index)>& step);

}  // namespace tw
