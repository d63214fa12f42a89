// Databases in memory: reading and returning the bytes of a file.
#include <cstring>

#include "platform/Error.h"
#include "store/Database.h"
#include "store/SqliteHandle.h"

namespace tw {
namespace {

struct SqliteMemory {
    void operator()(unsigned char* bytes) const { sqlite3_free(bytes); }
};
using Bytes = std::unique_ptr<unsigned char, SqliteMemory>;

[[noreturn]] void RaiseNoMemory() {
    throw Error(kDatabaseSource, "Out of memory.", SQLITE_NOMEM);
}

}  // namespace

std::unique_ptr<Database> Database::FromImage(std::string_view image) {
    SqliteHandle handle = OpenMemoryDatabase();
    if (!image.empty()) {
        const auto size = static_cast<sqlite3_int64>(image.size());
        Bytes bytes(static_cast<unsigned char*>(sqlite3_malloc64(image.size())));
        if (!bytes) RaiseNoMemory();
        std::memcpy(bytes.get(), image.data(), image.size());
        if (sqlite3_deserialize(handle.get(), "main", bytes.release(), size, size,
                                SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_RESIZEABLE) != SQLITE_OK)
            RaiseStoreError(handle.get(), kDatabaseSource);
    }
    // The rollback journal must be in memory as well, because there is no database file to put it beside.
    RunNative(handle.get(), "PRAGMA journal_mode=MEMORY");
    return std::unique_ptr<Database>(new Database(handle.release(), ":memory:"));
}

std::string Database::Image() const {
    sqlite3_int64 size = 0;
    const Bytes bytes(sqlite3_serialize(handle_, "main", &size, 0));
    if (!bytes) RaiseNoMemory();
    return {reinterpret_cast<const char*>(bytes.get()), static_cast<std::size_t>(size)};
}

}  // namespace tw
