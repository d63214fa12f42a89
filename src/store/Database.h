// The program's relational database: a file (or memory) with statements that run on it and the rows that they
// return. Statements are written in the program's own SQL; SqlDialect translates them to SQLite's.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/DateTime.h"
#include "platform/Error.h"
#include "store/SqlValue.h"
#include "store/StatementCache.h"
#include "store/StatementWatch.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tw {

// The declared type of a field. The numbers are fixed, since messages about a field show them. The program's
// own tables use Boolean, Long, Double, Date, Text and Memo; the other types occur in files from elsewhere.
enum class FieldType : int {
    Boolean = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Text = 10,
    Binary = 11,
    Memo = 12,
    Numeric = 19,
    Float = 21,
};

// Returns the type that a column's declaration names, such as "TEXT(50)", ignoring case; Binary if it
// is unknown.
FieldType FieldTypeOf(std::string_view declared);

// The value of a field: NULL, a boolean, a number, or text. A date is text in the form of DateText.
using Value = std::variant<Null, bool, double, std::string>;

// One field of the current row of a recordset. Valid until the recordset moves or is destroyed.
class Field {
  public:
    const std::string& Name() const;
    FieldType Type() const;

    bool IsNull() const;
    tw::Value Value() const;
    // The value as text: numbers by NumberText, booleans as "TRUE" and "FALSE"; empty for NULL.
    std::string Text() const;
    // The value as a number; 0 for NULL and for text that is not a number. Integer() drops decimals and
    // raises "Overflow" if the result does not fit.
    double Number() const;
    std::int64_t Integer() const;
    // The value if it is a whole number, which may be the id of another row; nullopt for NULL, text, a
    // fraction, and a floating point number too large to be exact.
    std::optional<std::int64_t> WholeNumber() const;
    bool Boolean() const;

  private:
    friend class Recordset;
    Field(sqlite3_stmt* statement, int column, const std::string* name, FieldType type)
        : statement_(statement), column_(column), name_(name), type_(type) {}
    sqlite3_stmt* statement_;
    int column_;
    const std::string* name_;
    FieldType type_;
};

// The rows of one SELECT, read forward. Closed when it is destroyed.
class Recordset {
  public:
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    // True after the last row, and if there are no rows.
    bool AtEnd() const;
    // Moves to the next row. Raises Error at the end.
    void MoveNext();
    // Runs the statement again and moves to its first row.
    void MoveFirst();
    void Close();

    int FieldCount() const;
    // By index from 0. Raises Error at the end, or for an index out of range.
    Field Fields(int index) const;
    // By name, ignoring case; a field of a join also by "TABLE.NAME". Raises Error at the end, or for an
    // unknown name.
    Field Fields(std::string_view name) const;
    const std::string& FieldName(int index) const;
    FieldType TypeOf(int index) const;

