#include "store/Database.h"

#include <cmath>
#include <sqlite3.h>
#include <utility>

#include "platform/ScopeGuard.h"
#include "store/ForeignFile.h"
#include "store/SqlDialect.h"
#include "store/SqliteHandle.h"
#include "store/StatementWatch.h"

namespace tw {
namespace {

static_assert(Database::kCannotOpenNumber == SQLITE_CANTOPEN);

// Binds a value to one parameter of a statement. Returns SQLite's result code.
struct Binder {
    sqlite3_stmt* statement;
    int parameter;
    bool copyTexts;  // false if the texts outlive the statement

    int operator()(Null) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(bool value) const { return sqlite3_bind_int(statement, parameter, value ? 1 : 0); }
    int operator()(std::int64_t value) const { return sqlite3_bind_int64(statement, parameter, value); }
    int operator()(double value) const {
        // From here on, SQLite reads the digits of a whole number as a double, too.
        constexpr double kLongest = 1e18;
        if (std::trunc(value) == value && std::abs(value) < kLongest)
            return (*this)(static_cast<std::int64_t>(value));
        return sqlite3_bind_double(statement, parameter, value);
    }
    int operator()(const std::string& value) const {
        return sqlite3_bind_text64(statement, parameter, value.data(), value.size(),
                                   copyTexts ? SQLITE_TRANSIENT : SQLITE_STATIC, SQLITE_UTF8);
    }
};

// Binds all parameters: the numbers found in the SQL text, and the caller's values.
// False if SQLite refuses one.
bool BindAll(sqlite3_stmt* statement, const DialectStatement& translated, const SqlValues& values,
             bool copyTexts) {
    auto number = translated.numbers.begin();
    auto value = values.begin();
    const int count = static_cast<int>(translated.numbers.size() + values.size());
    for (int parameter = 1; parameter <= count; ++parameter) {
        const bool isValue = value != values.end() &&
                             translated.values[static_cast<std::size_t>(value - values.begin())] == parameter;
        const int result = isValue ? std::visit(Binder{statement, parameter, copyTexts}, (value++)->Get())
                                   : sqlite3_bind_double(statement, parameter, *number++);
        if (result != SQLITE_OK) return false;
    }
    return true;
}

// Returns a guard that runs the actions, which raise nothing, at the end of its scope. Empties the list at
// once, since an action may start a unit of work of its own.
auto RunAtEnd(std::vector<std::function<void()>>& actions) {
    return ScopeGuard([taken = std::exchange(actions, {})] {
        for (const auto& action : taken) action();
    });
}

}  // namespace

Database::Database(sqlite3* handle, std::string path, bool readOnly)
    : handle_(handle), path_(std::move(path)), readOnly_(readOnly) {}

Database::~Database() {
    // A recordset may outlive the database, so the watch must not be called any more.
    if (watch_) watch_->Detach(handle_);
    statements_->Close();
    HandleCloser()(handle_);
}

std::unique_ptr<Database> Database::OpenDatabase(const std::string& path, bool exclusive) {
    OpenedFile file = OpenDatabaseFile(path, exclusive ? FileUse::Exclusive : FileUse::Shared);
    return std::unique_ptr<Database>(new Database(file.handle.release(), path, file.readOnly));
}

std::unique_ptr<Database> Database::OpenForeign(const std::string& path, Clock now) {
    OpenedFile file = OpenDatabaseFile(path, FileUse::Foreign);
    std::unique_ptr<Database> database(new Database(file.handle.release(), path));
    database->GuardForeign(std::move(now));
    return database;
}

std::unique_ptr<Database> Database::ForeignFromImage(std::string_view image, Clock now) {
    std::unique_ptr<Database> database = FromImage(image);
    Distrust(database->handle_);
    database->GuardForeign(std::move(now));
    return database;
}

void Database::GuardForeign(Clock now) {
    watch_ = std::make_unique<StatementWatch>(handle_, std::move(now));
    // A virtual table has no root page.
    const Recordset other = OpenRecordset(
        "SELECT name FROM sqlite_schema WHERE UCASE(SUBSTR(name, 1, 6)) = 'RECIPE' AND "
        "(type = 'view' OR (type = 'table' AND rootpage = 0))");
    if (other.AtEnd()) return;
    throw Error(kDatabaseSource,
                "'" + path_ + "' is no recipe file: '" + other.Fields(0).Text() + "' is no table.",
                SQLITE_SCHEMA);
}

std::chrono::milliseconds Database::SteadyNow() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void Database::MarkProgress() {
    if (watch_) watch_->MarkProgress();
}

void Database::SetWatch(std::function<bool()> watch) {
    if (watch_) watch_->SetWatch(std::move(watch));
}

void Database::CheckWritable() const {
    if (readOnly_)
        throw Error(kDatabaseSource, "The database is write-protected: nothing can be saved in it.",
                    SQLITE_READONLY);
}

void Database::RaiseUndone() const {
    if (undoneBy_) throw *undoneBy_;
    throw Error(kDatabaseSource, "The operation was undone by an earlier error.", SQLITE_ABORT);
}

void Database::AfterUnit(const std::function<void()>& action) {
    if (unitDepth_ == 0) return action();
    afterUnit_.push_back(action);
}

std::unique_ptr<Database> Database::CreateDatabase(const std::string& path, std::string_view) {
    return std::unique_ptr<Database>(new Database(CreateDatabaseFile(path).release(), path));
}

CompiledStatement Database::Prepare(std::string_view sql, const SqlValues& values, bool select) {
    if (hook_) hook_(WithLiterals(sql, values));
    // A disk error may have undone the unit of work midway; this statement must not be executed without
    // the others.
    if (unitDepth_ > 0 && sqlite3_get_autocommit(handle_) != 0) RaiseUndone();
    const DialectStatement translated = TranslateSql(sql, values.size());
    if ((translated.kind == StatementKind::Select) != select)
        throw Error(kDatabaseSource,
                    select ? "A recordset is opened on a SELECT." : "A SELECT is not executed.",
                    SQLITE_ERROR);
    sqlite3_stmt* compiled = statements_->Take(translated.sql);
    // SQLite need not copy the text if the length includes the terminating NUL.
    if (compiled == nullptr &&
        sqlite3_prepare_v3(handle_, translated.sql.c_str(), static_cast<int>(translated.sql.size() + 1),
                           SQLITE_PREPARE_PERSISTENT, &compiled, nullptr) != SQLITE_OK)
        RaiseStoreError(handle_, kDatabaseSource);
    CompiledStatement statement(compiled, statements_);
    if (!BindAll(compiled, translated, values, select)) RaiseStoreError(handle_, kDatabaseSource);
    return statement;
}

void Database::Execute(std::string_view sql, const SqlValues& values) {
    recordsAffected_ = 0;
    CheckWritable();
    const CompiledStatement statement = Prepare(sql, values, false);
    int result = SQLITE_ROW;
    while (result == SQLITE_ROW) result = sqlite3_step(statement.Get());
    if (result != SQLITE_DONE) {
        const Error error = StoreError(handle_, kDatabaseSource);
        if (unitDepth_ > 0 && sqlite3_get_autocommit(handle_) != 0 && !undoneBy_) undoneBy_.emplace(error);
        throw error;
    }
    recordsAffected_ = sqlite3_changes(handle_);
}

std::int64_t Database::ChangeCount() const {
    return sqlite3_total_changes64(handle_);
}

bool Database::HasColumn(const char* table, const char* column) const {
    return sqlite3_table_column_metadata(handle_, "main", table, column, nullptr, nullptr, nullptr, nullptr,
                                         nullptr) == SQLITE_OK;
}

void Database::ExecuteNative(const std::string& sql) {
    statements_->Clear();
    RunNative(handle_, sql);
}

UnitOfWork::UnitOfWork(Database& database) : database_(database) {
    database_.CheckWritable();
    if (database_.unitDepth_ == 0) {
        RunNative(database_.handle_, "BEGIN IMMEDIATE");
        database_.undoneBy_.reset();
    }
    ++database_.unitDepth_;
}

bool UnitOfWork::End() {
    open_ = false;
    return --database_.unitDepth_ == 0;
}

void UnitOfWork::Commit() {
    if (!open_ || !End()) return;
    const auto after = RunAtEnd(database_.afterUnit_);
    sqlite3* const handle = database_.handle_;
    if (sqlite3_get_autocommit(handle) != 0) database_.RaiseUndone();
    if (sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK) return;
    const Error refusal = StoreError(handle, kDatabaseSource);
    sqlite3_exec(handle, "ROLLBACK", nullptr, nullptr, nullptr);
    throw refusal;
}

void UnitOfWork::Abandon() {
    if (!open_ || !End()) return;
    const auto after = RunAtEnd(database_.afterUnit_);
    // Tables that the unit has created are gone.
    database_.statements_->Clear();
    sqlite3_exec(database_.handle_, "ROLLBACK", nullptr, nullptr, nullptr);
}

UnitOfWork::~UnitOfWork() {
    try {
        Commit();
    } catch (const Error&) {
        // Either another exception is already in flight, or the caller did not call Commit: the old
        // state remains.
    }
}

}  // namespace tw
