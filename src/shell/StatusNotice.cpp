#include "shell/StatusNotice.h"

#include <string_view>
#include <utility>

namespace tw {

void StatusNotice::Update() {
    std::string notice;
    const auto add = [&](bool applies, std::string_view text) {
        if (!applies) return;
        if (!notice.empty()) notice += ' ';
        notice += text;
    };
    add(database_ != nullptr && database_->database->ReadOnly(), "Write-protected: recipes cannot be saved.");
    add(database_ != nullptr && !database_->tree.IsUpToDate(),
        "The lists are not up to date: the database cannot be read.");
    add(unsavedNotKept_, "Unsaved work is not being kept: save your recipes.");
    if (notice == shown_) return;
    shown_ = std::move(notice);
    view_->NoticeChanged(shown_);
}

}  // namespace tw
