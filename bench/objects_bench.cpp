// Deletes a folder of 10,000 recipes, including the entries of the tree, and compares the time with the same
// statements run by SQLite alone in one transaction in the same run, with the same locks, journal and syncs.
// The argument is the number of recipes in other folders. The counter "x_limit" is the ratio of the medians.
// The files are created in the current folder: run it on the disk to be measured.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <vector>

#include "SilentStore.h"
#include "Timing.h"
#include "store/Schema.h"
#include "store/SqlDialect.h"
#include "store/SqliteHandle.h"
#include "tree/DB_IO.h"
#include "tree/TreeObjects.h"
#include "values/NumberText.h"

namespace {

using namespace tw;

constexpr int kInFolder = 10000;
constexpr int kStyles = 20;
constexpr std::int64_t kFolder = 1;
const std::string kMadeFile = "objects_bench.mdb";
const std::string kStoreFile = "objects_bench_a.mdb";
const std::string kRawFile = "objects_bench_b.mdb";

void Remove(const std::string& file) {
    for (const std::string end : {"", "-journal"}) std::filesystem::remove(file + end);
}

void CopyMade(const std::string& file) {
    Remove(file);
    std::filesystem::copy_file(kMadeFile, file);
}

// Creates recipes of four lines each. The names of the recipes in the folder are spread among the others.
void MakeFile(int elsewhere) {
    Remove(kMadeFile);
    const auto database = Database::CreateDatabase(kMadeFile, "");
    CreateSchema(*database);
    UnitOfWork unit(*database);
    for (const std::string name : {"Going", "Staying"})
        database->Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, '" + name + "', FALSE)");
    for (int i = 0; i < kStyles; ++i)
        database->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Style " + std::to_string(i) +
                          "', 0)");
    const int recipes = kInFolder + elsewhere;
    for (int i = 0; i < recipes; ++i) {
        const std::string number = std::to_string(i);
        const bool goes = static_cast<std::int64_t>(i) * kInFolder % recipes < kInFolder;
        database->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Copper Lantern " +
                          number + "', " + std::to_string(i % (kStyles + 1)) + (goes ? ", 1)" : ", 2)"));
        for (const std::string table : {"RECIPE_GRAINS", "RECIPE_HOPS", "RECIPE_ADJUNCTS", "RECIPE_LOG"})
            database->Execute("INSERT INTO " + table + " (RECIPE_ID, ROW_ID) VALUES (?, 0)", {i + 1});
    }
    unit.Commit();
}

// The store's database, its tree, and the object that deletes from both.
struct Bed {
    explicit Bed(const std::string& file) : database(OpenMainDatabase(file)) { tree.InitFromDatabase(); }
    std::unique_ptr<Database> database;
    TWTree tree{database.get()};
    TreeObjects treeObjects{tree};
    NoMessages messages;
    FixedClock clock;
    NoListener listener;
    DB_IO objects{*database, treeObjects, messages, clock, listener};
};

// Returns the statements of the deletion in the SQL of SQLite.
std::vector<std::string> Statements() {
    CopyMade(kStoreFile);
    Bed bed(kStoreFile);
    std::vector<std::string> statements;
    bed.database->SetStatementHook([&](std::string_view sql) {
        DialectStatement statement = TranslateSql(sql);
        for (const double number : statement.numbers)
            statement.sql.replace(statement.sql.find('?'), 1, NumberText(number));
        statements.push_back(statement.sql);
    });
    bed.objects.DeleteRecipeFolder(kFolder);
    return statements;
}

void RunRaw(sqlite3* handle, const std::vector<std::string>& statements) {
    RunNative(handle, "BEGIN IMMEDIATE");
    for (const std::string& sql : statements) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle, sql.c_str(), static_cast<int>(sql.size() + 1), &statement, nullptr) !=
            SQLITE_OK)
            RaiseStoreError(handle, kDatabaseSource);
        while (sqlite3_step(statement) == SQLITE_ROW)
            benchmark::DoNotOptimize(sqlite3_column_int64(statement, 0));
        if (sqlite3_finalize(statement) != SQLITE_OK) RaiseStoreError(handle, kDatabaseSource);
    }
    RunNative(handle, "COMMIT");
}

// Runs both alternately, so that a slow period of the disk affects both.
void BM_DeleteFolder(benchmark::State& state) {
    MakeFile(static_cast<int>(state.range(0)));
    const std::vector<std::string> statements = Statements();
    std::vector<double> storeTimes;
    std::vector<double> rawTimes;
    for ([[maybe_unused]] const auto _ : state) {
        CopyMade(kStoreFile);
        CopyMade(kRawFile);
        {
            Bed bed(kStoreFile);
            storeTimes.push_back(Seconds([&] { bed.objects.DeleteRecipeFolder(kFolder); }));
        }
        const SqliteHandle raw = OpenDatabaseFile(kRawFile, FileUse::Exclusive).handle;
        rawTimes.push_back(Seconds([&] { RunRaw(raw.get(), statements); }));
        state.SetIterationTime(storeTimes.back());
    }
    state.counters["raw_ms"] = Median(rawTimes) * 1e3;
    state.counters["store_ms"] = Median(storeTimes) * 1e3;
    state.counters["x_limit"] = Median(storeTimes) / Median(rawTimes);
    for (const std::string& file : {kMadeFile, kStoreFile, kRawFile}) Remove(file);
}
BENCHMARK(BM_DeleteFolder)->Arg(0)->Arg(90000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
