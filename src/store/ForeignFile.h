// Limits what somebody else's file can do when it is opened as a database: it may contain tables, and nothing
// else. No view, virtual table or trigger in it is ever run, no statement changes its schema or accesses
// another file, and no statement runs without end.
#pragma once

#include <chrono>
#include <functional>

#include "store/Database.h"
#include "store/SqliteHandle.h"

namespace tw {

// Forbids everything that a recipe file does not need. REQUIRES: nothing has been
// read through the handle yet.
void Distrust(sqlite3* handle);

// Raises Error if a recipe table of the file is not a real table.
void CheckForeignTables(Database& database);

// Limits the time that the statements of a handle run.
class StatementWatch {
  public:
    // The total time that statements may run without progress. Time between statements does not count: the
    // brewer may be reading a message.
    static constexpr std::chrono::milliseconds kLimit{10000};
    // Of the time between two checks, at most this much counts as running.
    static constexpr std::chrono::milliseconds kMostBetween{250};
    // The number of SQLite's virtual machine instructions between two checks.
    static constexpr int kSteps = 1000;

    // REQUIRES: Detach is called before this object is destroyed.
    StatementWatch(sqlite3* handle, Database::Clock now);
    StatementWatch(const StatementWatch&) = delete;
    StatementWatch& operator=(const StatementWatch&) = delete;

    static void Detach(sqlite3* handle);
    void MarkProgress() { spent_ = {}; }
    void SetWatch(std::function<bool()> watch) { watch_ = std::move(watch); }

  private:
    // True if the statement may continue.
    bool Look();

    Database::Clock now_;
    std::function<bool()> watch_;
    std::chrono::milliseconds last_;
    std::chrono::milliseconds spent_{};
};

}  // namespace tw
