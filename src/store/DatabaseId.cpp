#include "store/DatabaseId.h"

#include <array>
#include <charconv>
#include <random>

namespace tw {
namespace {

// Returns 128 random bits as 32 hexadecimal digits.
std::string NewId() {
    constexpr int kParts = 4;
    constexpr std::size_t kDigits = 8;
    constexpr int kBase = 16;
    std::random_device random;
    std::string id;
    for (int i = 0; i < kParts; ++i) {
        std::array<char, kDigits> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), random(), kBase).ptr;
        id.append(kDigits - static_cast<std::size_t>(end - digits.begin()), '0').append(digits.begin(), end);
    }
    return id;
}

}  // namespace

std::string DatabaseId(Database& database) {
    if (database.OpenRecordset("SELECT name FROM sqlite_schema WHERE name = 'DATABASE_ID'").AtEnd())
        return {};
    const Recordset row = database.OpenRecordset("SELECT ID FROM DATABASE_ID");
    return row.AtEnd() ? std::string() : row.Fields(0).Text();
}

std::string EnsureDatabaseId(Database& database) {
    std::string id = DatabaseId(database);
    if (!id.empty()) return id;
    id = NewId();
    UnitOfWork unit(database);
    database.ExecuteNative("CREATE TABLE IF NOT EXISTS DATABASE_ID (ID TEXT)");
    database.Execute("INSERT INTO DATABASE_ID (ID) VALUES (?)", {id});
    unit.Commit();
    return id;
}

}  // namespace tw
