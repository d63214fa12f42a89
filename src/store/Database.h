// The one local relational database: an open file, statements run on it, and the rows they give. The classes
// have the shape of the data access objects that the program's SQL was designed for; SqlDialect turns that
// SQL into SQLite's.
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

struct sqlite3;
struct sqlite3_stmt;

namespace tw {

class StatementWatch;

// The declared type of a field, by its data-access number. The tables of the program use Boolean, Long,
// Double, Date, Text and Memo; the others come in files of other makers.
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

// The type that the declaration of a column names, such as "TEXT(50)", without regard to case; Binary for an
// unknown one.
FieldType FieldTypeOf(std::string_view declared);

// What a field of a row holds: nothing, a boolean, a number, or text. A date is the text of DateText.
using Value = std::variant<Null, bool, double, std::string>;

// One field of the present row of a recordset. Valid until the recordset moves or goes.
class Field {
  public:
    const std::string& Name() const;
    FieldType Type() const;

    bool IsNull() const;
    tw::Value Value() const;
    // The value as text: numbers by NumberText, booleans "TRUE" and "FALSE"; empty for NULL.
    std::string Text() const;
    // The value as a number; a text that is no number and NULL give 0.
    double Number() const;
    std::int64_t Integer() const;
    // The value when it is a whole number, which can be another row's id; nothing for NULL, a text, a
    // fraction, and a number that a double does not hold exactly.
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

// A forward-read result of one SELECT. Closed when it goes out of scope.
class Recordset {
  public:
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    // True behind the last row (the interface's EOF, whose name C has taken).
    bool AtEnd() const;
    void MoveNext();
    // Back to the first row: the statement runs again.
    void MoveFirst();
    void Close();

    int FieldCount() const;
    // By position from 0. Raises an error at EOF and for a position beyond the fields.
    Field Fields(int index) const;
    // By name without regard to case; a field of a join also as "TABLE.NAME". Raises an error for an unknown
    // name.
    Field Fields(std::string_view name) const;
    const std::string& FieldName(int index) const;
    FieldType TypeOf(int index) const;

