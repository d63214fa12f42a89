// A time limit on the statements of a database handle.
#pragma once

#include <chrono>
#include <functional>

struct sqlite3;

namespace tw {

using MonotonicClock = std::function<std::chrono::milliseconds()>;

// Limits the time that the statements of a handle run.
class StatementWatch {
  public:
    // The total time that statements may run without progress. Time between statements does not count: the
    // brewer may be reading a message.
    static constexpr std::chrono::milliseconds kLimit{10000};
    // Of the time between two checks, at most this much counts as running.
    static constexpr std::chrono::milliseconds kMostBetween{250};
    // The number of instructions of SQLite's virtual machine between two checks.
    static constexpr int kSteps = 1000;

    // Starts to watch the handle. REQUIRES: Detach is called before this object is destroyed.
    StatementWatch(sqlite3* handle, MonotonicClock now);
    StatementWatch(const StatementWatch&) = delete;
    StatementWatch& operator=(const StatementWatch&) = delete;

    // Stops watching the handle.
    static void Detach(sqlite3* handle);
    // Restarts the time limit.
    void MarkProgress() { spent_ = {}; }
    // Sets a callback for each check; by returning false it interrupts the statement.
    void SetWatch(std::function<bool()> watch) { watch_ = std::move(watch); }

  private:
    // True if the statement may continue.
    bool Look();

    MonotonicClock now_;
    std::function<bool()> watch_;
    std::chrono::milliseconds last_;
    std::chrono::milliseconds spent_{};
};

}  // namespace tw
