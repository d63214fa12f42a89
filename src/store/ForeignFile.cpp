#include "store/ForeignFile.h"

#include <algorithm>
#include <sqlite3.h>
#include <string_view>

#include "values/Text.h"

namespace tw {
namespace {

struct Limit {
    int what, most;
};

// Far more than a recipe needs.
constexpr int kMostBytes = 64 << 20;
constexpr Limit kLimits[] = {
    {SQLITE_LIMIT_LENGTH, kMostBytes},
    {SQLITE_LIMIT_SQL_LENGTH, kMostBytes},
    {SQLITE_LIMIT_COLUMN, 500},
    {SQLITE_LIMIT_EXPR_DEPTH, 100},
    {SQLITE_LIMIT_COMPOUND_SELECT, 5},
    {SQLITE_LIMIT_VDBE_OP, 25000},
    {SQLITE_LIMIT_FUNCTION_ARG, 8},
    {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 200},
    {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
    {SQLITE_LIMIT_WORKER_THREADS, 0},
};

// The functions that the program's own statements call, and GLOB for the rule that checks dates.
constexpr std::string_view kFunctions[] = {"COUNT", "GLOB", "LCASE", "LIKE", "SUBSTR", "TRIM", "UCASE"};

// The pragmas that the store and its copy of a whole file use.
constexpr std::string_view kPragmas[] = {"journal_mode", "page_count", "synchronous"};

// Permits what the program does, which is to read tables and add rows to them; anything else was planted in
// the file.
int Authorize(void*, int action, const char* first, const char* function, const char*, const char*) noexcept {
    switch (action) {
        case SQLITE_SELECT:
        case SQLITE_READ:
        case SQLITE_INSERT:
        case SQLITE_UPDATE:
        case SQLITE_DELETE:
        case SQLITE_TRANSACTION:
        case SQLITE_SAVEPOINT:
            return SQLITE_OK;
        case SQLITE_FUNCTION: {
            const auto same = [&](std::string_view known) { return CompareNoCase(known, function) == 0; };
            return std::ranges::any_of(kFunctions, same) ? SQLITE_OK : SQLITE_DENY;
        }
        case SQLITE_PRAGMA: {
            const auto same = [&](std::string_view known) { return CompareNoCase(known, first) == 0; };
            return std::ranges::any_of(kPragmas, same) ? SQLITE_OK : SQLITE_DENY;
        }
        default:
            return SQLITE_DENY;
    }
}

}  // namespace

void Distrust(sqlite3* handle) {
    for (const Limit& limit : kLimits) sqlite3_limit(handle, limit.what, limit.most);
    for (const int freedom : {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_VIEW,
                              SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION})
        sqlite3_db_config(handle, freedom, 0, nullptr);
    sqlite3_set_authorizer(handle, Authorize, nullptr);
}

}  // namespace tw
