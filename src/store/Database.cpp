#include "store/Database.h"

#include <sqlite3.h>

#include "store/Schema.h"
#include "store/SqlDialect.h"
#include "store/SqliteHandle.h"
#include "values/Text.h"

namespace tw {
namespace {

struct StatementFinalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

}  // namespace

Database::Database(sqlite3* handle, std::string path) : handle_(handle), path_(std::move(path)) {}

Database::~Database() {
    HandleCloser()(handle_);
}

std::unique_ptr<Database> Database::OpenDatabase(const std::string& path, bool exclusive) {
    return std::unique_ptr<Database>(new Database(OpenDatabaseFile(path, exclusive).release(), path));
}

std::unique_ptr<Database> Database::CreateDatabase(const std::string& path, std::string_view) {
    return std::unique_ptr<Database>(new Database(CreateDatabaseFile(path).release(), path));
}

std::unique_ptr<Database> Database::CreateInMemory() {
    std::unique_ptr<Database> database(new Database(OpenMemoryDatabase().release(), ":memory:"));
    CreateSchema(*database);
    return database;
}

sqlite3_stmt* Database::Prepare(std::string_view sql, bool select) {
    if (hook_) hook_(sql);
    // The disk itself may undo a unit of work in its middle. What would run now would stand alone.
    if (unitDepth_ > 0 && sqlite3_get_autocommit(handle_) != 0)
        throw Error(kDatabaseSource, "The operation was undone by an earlier error.", SQLITE_ABORT);
    const DialectStatement translated = TranslateSql(sql);
    if ((translated.kind == StatementKind::Select) != select)
        throw Error(kDatabaseSource,
                    select ? "A recordset is opened on a SELECT." : "A SELECT is not executed.",
                    SQLITE_ERROR);
    sqlite3_stmt* statement = nullptr;
    // With the closing NUL counted, SQLite reads the text in place.
    if (sqlite3_prepare_v3(handle_, translated.sql.c_str(), static_cast<int>(translated.sql.size() + 1), 0,
                           &statement, nullptr) != SQLITE_OK)
        RaiseStoreError(handle_, kDatabaseSource);
    int parameter = 0;
    for (const double number : translated.numbers) sqlite3_bind_double(statement, ++parameter, number);
    return statement;
}

void Database::Execute(std::string_view sql) {
    recordsAffected_ = 0;
    const std::unique_ptr<sqlite3_stmt, StatementFinalizer> statement(Prepare(sql, false));
    int result = SQLITE_ROW;
    while (result == SQLITE_ROW) result = sqlite3_step(statement.get());
    if (result != SQLITE_DONE) RaiseStoreError(handle_, kDatabaseSource);
    recordsAffected_ = sqlite3_changes(handle_);
}

std::int64_t Database::ChangeCount() const {
    return sqlite3_total_changes64(handle_);
}

void Database::ExecuteNative(const std::string& sql) {
    RunNative(handle_, sql);
}

UnitOfWork::UnitOfWork(Database& database) : database_(database) {
    if (database_.unitDepth_ == 0) RunNative(database_.handle_, "BEGIN IMMEDIATE");
    ++database_.unitDepth_;
}

void UnitOfWork::Commit() {
    if (!open_) return;
    open_ = false;
    if (--database_.unitDepth_ > 0) return;
    sqlite3* const handle = database_.handle_;
    if (sqlite3_get_autocommit(handle) != 0)
        throw Error(kDatabaseSource, "The operation was undone by an earlier error.", SQLITE_ABORT);
    if (sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK) return;
    const Error refusal(kDatabaseSource, sqlite3_errmsg(handle), sqlite3_extended_errcode(handle) & 0xff);
    sqlite3_exec(handle, "ROLLBACK", nullptr, nullptr, nullptr);
    throw refusal;
}

UnitOfWork::~UnitOfWork() {
    try {
        Commit();
    } catch (const Error&) {
        // An exception is on its way already, or the caller did not ask: the old state stands.
    }
}

std::string DoubleQuotes(std::string_view text) {
    return ReplaceAll(text, "'", "''");
}

std::string SqlText(std::string_view text) {
    std::string quoted;
    AppendSqlText(quoted, text);
    return quoted;
}

void AppendSqlText(std::string& out, std::string_view text) {
    out.push_back('\'');
    for (;;) {
        const std::size_t quote = text.find('\'');
        if (quote == std::string_view::npos) break;
        out.append(text.substr(0, quote + 1)).push_back('\'');
        text.remove_prefix(quote + 1);
    }
    out.append(text).push_back('\'');
}

}  // namespace tw
