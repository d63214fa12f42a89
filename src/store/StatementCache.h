// Compiled statements that are kept for the next use, since compiling a short statement takes longer than
// running it.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

struct sqlite3_stmt;

namespace tw {

// The idle statements of one database. None of them holds a lock or a value.
class StatementCache {
  public:
    // Enough for a save, which runs some forty different statements.
    static constexpr std::size_t kMost = 64;

    StatementCache() { idle_.reserve(kMost); }
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;
    ~StatementCache() { Clear(); }

    // Returns an idle statement of exactly that text, which the caller then owns; nullptr if there is none.
    sqlite3_stmt* Take(const std::string& sql);
    // Keeps a statement that is no longer used, in place of the one whose last use was longest ago. A
    // statement whose last run failed is finalized instead.
    void GiveBack(sqlite3_stmt* statement) noexcept;
    // Finalizes all idle statements: those compiled after a change of the schema fail at once if a table is
    // missing, and not only when they run.
    void Clear() noexcept;
    // As Clear; from now on, no statement is kept.
    void Close() noexcept;

  private:
    std::vector<sqlite3_stmt*> idle_;  // the last one used is the last
    bool closed_ = false;
};

// A compiled statement in use. It goes back to its cache when it is destroyed, even after the database.
class CompiledStatement {
  public:
    CompiledStatement(sqlite3_stmt* statement, std::shared_ptr<StatementCache> cache)
        : statement_(statement), cache_(std::move(cache)) {}
    CompiledStatement(CompiledStatement&& other) noexcept
        : statement_(std::exchange(other.statement_, nullptr)), cache_(std::move(other.cache_)) {}
    CompiledStatement& operator=(CompiledStatement&&) = delete;
    ~CompiledStatement() {
        if (statement_ != nullptr) cache_->GiveBack(statement_);
    }

    sqlite3_stmt* Get() const { return statement_; }

  private:
    sqlite3_stmt* statement_;
    std::shared_ptr<StatementCache> cache_;
};

}  // namespace tw
