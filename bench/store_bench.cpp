// Measures saving and opening a recipe of 40 lines among a thousand recipes, and importing and exporting a
// thousand recipes. Compares the times with the same statements run by SQLite alone in the same run, with the
// same locks, journal and syncs. The counter "x_limit" is the ratio of the medians. The files are created in
// the current folder: run it on the disk to be measured.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <utility>
#include <vector>

#include "SilentStore.h"
#include "Timing.h"
#include "store/ExchangeFile.h"
#include "store/RecipeCopy.h"
#include "store/RecipeRows.h"
#include "store/Schema.h"
#include "store/SqlDialect.h"
#include "store/SqliteHandle.h"
#include "tree/DB_IO.h"
#include "values/NumberText.h"

namespace {

using namespace tw;

constexpr int kRecipes = 1000;
const std::string kStoreFile = "store_bench_a.mdb";
const std::string kRawFile = "store_bench_b.mdb";
const std::string kSourceFile = "store_bench_source.mdb";

std::string NameOf(int number) {
    return "Copper Lantern Bitter " + std::to_string(number);
}

StoredValue Text(const std::string& text) {
    return {text, std::nullopt};
}

StoredValue Number(double number) {
    return {std::nullopt, number};
}

std::vector<StoredValue> Texts(const std::vector<std::string>& texts) {
    std::vector<StoredValue> values;
    values.reserve(texts.size());
    for (const std::string& text : texts) values.push_back(Text(text));
    return values;
}

// Returns a line of a grid with these values in its stored columns, in their order.
StoredLine LineOf(GridId grid, int row, const std::vector<StoredValue>& values) {
    StoredLine line = EmptyLine(grid, row);
    std::size_t next = 0;
    for (std::size_t col = 0; col < line.cells.size(); ++col)
        if (RuleOf(grid).columns[col].stored != CellStored::No) line.cells[col] = values.at(next++);
    return line;
}

// Appends that many lines with these values to a grid.
void Fill(StoredRecipe& recipe, GridId grid, int lines, const std::vector<StoredValue>& values) {
    for (int row = 0; row < lines; ++row) recipe[grid].push_back(LineOf(grid, row, values));
}

// Returns a recipe of 14 grains, 4 extracts, 10 hops, 4 salts, 2 sugars, 3 adjuncts and 3 lines of log.
StoredRecipe MakeRecipe(const std::string& name) {
    StoredRecipe r;
    r.name = name;
    r.styleId = 7;
    r.folderId = 3;
    r.createdWhen = DateTime{2024, 1, 31, 12, 0, 0};
    r.modifiedWhen = DateTime{2024, 2, 28, 18, 30, 0};
    r[FieldId::BoilVol] = {"7 gal", 7};
    r[FieldId::TotalVol] = {"5.5 gal", 5.5};
    r[FieldId::FinalVol] = {"5 gal", 5};
    r[FieldId::BG] = {"1.041", 1.04123456789};
    r[FieldId::OG] = {"1.052", 1.05214285714286};
    r[FieldId::FG] = {"1.012", 1.012};
    r[FieldId::Notes] = Text(std::string(400, 'n'));
    r[GridId::Water] = {LineOf(GridId::Water, 0, Texts({"Home", "40", "120", "20", "8", "15", "30"})),
                        LineOf(GridId::Water, 1, Texts({"Burton", "268", "200", "36", "62", "54", "638"}))};
    Fill(r, GridId::Grain, 14,
         {Text("Pale malt, two row"), {"8 lb 4 oz", 8.25}, {"36.5", 36.5}, {"2.2", 2.2}});
    Fill(r, GridId::Extract, 4, {Text("Light dry extract"), {"1 lb", 1}, {"44", 44}, {"5", 5}});
    Fill(r, GridId::Hops, 10,
         {Text("East Kent Goldings"),
          {"5.2%", 5.2},
          Number(0),
          Number(0),
          {"1 1/2 oz", 1.5},
          Number(0),
          {"60 min", 60}});
    Fill(r, GridId::Treatment, 4,
         {Text("Gypsum"),
          {"3.125 grams", 3.125},
          Number(61.5),
          Number(0),
          Number(0),
          Number(0),
          Number(0),
          Number(147.4)});
    Fill(r, GridId::Priming, 2, {Text("Corn sugar"), {"100%", 100}, {"4 oz", 4}});
    Fill(r, GridId::Adjuncts, 3, Texts({"Irish moss", "1 tsp", "Boil", "15 min"}));
    Fill(r, GridId::Log, 3, Texts({"02/28/2024", "Pitched Yeast", "London ale - a fresh pack"}));
    return r;
}

void RemoveFiles() {
    for (const std::string& file : {kStoreFile, kRawFile, kSourceFile})
        for (const std::string end : {"", "-journal"}) std::filesystem::remove(file + end);
}

void Fill(Database& database) {
    UnitOfWork unit(database);
    for (int i = 0; i < kRecipes; ++i) InsertRecipe(database, MakeRecipe(NameOf(i)));
    unit.Commit();
}

void Save(Database& database, const StoredRecipe& recipe) {
    FixedClock clock;
    NoListener listener;
    TWTree nothing;
    TreeObjects tree(nothing);
    NoMessages messages;
    UnitOfWork unit(database);
    DB_IO(database, tree, messages, clock, listener).DeleteRecipeByName(recipe.name);
    InsertRecipe(database, recipe);
    unit.Commit();
}

// Returns the statement in the SQL of SQLite, with its numbers written into the text.
std::string Native(std::string_view sql) {
    DialectStatement statement = TranslateSql(sql);
    for (const double number : statement.numbers)
        statement.sql.replace(statement.sql.find('?'), 1, NumberText(number));
    return statement.sql;
}

// The store's database, the same file for SQLite alone, and a third database in memory that executes the same
// operations and records their statements.
class Bed {
  public:
    Bed() {
        RemoveFiles();
        {
            const auto made = Database::CreateDatabase(kStoreFile, "");
            CreateSchema(*made);
            Fill(*made);
        }
        std::filesystem::copy_file(kStoreFile, kRawFile);
        Fill(*shadow_);
        store = OpenMainDatabase(kStoreFile);
        raw = OpenDatabaseFile(kRawFile, FileUse::Exclusive).handle;
        shadow_->SetStatementHook([this](std::string_view sql) { statements_.push_back(Native(sql)); });
    }
    ~Bed() {
        store.reset();
        raw.reset();
        RemoveFiles();
    }
    Bed(const Bed&) = delete;
    Bed& operator=(const Bed&) = delete;