  private:
    friend class Database;
    struct Impl;
    explicit Recordset(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

// One open database. Closed when it is destroyed.
class Database {
  public:
    // The number of the error raised if a file cannot be opened.
    static constexpr int kCannotOpenNumber = 14;

    // Opens an existing file; exclusive locks out every other process for as long as it is open, even while
    // nothing is written. Never waits for another program. Raises an Error that says what is wrong, and
    // leaves the file untouched, if the file is missing, is a folder, is not a database, is cut short, or is
    // in use. If a crash left the file half-written, that is rolled back first.
    // For exclusive use, a file with several names (hard links) is refused, as is a file that may have
    // been left half-written under another name: the journal of a crash is beside the name that was in
    // use. If the file or its folder cannot be written, exclusive use means reading only (ReadOnly),
    // together with other programs.
    static std::unique_ptr<Database> OpenDatabase(const std::string& path, bool exclusive);
    // Creates a new empty database file, without tables, and opens it. Raises Error if path exists or cannot
    // be written. locale is accepted but ignored: all text is UTF-8.
    static std::unique_ptr<Database> CreateDatabase(const std::string& path, std::string_view locale);
    // Opens somebody else's file for import or for adding to it: like OpenDatabase without exclusive use,
    // but nothing in the file is trusted (store/ForeignFile.h). now is a monotonic clock for the time limit
    // on reading.
    using Clock = MonotonicClock;
    static std::unique_ptr<Database> OpenForeign(const std::string& path, Clock now = SteadyNow);
    // Creates a database in memory from the bytes of a file; an empty one if image is empty. Raises Error if
    // memory runs out. REQUIRES: the file is not in journal mode WAL.
    static std::unique_ptr<Database> FromImage(std::string_view image);
    // Like FromImage for the bytes of somebody else's file: nothing in it is trusted, as with OpenForeign.
    static std::unique_ptr<Database> ForeignFromImage(std::string_view image, Clock now = SteadyNow);
    // Returns the bytes of a file that contains this database. Raises Error if memory runs out.
    std::string Image() const;

    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Runs one INSERT, UPDATE or DELETE. values replace the "?" of the statement in order; there must be one
    // for each. Raises an Error with the store's description.
    void Execute(std::string_view sql, const SqlValues& values = {});
    // The number of rows changed by the last Execute.
    int RecordsAffected() const { return recordsAffected_; }
    // Runs one SELECT with its values, as Execute does, and moves to the first row.
    Recordset OpenRecordset(std::string_view sql, const SqlValues& values = {});
    // A number that increases with every row that this connection writes, so an unchanged number means that
    // nothing was written.
    std::int64_t ChangeCount() const;
    // True if there is a table, not a view, with that column, both ignoring case. Runs no statement.
    bool HasColumn(const char* table, const char* column) const;
    const std::string& Path() const { return path_; }
    // True if the database was opened exclusively but cannot be written; writing raises Error.
    bool ReadOnly() const { return readOnly_; }
    // Runs action at once or, within a unit of work, after the end of the unit, however that ends: only then
    // can the database be read again if the disk has undone the unit. REQUIRES: action raises nothing and
    // remains valid until then.
    void AfterUnit(const std::function<void()>& action);

    // For a foreign file. MarkProgress restarts the time limit on reading. SetWatch sets a callback that is
    // called now and then while a statement runs; it must not use this database, and by returning false it
    // ends the statement with an error of kInterruptedNumber.
    static constexpr int kInterruptedNumber = 9;
    void MarkProgress();
    void SetWatch(std::function<bool()> watch);

    // Called before each statement with its text, the values inserted. Tests use it to count statements, or
    // to end the process or raise an error in the middle of an operation.
    using StatementHook = std::function<void(std::string_view sql)>;
    void SetStatementHook(StatementHook hook) { hook_ = std::move(hook); }

    // Runs any number of statements in SQLite's own SQL. For the schema and the store's own files.
    void ExecuteNative(const std::string& sql);

  private:
    friend class UnitOfWork;
    // Takes ownership of handle.
    Database(sqlite3* handle, std::string path, bool readOnly = false);
    static std::chrono::milliseconds SteadyNow();
    // Limits the statements of a file that is not trusted, and raises Error if a table in it is not a
    // real table.
    void GuardForeign(Clock now);
    void CheckWritable() const;
    // Raises the error that has undone the current unit.
    [[noreturn]] void RaiseUndone() const;
    // Calls the hook, translates and compiles the statement and binds its values. select says whether a
    // SELECT is expected; any other statement must run before values is destroyed.
    CompiledStatement Prepare(std::string_view sql, const SqlValues& values, bool select);

    sqlite3* handle_;
    std::shared_ptr<StatementCache> statements_ = std::make_shared<StatementCache>();
    std::string path_;
    int recordsAffected_ = 0;
    bool readOnly_;
    int unitDepth_ = 0;
    std::optional<Error> undoneBy_;  // the error with which the disk undid the current unit
    std::vector<std::function<void()>> afterUnit_;
    StatementHook hook_;
    std::unique_ptr<StatementWatch> watch_;  // only for a foreign file
};

// Makes everything that one user operation writes a single unit on the disk: after a crash or loss of
// power, either the old or the new state is there, complete. An operation that fails is different:
// what it wrote before stays, so the unit is committed even if an exception ends it. Units nest; only
// the outermost one commits.
class UnitOfWork {
  public:
    explicit UnitOfWork(Database& database);
    // Commits. Raises the store's error if the disk fails; the old state remains then.
    void Commit();
    // Undoes what the unit has written, for an operation that replaces a row and could not write the new one.
    // An inner unit undoes nothing: the outermost unit decides.
    void Abandon();
    ~UnitOfWork();
    UnitOfWork(const UnitOfWork&) = delete;
    UnitOfWork& operator=(const UnitOfWork&) = delete;

  private:
    // True if this was the outermost unit.
    bool End();

    Database& database_;
    bool open_ = true;
};

}  // namespace tw
