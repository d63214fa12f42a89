// What a file of somebody else may do when it is opened as a database: hold tables, and nothing else. No
// view, virtual table or trigger in it ever runs, no statement changes its tables' form or reaches another
// file, and no statement reads on and on.
#pragma once

#include <chrono>
#include <functional>

#include "store/Database.h"
#include "store/SqliteHandle.h"

namespace tw {

// Takes away what a recipe file has no use for. Call it before the first read.
void Distrust(sqlite3* handle);

// Raises an error when what has the name of a recipe table is no table.
void CheckForeignTables(Database& database);

// Looks after the statements of a handle while they run.
class StatementWatch {
  public:
    // So long may the statements run together without progress. Time between them does not count: the brewer
    // may be reading a box.
    static constexpr std::chrono::milliseconds kLimit{10000};
    // The longest time between two looks that is taken for running.
    static constexpr std::chrono::milliseconds kMostBetween{250};
    // Steps of SQLite's machine between two looks.
    static constexpr int kSteps = 1000;

    // REQUIRES: Detach is called before the object goes.
    StatementWatch(sqlite3* handle, Database::Clock now);
    StatementWatch(const StatementWatch&) = delete;
    StatementWatch& operator=(const StatementWatch&) = delete;

    static void Detach(sqlite3* handle);
    void MarkProgress() { spent_ = {}; }
    void SetWatch(std::function<bool()> watch) { watch_ = std::move(watch); }

  private:
    // Whether the statement may go on.
    bool Look();

    Database::Clock now_;
    std::function<bool()> watch_;
    std::chrono::milliseconds last_;
    std::chrono::milliseconds spent_{};
};

}  // namespace tw
