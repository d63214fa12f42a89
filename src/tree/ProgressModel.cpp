#include "tree/ProgressModel.h"

#include "platform/ScopeGuard.h"

namespace tw {

ProgressModel::ProgressModel(std::string title, Work work)
    : FormModel(kFormName), title_(std::move(title)), work_(std::move(work)) {
    AddControls({
        {"lblObject", [this] { return name_; }},
        {"ProgressBar1", [this] { return std::to_string(done_); }},
    });
    AddButtons({{"cmdCancel", [this] { CloseBox(); }}});
}

bool ProgressModel::Show(const std::string& name, int done, int total) {
    name_ = name;
    done_ = done;
    total_ = total;
    Tell();
    return !cancelled_;
}

void ProgressModel::SetBusy(bool busy) {
    if (busy_ == busy) return;
    busy_ = busy;
    Tell();
}

void ProgressModel::CloseBox() {
    cancelled_ = true;
    if (!running_) Close();
}

void ProgressModel::FirstShown() {
    if (!IsOpen() || running_) return;
    running_ = true;
    const ScopeGuard end([this] {
        running_ = false;
        Close();
        busy_ = false;
    });
    SetBusy(true);
    work_(*this);
    SetBusy(false);
}

void ProgressModel::Tell() const {
    if (observer_) observer_();
}

void RunSteps(DialogPort& dialogs, const std::string& title, const std::vector<std::string>& names,
              const std::function<bool(std::size_t index)>& step) {
    const int total = static_cast<int>(names.size());
    if (total <= ProgressModel::kWithoutWindow) {
        for (std::size_t i = 0; i < names.size() && step(i);) ++i;
        return;
    }
    ProgressModel progress(title, [&](ProgressModel& shown) {
        for (std::size_t i = 0; i < names.size(); ++i)
            if (!shown.Show(names[i], static_cast<int>(i), total) || !step(i)) return;
    });
    dialogs.ShowModal(progress);
}

}  // namespace tw