  private:
    friend class Database;
    struct Impl;
    explicit Recordset(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

// One open database file. Not copyable; closes itself.
class Database {
  public:
    // The number of the error about a file that cannot be opened.
    static constexpr int kCannotOpenNumber = 14;

    // Opens an existing file. exclusive keeps every other process out for as long as it is open, also while
    // nothing is written. Raises an error that says what is wrong when the file is missing, is a folder, is
    // no database, is cut short, or is in use; the file is untouched then. What a crash has left half-written
    // is rolled back. Nothing waits for another program. For exclusive use a file with several names (hard
    // links) is refused, and one that may have been half-written under another name: what a crash leaves lies
    // beside the name that was used. A file that cannot be written, or whose folder cannot, is opened to be
    // read then (ReadOnly), by several programs.
    static std::unique_ptr<Database> OpenDatabase(const std::string& path, bool exclusive);
    // Makes a new empty database file (without any table) and opens it. Raises an error when path exists or
    // cannot be written. locale is accepted for the sake of the interface and has no effect: all text is
    // UTF-8.
    static std::unique_ptr<Database> CreateDatabase(const std::string& path, std::string_view locale);
    // A file of somebody else, for import and for adding to it: as OpenDatabase without exclusive use, and
    // nothing in it is trusted (store/ForeignFile.h). now is a clock that never goes back, for the limit on
    // reading.
    using Clock = std::function<std::chrono::milliseconds()>;
    static std::unique_ptr<Database> OpenForeign(const std::string& path, Clock now = SteadyNow);
    // A database of the full schema, without catalogue rows, that lives in memory alone.
    static std::unique_ptr<Database> CreateInMemory();
    // A database in memory alone that holds what those bytes of a file do; an empty one for none. Raises an
    // error when the memory is short. REQUIRES: the file is not in the journal mode WAL.
    static std::unique_ptr<Database> FromImage(std::string_view image);
    // The same of somebody else's file: nothing in it is trusted, as by OpenForeign.
    static std::unique_ptr<Database> ForeignFromImage(std::string_view image, Clock now = SteadyNow);
    // The bytes of the file that this database is or would be. Raises an error when the memory is short.
    std::string Image() const;

    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Runs one INSERT, UPDATE or DELETE. The values stand for the "?" of the statement in their order, as
    // many as there are. Raises an error that carries the store's description.
    void Execute(std::string_view sql, const SqlValues& values = {});
    // Rows changed by the last Execute.
    int RecordsAffected() const { return recordsAffected_; }
    // Runs one SELECT in the same way; the recordset stands on its first row or at EOF.
    Recordset OpenRecordset(std::string_view sql, const SqlValues& values = {});
    // A number that grows with every row that this connection writes: equal to an earlier one as long as
    // nothing was written since.
    std::int64_t ChangeCount() const;
    const std::string& Path() const { return path_; }
    // It was opened exclusively, but cannot be written: what would change it raises an error.
    bool ReadOnly() const { return readOnly_; }
    // Runs action at once or, within a unit of work, behind its end, however it ends: what the disk has
    // undone cannot be read before. REQUIRES: action raises nothing and is still good then.
    void AfterUnit(const std::function<void()>& action);

    // For a foreign file: the limit on reading without an end starts anew, since there was progress; and
    // watch is asked now and then while a statement runs. It must not use this database; false ends the
    // statement with an error of that number.
    static constexpr int kInterruptedNumber = 9;
    void MarkProgress();
    void SetWatch(std::function<bool()> watch);

    // Called with the text of each statement, its values written into it, before it runs. Tests count
    // statements with it, end the process or raise an error in the middle of an operation.
    using StatementHook = std::function<void(std::string_view sql)>;
    void SetStatementHook(StatementHook hook) { hook_ = std::move(hook); }

    // For the schema and the store's own files: runs SQLite's own SQL, any number of statements.
    void ExecuteNative(const std::string& sql);

  private:
    friend class UnitOfWork;
    // Takes the handle over.
    Database(sqlite3* handle, std::string path, bool readOnly = false);
    static std::chrono::milliseconds SteadyNow();
    // Watches the statements of a file that is not trusted, and refuses one whose tables are none.
    void GuardForeign(Clock now);
    void CheckWritable() const;
    // Raises what has undone the present unit.
    [[noreturn]] void RaiseUndone() const;
    // Calls the hook, translates, compiles and gives the statement its values. REQUIRES: select tells a
    // SELECT from the other statements; what is no SELECT is run while the values are there.
    sqlite3_stmt* Prepare(std::string_view sql, const SqlValues& values, bool select);

    sqlite3* handle_;
    std::string path_;
    int recordsAffected_ = 0;
    bool readOnly_;
    int unitDepth_ = 0;
    std::optional<Error> undoneBy_;  // the error with which the disk undid the present unit
    std::vector<std::function<void()>> afterUnit_;
    StatementHook hook_;
    std::unique_ptr<StatementWatch> watch_;  // of a foreign file
};

// Makes what one user operation writes one unit on the disk: a crash or a loss of power leaves the old state
// or the new one, whole. A failure is something else: what was done before it stays, so the unit is committed
// also when an exception ends it. Units nest; the outermost counts.
class UnitOfWork {
  public:
    explicit UnitOfWork(Database& database);
    // Commits. Raises the store's error when the disk refuses; the old state stands then.
    void Commit();
    // Takes back what the unit has written, for an operation that replaces a row and could not write the new
    // one. Within another unit nothing is taken back: how that one ends decides.
    void Abandon();
    ~UnitOfWork();
    UnitOfWork(const UnitOfWork&) = delete;
    UnitOfWork& operator=(const UnitOfWork&) = delete;

  private:
    // True for the outermost unit.
    bool End();

    Database& database_;
    bool open_ = true;
};

}  // namespace tw
