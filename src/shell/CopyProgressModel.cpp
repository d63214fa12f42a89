#include "shell/CopyProgressModel.h"

namespace tw {

bool CopyProgressModel::Show(const std::string& recipeName, int done, int total) {
    recipeName_ = recipeName;
    done_ = done;
    total_ = total;
    Tell();
    return !cancelled_;
}

void CopyProgressModel::SetBusy(bool busy) {
    if (busy_ == busy) return;
    busy_ = busy;
    Tell();
}

std::vector<DialogControl> CopyProgressModel::Controls() const {
    return {{"lblRecipe", recipeName_}, {"ProgressBar1", std::to_string(done_)}};
}

bool CopyProgressModel::Press(std::string_view button) {
    if (button != "cmdCancel") return false;
    CloseBox();
    return true;
}

void CopyProgressModel::CloseBox() {
    cancelled_ = true;
    if (!running_) open_ = false;
}

void CopyProgressModel::FirstShown() {
    if (!open_ || running_) return;
    running_ = true;
    struct End {
        CopyProgressModel& model;
        ~End() {
            model.running_ = false;
            model.open_ = false;
            model.busy_ = false;
        }
    };
    const End end{*this};
    SetBusy(true);
    work_(*this);
    SetBusy(false);
}

void CopyProgressModel::Tell() const {
    if (observer_) observer_();
}

}  // namespace tw
