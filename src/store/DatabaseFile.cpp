// Opening and creating database files.
#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/Error.h"
#include "store/ForeignFile.h"
#include "store/JournalFile.h"
#include "store/SqliteHandle.h"

namespace tw {
namespace {

namespace fs = std::filesystem;

// The header of a SQLite file: its first 100 bytes. Numbers are big-endian.
constexpr std::size_t kHeaderSize = 100;
constexpr std::string_view kMagic{"SQLite format 3\0", 16};
constexpr std::size_t kPageSizeAt = 16;
constexpr std::size_t kChangeCounterAt = 24;
constexpr std::size_t kPageCountAt = 28;
constexpr std::size_t kPageCountValidForAt = 92;
using Header = std::array<unsigned char, kHeaderSize>;

[[noreturn]] void Refuse(const std::string& path, std::string_view what, int number) {
    throw Error(kDatabaseSource, "'" + path + "' " + std::string(what), number);
}

std::uint32_t NumberAt(const Header& header, std::size_t at) {
    return static_cast<std::uint32_t>(header[at]) << 24 | static_cast<std::uint32_t>(header[at + 1]) << 16 |
           static_cast<std::uint32_t>(header[at + 2]) << 8 | header[at + 3];
}

std::int64_t PageSize(const Header& header) {
    constexpr std::int64_t kLargest = 65536;  // stored as 1, because it does not fit into two bytes
    const std::int64_t size = header[kPageSizeAt] * 256 + header[kPageSizeAt + 1];
    return size == 1 ? kLargest : size;
}

// True if the file or folder may be written. The write bits are checked as well, because access() lets an
// administrator's process write what the owner has protected.
bool IsWritable(const fs::path& path) {
    constexpr fs::perms kWriteBits =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code failure;
    const fs::perms bits = fs::status(path, failure).permissions();
    return !failure && (bits & kWriteBits) != fs::perms::none && access(path.c_str(), W_OK) == 0;
}

// Makes the checks that need no access to the content.
void CheckFile(const std::string& path, bool exclusive) {
    if (path.find('\0') != std::string::npos) Refuse(path, "is no file name.", SQLITE_CANTOPEN);
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (status.type() == fs::file_type::not_found)
        throw Error(kDatabaseSource, "Could not find file '" + path + "'.", SQLITE_CANTOPEN);
    if (failure) Refuse(path, "cannot be opened: " + failure.message() + ".", SQLITE_CANTOPEN);
    if (fs::is_directory(status)) Refuse(path, "is a folder.", SQLITE_CANTOPEN);
    if (!fs::is_regular_file(status)) Refuse(path, "is not a file.", SQLITE_CANTOPEN);
    if (exclusive && fs::hard_link_count(path, failure) > 1 && !failure)
        Refuse(path,
               "has several names (hard links). After a crash under one of them, another would open a "
               "damaged database. Delete the other names, or make a copy of the file and use that.",
               SQLITE_CANTOPEN);
}

// Refuses a file left half-written by a crash that cannot be rolled back because it cannot be written.
void CheckWhole(const std::string& path, const fs::path& file, bool isWritable) {
    if (isWritable || !HasUnfinishedWork(file.string() + std::string(kJournalSuffix))) return;
    Refuse(path,
           "was left half-written by a crash and must be put right first, but it cannot be written. Allow "
           "writing to the file and to its folder, then start Tunwright again.",
           SQLITE_READONLY);
}

// Returns SQLite's open file behind a handle. The file must not be opened a second time: closing any
// descriptor of a file drops all locks that this process holds on it.
sqlite3_file* FileOf(sqlite3* handle) {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file));
    if (file == nullptr || file->pMethods == nullptr) RaiseStoreError(handle, kDatabaseSource);
    return file;
}

std::int64_t FileSize(sqlite3_file* file) {
    sqlite3_int64 size = 0;
    return file->pMethods->xFileSize(file, &size) == SQLITE_OK ? size : 0;
}

// Returns the header. Raises Error if the file is not a complete SQLite file.
Header ReadHeader(sqlite3* handle, const std::string& path) {
    sqlite3_file* const file = FileOf(handle);
    if (FileSize(file) == 0) Refuse(path, "is empty.", SQLITE_NOTADB);
    Header header{};
    // If the file is shorter, SQLite fills the rest with zeros.
    const int result = file->pMethods->xRead(file, header.data(), static_cast<int>(kHeaderSize), 0);
    const std::string_view front(reinterpret_cast<const char*>(header.data()), kMagic.size());
    if (front != kMagic) Refuse(path, "is not a database.", SQLITE_NOTADB);
    if (result == SQLITE_IOERR_SHORT_READ) Refuse(path, "is cut short.", SQLITE_CORRUPT);
    if (result != SQLITE_OK) Refuse(path, "cannot be read.", SQLITE_IOERR);
    return header;
}

// Refuses a file with fewer pages than its header says. REQUIRES: no journal remains to be rolled back.
void CheckComplete(sqlite3* handle, const std::string& path) {
    const Header header = ReadHeader(handle, path);
    if (NumberAt(header, kChangeCounterAt) != NumberAt(header, kPageCountValidForAt)) return;
    if (FileSize(FileOf(handle)) < PageSize(header) * NumberAt(header, kPageCountAt))
        Refuse(path, "is cut short.", SQLITE_CORRUPT);
}

