#include <cstddef>
#include <cstring>
#include <string_view>

#include "store/SqliteHandle.h"
#include "values/Text.h"

namespace tw {
namespace {

std::string_view Bytes(const void* data, int size) {
    return {static_cast<const char*>(data), static_cast<std::size_t>(size)};
}

// Compares texts, ignoring case; negative if the first sorts before the second. If memory runs out, compares
// by bytes, since no exception may pass through SQLite.
int CompareText(void*, int sizeA, const void* a, int sizeB, const void* b) noexcept {
    const std::string_view left = Bytes(a, sizeA);
    const std::string_view right = Bytes(b, sizeB);
    try {
        return CompareNoCase(left, right);
    } catch (...) {
        return left.compare(right);
    }
}

// Compares texts of the form "MM/DD/YYYY HH:MM:SS" by year, then month and day, then time. Texts of another
// length are compared by bytes.
int CompareDates(void*, int sizeA, const void* a, int sizeB, const void* b) noexcept {
    constexpr std::size_t kDateSize = 19;
    constexpr std::size_t kYear = 6;
    constexpr std::size_t kYearSize = 4;
    const std::string_view left = Bytes(a, sizeA);
    const std::string_view right = Bytes(b, sizeB);
    if (left.size() == kDateSize && right.size() == kDateSize) {
        const int years = std::memcmp(left.data() + kYear, right.data() + kYear, kYearSize);
        if (years != 0) return years;
    }
    return left.compare(right);
}

// An SQL function that changes the case of a text. NULL stays NULL; a number is converted to text.
template <std::string (*Change)(std::string_view)>
void ChangeCase(sqlite3_context* context, int, sqlite3_value** arguments) noexcept {
    const unsigned char* const text = sqlite3_value_text(arguments[0]);
    if (text == nullptr) {
        sqlite3_result_null(context);
        return;
    }
    try {
        const std::string changed = Change(Bytes(text, sqlite3_value_bytes(arguments[0])));
        sqlite3_result_text64(context, changed.data(), changed.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    } catch (...) {
        sqlite3_result_error_nomem(context);
    }
}

void CheckRegistered(sqlite3* handle, int result) {
    if (result != SQLITE_OK) RaiseStoreError(handle, kDatabaseSource);
}

}  // namespace

void RegisterFunctions(sqlite3* handle) {
    CheckRegistered(
        handle, sqlite3_create_collation_v2(handle, "TWTEXT", SQLITE_UTF8, nullptr, CompareText, nullptr));
    CheckRegistered(
        handle, sqlite3_create_collation_v2(handle, "TWDATE", SQLITE_UTF8, nullptr, CompareDates, nullptr));
    constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    CheckRegistered(handle, sqlite3_create_function_v2(handle, "UCASE", 1, kFlags, nullptr, ChangeCase<Upper>,
                                                       nullptr, nullptr, nullptr));
    CheckRegistered(handle, sqlite3_create_function_v2(handle, "LCASE", 1, kFlags, nullptr, ChangeCase<Lower>,
                                                       nullptr, nullptr, nullptr));
}

}  // namespace tw
