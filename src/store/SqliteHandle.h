// What the store's files share about SQLite handles.
#pragma once

#include <memory>
#include <sqlite3.h>
#include <string>

#include "platform/Error.h"

namespace tw {

inline constexpr const char* kDatabaseSource = "Database";
inline constexpr const char* kRecordsetSource = "Recordset";

struct HandleCloser {
    // Closes the handle; if a recordset is still open, closing is left to the last one.
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
};
using SqliteHandle = std::unique_ptr<sqlite3, HandleCloser>;

// Returns the handle's current error: SQLite's description and primary result code.
Error StoreError(sqlite3* handle, const char* source);
// Raises StoreError(handle, source).
[[noreturn]] void RaiseStoreError(sqlite3* handle, const char* source);
// Runs any number of statements in SQLite's own SQL. Raises the store's error.
void RunNative(sqlite3* handle, const std::string& sql);

// Registers the collations of text columns, TWTEXT (ignores case) and TWDATE (by date), and the functions
// UCASE and LCASE. Raises the store's error.
void RegisterFunctions(sqlite3* handle);

enum class FileUse {
    Shared,
    Exclusive,
    Foreign,  // nothing in the file is trusted
};

struct OpenedFile {
    SqliteHandle handle;
    bool readOnly = false;  // opened exclusively, but the file cannot be written
};

// Opens and checks an existing database file. See Database::OpenDatabase and OpenForeign.
OpenedFile OpenDatabaseFile(const std::string& path, FileUse use);
// Creates an empty database file. See Database::CreateDatabase.
SqliteHandle CreateDatabaseFile(const std::string& path);
// Opens a new database in memory.
SqliteHandle OpenMemoryDatabase();

}  // namespace tw