    template <typename Action>
    std::vector<std::string> StatementsOf(Action action) {
        statements_.clear();
        action(*shadow_);
        return statements_;
    }

    std::unique_ptr<Database> store;
    SqliteHandle raw;

  private:
    std::unique_ptr<Database> shadow_ = CreateMainDatabaseInMemory();
    std::vector<std::string> statements_;
};

// Prepares and runs each statement and reads every column.
void RunRaw(sqlite3* handle, const std::vector<std::string>& statements) {
    for (const std::string& sql : statements) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle, sql.c_str(), static_cast<int>(sql.size() + 1), &statement, nullptr) !=
            SQLITE_OK)
            RaiseStoreError(handle, kDatabaseSource);
        while (sqlite3_step(statement) == SQLITE_ROW)
            for (int i = sqlite3_column_count(statement); i-- > 0;) {
                if (sqlite3_column_type(statement, i) == SQLITE_TEXT)
                    benchmark::DoNotOptimize(sqlite3_column_text(statement, i));
                else
                    benchmark::DoNotOptimize(sqlite3_column_double(statement, i));
            }
        if (sqlite3_finalize(statement) != SQLITE_OK) RaiseStoreError(handle, kDatabaseSource);
    }
}

// Runs both alternately, so that a slow period of the disk affects both.
template <typename Store, typename Raw>
void Compare(benchmark::State& state, Store store, Raw raw) {
    std::vector<double> storeTimes;
    std::vector<double> rawTimes;
    for ([[maybe_unused]] const auto _ : state) {
        const double time = Seconds(store);
        state.SetIterationTime(time);
        storeTimes.push_back(time);
        rawTimes.push_back(raw());
    }
    state.counters["raw_us"] = Median(rawTimes) * 1e6;
    state.counters["store_us"] = Median(storeTimes) * 1e6;
    state.counters["x_limit"] = Median(storeTimes) / Median(rawTimes);
}

void BM_SaveRecipe(benchmark::State& state) {
    Bed bed;
    const StoredRecipe recipe = MakeRecipe(NameOf(500));
    Compare(
        state, [&] { Save(*bed.store, recipe); },
        [&] {
            const auto statements = bed.StatementsOf([&](Database& database) { Save(database, recipe); });
            return Seconds([&] {
                RunNative(bed.raw.get(), "BEGIN IMMEDIATE");
                RunRaw(bed.raw.get(), statements);
                RunNative(bed.raw.get(), "COMMIT");
            });
        });
}
BENCHMARK(BM_SaveRecipe)->UseManualTime()->Unit(benchmark::kMicrosecond);

