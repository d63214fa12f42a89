#include "tree/ProgressModel.h"

namespace tw {
namespace {

// So many are done before a window would have come up.
constexpr std::size_t kWithoutWindow = 10;

}  // namespace

void ProgressModel::Rethrow() const {
    if (error_) std::rethrow_exception(error_);
}

std::vector<DialogControl> ProgressModel::Controls() const {
    return {{"lblObject", Name()}, {"ProgressBar1", std::to_string(done_)}};
}

bool ProgressModel::SetControl(std::string_view, std::string_view) {
    return false;
}

bool ProgressModel::Press(std::string_view button) {
    if (button != "cmdCancel") return false;
    CloseBox();
    return true;
}

void ProgressModel::CloseBox() {
    stopped_ = true;
    if (!running_) open_ = false;
}

void ProgressModel::FirstShown() {
    if (!open_ || running_) return;
    running_ = true;
    try {
        for (; done_ < Total(); ++done_) {
            if (observer_) observer_();
            if (stopped_ || !step_(done_)) break;
        }
    } catch (...) {
        error_ = std::current_exception();
    }
    running_ = false;
    open_ = false;
}

void RunSteps(DialogPort& dialogs, const std::string& title, std::vector<std::string> names,
              const ProgressModel::Step& step) {
    if (names.size() <= kWithoutWindow) {
        for (std::size_t i = 0; i < names.size() && step(i);) ++i;
        return;
    }
    ProgressModel progress(title, std::move(names), step);
    dialogs.ShowModal(progress);
    progress.Rethrow();
}

}  // namespace tw
