#include "store/StatementWatch.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace tw {

StatementWatch::StatementWatch(sqlite3* handle, MonotonicClock now) : now_(std::move(now)), last_(now_()) {
    const auto look = [](void* watch) noexcept {
        try {
            return static_cast<StatementWatch*>(watch)->Look() ? 0 : 1;
        } catch (...) {
            return 1;  // no exception may pass through SQLite
        }
    };
    sqlite3_progress_handler(handle, kSteps, look, this);
}

void StatementWatch::Detach(sqlite3* handle) {
    sqlite3_progress_handler(handle, 0, nullptr, nullptr);
}

bool StatementWatch::Look() {
    const std::chrono::milliseconds now = now_();
    spent_ += std::min(now - last_, kMostBetween);
    last_ = now;
    return spent_ <= kLimit && (!watch_ || watch_());
}

}  // namespace tw
