// The window that shows how far an operation on many objects has come (frmProgress), and lets it be stopped
// between two of them.
#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "platform/Ports.h"

namespace tw {

class ProgressModel final : public DialogModel {
  public:
    // Works on the object of that number; false ends the run.
    using Step = std::function<bool(std::size_t index)>;

    // title: what is being done, such as "Deleting"; names: the objects, in the order of the work.
    ProgressModel(std::string title, std::vector<std::string> names, Step step)
        : title_(std::move(title)), names_(std::move(names)), step_(std::move(step)) {}

    // Called before each step: the window paints, and lets its button be pressed.
    void SetObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    const std::string& Title() const { return title_; }
    // The object that is being worked on.
    std::string Name() const { return done_ < Total() ? names_[done_] : std::string(); }
    std::size_t Done() const { return done_; }
    std::size_t Total() const { return names_.size(); }
    // Raises again what ended the run, if that was an error.
    void Rethrow() const;

    std::string FormName() const override { return "frmProgress"; }
    // lblObject, the name of the object being worked on, and ProgressBar1, the number of those done.
    std::vector<DialogControl> Controls() const override;
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdCancel stops the run before the next object; what is done stays done.
    bool Press(std::string_view button) override;
    // As cmdCancel.
    void CloseBox() override;
    bool IsOpen() const override { return open_; }
    // Does the work.
    void FirstShown() override;

  private:
    std::string title_;
    std::vector<std::string> names_;
    Step step_;
    std::function<void()> observer_;
    std::size_t done_ = 0;
    bool open_ = true;
    bool running_ = false;
    bool stopped_ = false;
    std::exception_ptr error_;
};

// Runs step for each of the objects until one is false; for more than a few of them behind the progress
// window. Raises what a step raises; the objects before it are done then.
void RunSteps(DialogPort& dialogs, const std::string& title, std::vector<std::string> names,
              const ProgressModel::Step& step);

}  // namespace tw