void BM_OpenRecipe(benchmark::State& state) {
    Bed bed;
    int number = 0;
    std::string name;
    Compare(
        state,
        [&] {
            name = NameOf(number++ % kRecipes);
            benchmark::DoNotOptimize(ReadRecipe(*bed.store, name));
        },
        [&] {
            const auto statements = bed.StatementsOf([&](Database& database) { ReadRecipe(database, name); });
            return Seconds([&] { RunRaw(bed.raw.get(), statements); });
        });
}
BENCHMARK(BM_OpenRecipe)->UseManualTime()->Unit(benchmark::kMicrosecond);

class NoQuestions : public CopyHost {
  public:
    bool Continue(const std::string&, int, int) override { return true; }
    ConflictAnswer ResolveConflict(const std::string&, const std::string&) override { return {}; }
    bool ContinueAfter(const std::string&) override { return false; }
};

// Copies all recipes from one database to the other.
void CopyAll(Database& main, Database& file, bool isImport) {
    NoQuestions host;
    std::vector<std::string> names;
    names.reserve(kRecipes);
    for (int i = 0; i < kRecipes; ++i) names.push_back(NameOf(i));
    RecipeCopier copier(main, file, host);
    StylesNotImported unknown;
    isImport ? copier.ImportRecipes(names, 0, unknown) : copier.ExportRecipes(names);
}

// Creates a database that contains only the style of the recipes, or for a recipe file
// (isExchange) only its tables.
void MakeEmpty(const std::string& file, bool isExchange) {
    for (const std::string end : {"", "-journal"}) std::filesystem::remove(file + end);
    const auto made = Database::CreateDatabase(file, "");
    if (isExchange) return CreateExchangeTables(*CreateMainDatabaseInMemory(), *made);
    CreateSchema(*made);
    made->Execute("INSERT INTO STYLES (ID, NAME) VALUES (7, 'Best Bitter')");
}

// One statement of a copy, run on the database that is read or on the one that is written.
struct CopyStatement {
    bool onSource = false;
    std::string sql;
};

// Both start with an empty file and read the same source, each in one transaction.
void CompareCopy(benchmark::State& state, bool isImport) {
    RemoveFiles();
    MakeEmpty(kSourceFile, isImport);
    {
        const auto filled = CreateMainDatabaseInMemory();
        filled->Execute("INSERT INTO STYLES (ID, NAME) VALUES (7, 'Best Bitter')");
        Fill(*filled);
        const auto source = Database::OpenDatabase(kSourceFile, false);
        isImport ? CopyAll(*filled, *source, false) : Fill(*source);
    }
    std::vector<CopyStatement> statements;
    {
        MakeEmpty(kStoreFile, !isImport);
        const auto source = Database::OpenDatabase(kSourceFile, false);
        const auto dest = Database::OpenDatabase(kStoreFile, true);
        source->SetStatementHook([&](std::string_view sql) { statements.push_back({true, Native(sql)}); });
        dest->SetStatementHook([&](std::string_view sql) { statements.push_back({false, Native(sql)}); });
        isImport ? CopyAll(*dest, *source, true) : CopyAll(*source, *dest, false);
    }
    std::unique_ptr<Database> source, dest;
    std::vector<double> storeTimes, rawTimes;
    for ([[maybe_unused]] const auto _ : state) {
        MakeEmpty(kStoreFile, !isImport);
        MakeEmpty(kRawFile, !isImport);
        source = Database::OpenDatabase(kSourceFile, false);
        dest = Database::OpenDatabase(kStoreFile, true);
        storeTimes.push_back(
            Seconds([&] { isImport ? CopyAll(*dest, *source, true) : CopyAll(*source, *dest, false); }));
        state.SetIterationTime(storeTimes.back());
        source.reset();
        dest.reset();
        const SqliteHandle rawSource = OpenDatabaseFile(kSourceFile, FileUse::Shared).handle;
        const SqliteHandle rawDest = OpenDatabaseFile(kRawFile, FileUse::Exclusive).handle;
        rawTimes.push_back(Seconds([&] {
            RunNative(rawSource.get(), "BEGIN");
            RunNative(rawDest.get(), "BEGIN IMMEDIATE");
            for (const CopyStatement& statement : statements)
                RunRaw((statement.onSource ? rawSource : rawDest).get(), {statement.sql});
            RunNative(rawDest.get(), "COMMIT");
            RunNative(rawSource.get(), "COMMIT");
        }));
    }
    state.counters["raw_ms"] = Median(rawTimes) * 1e3;
    state.counters["store_ms"] = Median(storeTimes) * 1e3;
    state.counters["x_limit"] = Median(storeTimes) / Median(rawTimes);
    RemoveFiles();
}

void BM_ImportRecipes(benchmark::State& state) {
    CompareCopy(state, true);
}
BENCHMARK(BM_ImportRecipes)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(9);

void BM_ExportRecipes(benchmark::State& state) {
    CompareCopy(state, false);
}
BENCHMARK(BM_ExportRecipes)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(9);

}  // namespace