// Refuses a file that may have been left half-written under another name: its journal is beside that name.
void CheckOtherNames(const std::string& path, const fs::path& file, const Header& header) {
    const std::optional<fs::path> journal = JournalOfAnotherName(
        file, {NumberAt(header, kChangeCounterAt), NumberAt(header, kPageCountAt), PageSize(header)});
    if (!journal) return;
    std::string otherName = journal->string();
    otherName.resize(otherName.size() - kJournalSuffix.size());
    Refuse(path,
           "may have been left half-written by a crash while it was called '" + otherName + "': '" +
               journal->string() +
               "' is still there. Give the database that name again and start Tunwright with it. If it never "
               "had that name, move '" +
               journal->filename().string() + "' to another folder.",
           SQLITE_CANTOPEN);
}

[[noreturn]] void RefuseUnreadable(sqlite3* handle, const std::string& path) {
    const int code = sqlite3_extended_errcode(handle) & 0xff;
    if (code == SQLITE_BUSY || code == SQLITE_LOCKED) Refuse(path, "is in use by another program.", code);
    if (code == SQLITE_NOTADB) Refuse(path, "is not a database.", code);
    const std::string message = sqlite3_errmsg(handle);
    if (code == SQLITE_CORRUPT) Refuse(path, "is damaged: " + message + ".", code);
    Refuse(path, "cannot be opened: " + message + ".", code);
}

// Each handle is used by one thread only, so SQLite needs no mutexes.
constexpr int kOpenFlags = SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX;

SqliteHandle OpenHandle(const std::string& path, int flags) {
    sqlite3* handle = nullptr;
    std::error_code failure;
    // SQLite never mistakes an absolute path for a URI or for the name of a database in memory.
    const std::string name = (flags & SQLITE_OPEN_MEMORY) != 0 ? path : fs::absolute(path, failure).string();
    if (failure) Refuse(path, "cannot be opened: " + failure.message() + ".", SQLITE_CANTOPEN);
    // The name alone makes a database in memory; with the flag, databases attached to it would be in
    // memory, too.
    const int openFlags = (flags & ~SQLITE_OPEN_MEMORY) | kOpenFlags;
    const int result = sqlite3_open_v2(name.c_str(), &handle, openFlags, nullptr);
    SqliteHandle owner(handle);
    if (handle == nullptr) throw Error(kDatabaseSource, "Out of memory.", SQLITE_NOMEM);
    if (result != SQLITE_OK) RefuseUnreadable(handle, path);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    RegisterFunctions(handle);
    return owner;
}

void RunOrRefuse(sqlite3* handle, const std::string& path, const char* sql) {
    if (sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK) RefuseUnreadable(handle, path);
}

}  // namespace

Error StoreError(sqlite3* handle, const char* source) {
    const int number = sqlite3_extended_errcode(handle) & 0xff;
    // Only StatementWatch interrupts a statement.
    if (number == SQLITE_INTERRUPT) return {source, "Reading the file took too long.", number};
    return {source, sqlite3_errmsg(handle), number};
}

void RaiseStoreError(sqlite3* handle, const char* source) {
    throw StoreError(handle, source);
}

void RunNative(sqlite3* handle, const std::string& sql) {
    if (sqlite3_exec(handle, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        RaiseStoreError(handle, kDatabaseSource);
}

OpenedFile OpenDatabaseFile(const std::string& path, FileUse use) {
    const bool exclusive = use == FileUse::Exclusive;
    CheckFile(path, exclusive);
    std::error_code failure;
    // SQLite's journal is beside the file itself, not beside a symbolic link to it.
    const fs::path file = fs::canonical(path, failure);
    const bool isWritable = IsWritable(file) && IsWritable(file.parent_path());
    CheckWhole(path, file, isWritable);
    SqliteHandle handle = OpenHandle(path, SQLITE_OPEN_READWRITE);
    sqlite3* const raw = handle.get();
    if (use == FileUse::Foreign) Distrust(raw);
    const Header header = ReadHeader(raw, path);
    if (exclusive) CheckOtherNames(path, file, header);
    RunOrRefuse(raw, path, "PRAGMA synchronous=FULL");
    // In this locking mode, an exclusive lock once taken is kept until the file is closed. Nothing is
    // written, so no journal is created and no byte changes, except that the first read rolls back a journal
    // left by a crash.
    if (exclusive) RunOrRefuse(raw, path, "PRAGMA locking_mode=EXCLUSIVE");
    // A file that is entirely read-only cannot be locked exclusively.
    const bool canLock = exclusive && sqlite3_db_readonly(raw, "main") == 0;
    RunOrRefuse(raw, path, canLock ? "BEGIN EXCLUSIVE" : "BEGIN");
    RunOrRefuse(raw, path, "SELECT COUNT(*) FROM sqlite_schema");
    CheckComplete(raw, path);
    RunOrRefuse(raw, path, "COMMIT");
    const bool readOnly = exclusive && !(canLock && isWritable);
    if (readOnly) RunOrRefuse(raw, path, "PRAGMA query_only=ON");
    return {std::move(handle), readOnly};
}

SqliteHandle CreateDatabaseFile(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos)
        Refuse(path, "is no file name.", SQLITE_CANTOPEN);
    std::error_code failure;
    if (fs::symlink_status(path, failure).type() != fs::file_type::not_found)
        Refuse(path, "exists already.", SQLITE_CANTOPEN);
    SqliteHandle handle = OpenHandle(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    // A file without pages is not a database yet; writing any field of the header creates the first page.
    RunNative(handle.get(), "PRAGMA synchronous=FULL; PRAGMA user_version=1");
    return handle;
}

SqliteHandle OpenMemoryDatabase() {
    return OpenHandle(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY);
}

}  // namespace tw
