// What the files of the store share about the SQLite handle behind a database.
#pragma once

#include <memory>
#include <sqlite3.h>
#include <string>

#include "platform/Error.h"

namespace tw {

inline constexpr const char* kDatabaseSource = "Database";
inline constexpr const char* kRecordsetSource = "Recordset";

struct HandleCloser {
    // Closes the handle, or leaves that to its last recordset when one is still open.
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
};
using SqliteHandle = std::unique_ptr<sqlite3, HandleCloser>;

// The handle's present error: its description and SQLite's primary result code.
Error StoreError(sqlite3* handle, const char* source);
// Raises it.
[[noreturn]] void RaiseStoreError(sqlite3* handle, const char* source);
// Runs any number of SQLite's own statements. Raises the store's error.
void RunNative(sqlite3* handle, const std::string& sql);

// The orders of text columns: TWTEXT ignores case, TWDATE goes by date; and the functions UCASE and LCASE.
// Raises the store's error.
void RegisterFunctions(sqlite3* handle);

enum class FileUse {
    Shared,
    Exclusive,
    Foreign,  // nothing in the file is trusted
};

struct OpenedFile {
    SqliteHandle handle;
    bool readOnly = false;  // exclusive use of a file that cannot be written
};

// Opens an existing database file and reads it. See Database::OpenDatabase and OpenForeign.
OpenedFile OpenDatabaseFile(const std::string& path, FileUse use);
// Makes an empty database file. See Database::CreateDatabase.
SqliteHandle CreateDatabaseFile(const std::string& path);
// Opens a fresh database in memory.
SqliteHandle OpenMemoryDatabase();

}  // namespace tw
