// Measures the tree of 1,000, 10,000 and 100,000 recipes in 100 styles and 220 folders: building it, compared
// with the reads that it replaces, which SQLite alone runs in the same run without keeping their rows; its
// memory; and renaming or moving one recipe, compared with building the tree. The counter "x_limit" is the
// ratio of the medians, "x_init" the share of a whole InitFromDatabase, "x_init_first" that share for the
// first change after it. The file is created in the current folder.
#include <benchmark/benchmark.h>
#include <cstdint>
#include <filesystem>
#include <malloc.h>
#include <memory>
#include <random>
#include <sqlite3.h>
#include <string>
#include <vector>

#include "Timing.h"
#include "store/Schema.h"
#include "store/SqliteHandle.h"
#include "tree/TWNodes.h"
#include "tree/TWTree.h"

namespace {

using namespace tw;

constexpr int kStyles = 100;
constexpr int kRecipeFolders = 200;
constexpr int kTopFolders = 20;
constexpr int kStyleFolders = 20;
const std::string kFile = "tree_bench.mdb";

// Generates different names in no order, as brewers give them.
class Names {
  public:
    std::string Next() {
        static const char* const kFirst[] = {"Harvest", "Midnight", "amber", "Old",
                                             "Spring",  "Copper",   "twin",  "Lost"};
        static const char* const kSecond[] = {"Lantern", "Falcon", "orchard", "Bridge",
                                              "Meadow",  "quarry", "Anchor"};
        static const char* const kThird[] = {"Stout",  "pale ale", "Porter", "Bitter",
                                             "Saison", "Lager",    "Mild"};
        return std::string(Pick(kFirst)) + " " + Pick(kSecond) + " " + Pick(kThird) + " " +
               std::to_string(++made_);
    }
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  private:
    template <std::size_t N>
    const char* Pick(const char* const (&words)[N]) {
        return words[random_() % N];
    }
    std::mt19937 random_{7};
    int made_ = 0;
};

void Remove(const std::string& file) {
    for (const char* const end : {"", "-journal"}) std::filesystem::remove(file + end);
}

// Creates the file. The ids of style folders follow those of recipe folders.
void MakeFile(int recipes) {
    Remove(kFile);
    const auto database = Database::CreateDatabase(kFile, "");
    CreateSchema(*database);
    Names names;
    UnitOfWork unit(*database);
    for (int i = 1; i <= kRecipeFolders + kStyleFolders; ++i) {
        const bool atTop = i <= kTopFolders || i > kRecipeFolders;
        database->Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (" +
                          std::to_string(atTop ? 0 : 1 + i % kTopFolders) + ", 'Folder " + std::to_string(i) +
                          "', " + (i > kRecipeFolders ? "TRUE)" : "FALSE)"));
    }
    for (int i = 0; i < kStyles; ++i)
        database->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('" + names.Next() + "', " +
                          std::to_string(kRecipeFolders + 1 + i % kStyleFolders) + ")");
    const std::string notes(300, 'n');
    for (int i = 0; i < recipes; ++i)
        database->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID, NOTES) VALUES ('" + names.Next() +
                          "', " + std::to_string(names.Below(kStyles + 1)) + ", " +
                          std::to_string(names.Below(kRecipeFolders + 1)) + ", '" + notes + "')");
    unit.Commit();
}

// The reads of a tree that queries each folder and style separately, made directly with SQLite.
class DesignedReads {
  public:
    explicit DesignedReads(sqlite3* handle) : handle_(handle) {}

    void Run() {
        Read("RECIPES", "");
        Read("RECIPES", "WHERE STYLE_ID = 0");
        for (const auto style : Ids("STYLES", "")) RecipesOf("STYLE_ID", style);
        StyleFolder(0);
        Read("RECIPES", "WHERE STYLE_ID = 0");
        RecipeFolder(0);
    }

  private:
    void StyleFolder(std::int64_t id) {
        for (const auto folder : Ids("FOLDERS", "WHERE STYLE AND PARENT_ID = " + std::to_string(id)))
            StyleFolder(folder);
        for (const auto style : Ids("STYLES", "WHERE FOLDER_ID = " + std::to_string(id)))
            RecipesOf("STYLE_ID", style);
    }
    void RecipeFolder(std::int64_t id) {
        for (const auto folder : Ids("FOLDERS", "WHERE NOT STYLE AND PARENT_ID = " + std::to_string(id)))
            RecipeFolder(folder);
        RecipesOf("FOLDER_ID", id);
    }
    void RecipesOf(const std::string& column, std::int64_t id) {
        Read("RECIPES", "WHERE " + column + " = " + std::to_string(id));
    }
    std::vector<std::int64_t> Ids(const std::string& table, const std::string& where) {
        std::vector<std::int64_t> ids;
        ForEachRow(table, where, [&](std::int64_t id) { ids.push_back(id); });
        return ids;
    }
    void Read(const std::string& table, const std::string& where) {
        ForEachRow(table, where, [](std::int64_t id) { benchmark::DoNotOptimize(id); });
    }
    template <typename Action>
    void ForEachRow(const std::string& table, const std::string& where, Action action) {
        const std::string sql = "SELECT NAME, ID FROM " + table + " " + where + " ORDER BY NAME";
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
            RaiseStoreError(handle_, kDatabaseSource);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            benchmark::DoNotOptimize(sqlite3_column_text(statement, 0));
            action(sqlite3_column_int64(statement, 1));
        }
        sqlite3_finalize(statement);
    }

    sqlite3* handle_;
};

