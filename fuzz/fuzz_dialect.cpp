// Runs any text as SQL. The dialect raises nothing but an Error of the program. A database in memory runs
// what the dialect accepts or refuses it with an Error, and all its tables exist afterwards.
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <string_view>

#include "store/Database.h"
#include "store/Schema.h"
#include "store/SqlDialect.h"

namespace {

using namespace tw;

std::unique_ptr<Database> MakeDatabase() {
    // A statement that asks for more memory than this is refused by the store.
    constexpr sqlite3_int64 kMostMemory = sqlite3_int64{256} * 1024 * 1024;
    sqlite3_hard_heap_limit64(kMostMemory);
    std::unique_ptr<Database> database = CreateMainDatabaseInMemory();
    database->Execute("INSERT INTO HOPS (NAME, USAGE, AA_LO) VALUES ('Cascade', 'Aroma', 5)");
    database->Execute("INSERT INTO GRAINS (GRAIN, NAME, GRAIN_TYPE) VALUES (TRUE, 'Munich', 1)");
    database->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    database->Execute(
        "INSERT INTO RECIPE_ADJUNCTS (RECIPE_ID, ROW_ID, NAME, WHEN) VALUES (1, 0, 'Moss', 'Boil')");
    return database;
}

void ReadAll(Database& database, std::string_view sql) {
    constexpr int kMostRows = 100;
    Recordset rows = database.OpenRecordset(sql);
    for (int row = 0; row < kMostRows && !rows.AtEnd(); ++row, rows.MoveNext())
        for (int i = 0; i < rows.FieldCount(); ++i) {
            const Field field = rows.Fields(i);
            if (rows.FieldName(i) != field.Name()) std::abort();
            if (field.IsNull() != std::holds_alternative<Null>(field.Value())) std::abort();
            if (field.IsNull() && !field.Text().empty()) std::abort();
        }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view sql(reinterpret_cast<const char*>(data), size);
    StatementKind kind{};
    try {
        kind = TranslateSql(sql).kind;
    } catch (const Error&) {
        return 0;
    }
    const std::unique_ptr<Database> database = MakeDatabase();
    try {
        if (kind == StatementKind::Select)
            ReadAll(*database, sql);
        else
            database->Execute(sql);
    } catch (const Error&) {
        // Refusing the statement is as good as running it.
    }
    CheckSchema(*database);
    return 0;
}
