#include "store/StatementCache.h"

#include <iterator>
#include <sqlite3.h>

namespace tw {

sqlite3_stmt* StatementCache::Take(const std::string& sql) {
    for (auto each = idle_.rbegin(); each != idle_.rend(); ++each) {
        if (sql != sqlite3_sql(*each)) continue;
        sqlite3_stmt* const statement = *each;
        idle_.erase(std::next(each).base());
        return statement;
    }
    return nullptr;
}

void StatementCache::GiveBack(sqlite3_stmt* statement) noexcept {
    const bool failed = sqlite3_reset(statement) != SQLITE_OK;
    if (closed_ || failed) {
        sqlite3_finalize(statement);
        return;
    }
    sqlite3_clear_bindings(statement);
    if (idle_.size() == kMost) {
        sqlite3_finalize(idle_.front());
        idle_.erase(idle_.begin());
    }
    // There is room: nothing is allocated.
    idle_.push_back(statement);
}

void StatementCache::Clear() noexcept {
    for (sqlite3_stmt* const statement : idle_) sqlite3_finalize(statement);
    idle_.clear();
}

void StatementCache::Close() noexcept {
    Clear();
    closed_ = true;
}

}  // namespace tw