// Runs both alternately, on the same file.
void BM_InitFromDatabase(benchmark::State& state) {
    MakeFile(static_cast<int>(state.range(0)));
    std::vector<double> treeTimes;
    std::vector<double> readTimes;
    for ([[maybe_unused]] const auto _ : state) {
        {
            const auto database = OpenMainDatabase(kFile);
            TWTree tree(database.get());
            tree.InitFromDatabase();
            // The time includes destroying the previous tree.
            treeTimes.push_back(Seconds([&] { tree.InitFromDatabase(); }));
            benchmark::DoNotOptimize(tree.Count());
        }
        const SqliteHandle raw = OpenDatabaseFile(kFile, FileUse::Exclusive).handle;
        DesignedReads(raw.get()).Run();
        readTimes.push_back(Seconds([&] { DesignedReads(raw.get()).Run(); }));
        state.SetIterationTime(treeTimes.back());
    }
    state.counters["reads_ms"] = Median(readTimes) * 1e3;
    state.counters["tree_ms"] = Median(treeTimes) * 1e3;
    state.counters["x_limit"] = Median(treeTimes) / Median(readTimes);
    Remove(kFile);
}
BENCHMARK(BM_InitFromDatabase)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(11)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

std::size_t BytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void BM_TreeMemory(benchmark::State& state) {
    const auto recipes = static_cast<int>(state.range(0));
    MakeFile(recipes);
    const auto database = OpenMainDatabase(kFile);
    TWTree(database.get()).InitFromDatabase();  // fills the store's cache
    std::size_t bytes = 0;
    for ([[maybe_unused]] const auto _ : state) {
        const std::size_t before = BytesInUse();
        TWTree tree(database.get());
        tree.InitFromDatabase();
        bytes = BytesInUse() - before;
    }
    state.counters["bytes_a_recipe"] = static_cast<double>(bytes) / recipes;
    Remove(kFile);
}
BENCHMARK(BM_TreeMemory)->Arg(10000)->Arg(100000)->Iterations(1)->Unit(benchmark::kMillisecond);

// Renames all four copies of a recipe, only in the tree.
void Rename(TWTree& tree, int recipe, const std::string& name) {
    for (int copy = 0; copy < kRecipeCopies; ++copy) tree.Nodes(RecipeKey(recipe, copy))->SetName(name);
}

void Move(TWTree& tree, int recipe, int folder) {
    TWNode* const node = tree.Nodes(RecipeKey(recipe, kCopyInFolder));
    tree.Nodes(RecipeFolderKey(folder))
        ->Children()
        .AddNode(node->Parent()->Children().RemoveNode(*node, true));
}

template <typename Change>
void CompareWithInit(benchmark::State& state, Change change) {
    constexpr int kRecipes = 100000;
    MakeFile(kRecipes);
    const auto database = OpenMainDatabase(kFile);
    TWTree tree(database.get());
    std::vector<double> initTimes;
    initTimes.reserve(5);
    for (int i = 0; i < 5; ++i) initTimes.push_back(Seconds([&] { tree.InitFromDatabase(); }));
    Names names;
    const double first = Seconds([&] { change(tree, 1, names); });
    std::vector<double> times;
    for ([[maybe_unused]] const auto _ : state) {
        const int recipe = 1 + names.Below(kRecipes);
        times.push_back(Seconds([&] { change(tree, recipe, names); }));
        state.SetIterationTime(times.back());
    }
    state.counters["init_ms"] = Median(initTimes) * 1e3;
    state.counters["x_init"] = Median(times) / Median(initTimes);
    state.counters["x_init_first"] = first / Median(initTimes);
    Remove(kFile);
}

void BM_RenameRecipe(benchmark::State& state) {
    CompareWithInit(state,
                    [](TWTree& tree, int recipe, Names& names) { Rename(tree, recipe, names.Next()); });
}
BENCHMARK(BM_RenameRecipe)->UseManualTime()->Unit(benchmark::kMicrosecond);

void BM_MoveRecipe(benchmark::State& state) {
    CompareWithInit(state, [](TWTree& tree, int recipe, Names& names) {
        Move(tree, recipe, names.Below(kRecipeFolders + 1));
    });
}
BENCHMARK(BM_MoveRecipe)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
