// Measures a keystroke in the find box among 100,000 recipes: RecipeFinder searches names, styles,
// ingredients, log and notes. It is compared with the system's memmem, which searches only the names, in
// upper case in one block of memory; both run alternately in the same run. The counter "x_limit" is the
// ratio of the medians. Also compares reading the recipes, at the first keystroke and at the first one
// after a change, with InitFromDatabase, and reports the memory used for each recipe. The file is created
// in the current folder.
#include <benchmark/benchmark.h>
#include <cstring>
#include <filesystem>
#include <malloc.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "Timing.h"
#include "store/Schema.h"
#include "tree/RecipeFinder.h"
#include "tree/TWTree.h"
#include "values/Text.h"

namespace {

using namespace tw;

constexpr int kRecipes = 100000;
constexpr int kStyles = 100;
const std::string kFile = "find_bench.mdb";

// Words as brewers use them: for names, for ingredients, and 2,000 words for notes, of which the first ones
// are far more frequent than the last ones.
class Words {
  public:
    std::string Name() {
        static const char* const kFirst[] = {"Harvest", "Midnight", "amber", "Old",
                                             "Spring",  "Copper",   "twin",  "Lost"};
        static const char* const kSecond[] = {"Lantern", "Falcon", "fox",   "Bridge",
                                              "Meadow",  "quarry", "Anchor"};
        static const char* const kThird[] = {"Stout",  "pale ale", "Porter", "Bitter",
                                             "Saison", "Lager",    "weizen"};
        return std::string(Pick(kFirst)) + " " + Pick(kSecond) + " " + Pick(kThird) + " " +
               std::to_string(++made_);
    }
    std::string Ingredient() {
        static const char* const kKind[] = {"Pale",    "Crystal", "Munich", "Roasted",
                                            "Golding", "Cascade", "Saaz"};
        static const char* const kMake[] = {"Malt", "Barley", "Extract", "Hops", "Sugar", "Flakes"};
        return std::string(Pick(kKind)) + " " + Pick(kMake) + " " + std::to_string(Below(5));
    }
    std::string Notes() {
        std::string notes;
        for (int i = 0; i < 45; ++i) notes += NotesWord(Below(1 + Below(2000))) + " ";
        return notes;
    }
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  private:
    template <std::size_t N>
    const char* Pick(const char* const (&words)[N]) {
        return words[random_() % N];
    }
    static std::string NotesWord(int number) {
        static const char* const kSyllables[] = {"ka", "lo",  "mer", "tin", "sa",
                                                 "ru", "bel", "on",  "qui", "der"};
        std::string word;
        for (int rest = number + 10; rest > 0; rest /= 10) word += kSyllables[rest % 10];
        return word;
    }
    std::mt19937 random_{7};
    int made_ = 0;
};

void Remove() {
    for (const char* const end : {"", "-journal"}) std::filesystem::remove(kFile + end);
}

void AddRecipe(Database& database, Words& words, int id) {
    database.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID, NOTES) VALUES ('" + words.Name() +
                     "', " + std::to_string(words.Below(kStyles + 1)) + ", 0, '" + words.Notes() + "')");
    for (const char* const table : {"RECIPE_GRAINS", "RECIPE_HOPS"})
        for (int row = 1; row <= 4; ++row)
            database.Execute("INSERT INTO " + std::string(table) + " (RECIPE_ID, ROW_ID, NAME) VALUES (" +
                             std::to_string(id) + ", " + std::to_string(row) + ", '" + words.Ingredient() +
                             "')");
}

std::unique_ptr<Database> MakeFile() {
    Remove();
    auto database = Database::CreateDatabase(kFile, "");
    CreateSchema(*database);
    Words words;
    UnitOfWork unit(*database);
    for (int i = 0; i < kStyles; ++i)
        database->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Style of " + words.Ingredient() +
                          "', 0)");
    for (int id = 1; id <= kRecipes; ++id) AddRecipe(*database, words, id);
    unit.Commit();
    return database;
}

// Created once for all benchmarks.
Database& Recipes() {
    static const std::unique_ptr<Database> database = MakeFile();
    return *database;
}

class NamesInMemory {
  public:
    explicit NamesInMemory(Database& database) {
        for (Recordset rows = database.OpenRecordset("SELECT NAME FROM RECIPES ORDER BY NAME"); !rows.AtEnd();
             rows.MoveNext())
            block_ += Upper(rows.Fields(0).Text()) + "\n";
    }
    std::size_t Count(const std::string& upper) const {
        std::size_t hits = 0;
        const char* at = block_.data();
        const char* const end = at + block_.size();
        for (;;) {
            at = static_cast<const char*>(
                memmem(at, static_cast<std::size_t>(end - at), upper.data(), upper.size()));
            if (at == nullptr) return hits;
            ++hits;
            at = static_cast<const char*>(memchr(at, '\n', static_cast<std::size_t>(end - at)));
        }
    }

  private:
    std::string block_;
};

void BM_Keystroke(benchmark::State& state, const std::string& text) {
    RecipeFinder finder(Recipes());
    const NamesInMemory names(Recipes());
    const std::string upper = Upper(text);
    finder.Find(text);
    std::vector<double> ours;
    std::vector<double> limit;
    std::size_t hits = 0;
    for ([[maybe_unused]] const auto _ : state) {
        ours.push_back(Seconds([&] { hits = finder.Find(text).size(); }));
        limit.push_back(Seconds([&] { benchmark::DoNotOptimize(names.Count(upper)); }));
        state.SetIterationTime(ours.back());
    }
    state.counters["hits"] = static_cast<double>(hits);
    state.counters["limit_ms"] = Median(limit) * 1e3;
    state.counters["ours_ms"] = Median(ours) * 1e3;
    state.counters["x_limit"] = Median(ours) / Median(limit);
}
#define KEYSTROKE(name, text)                   \
    BENCHMARK_CAPTURE(BM_Keystroke, name, text) \
        ->UseManualTime()                       \
        ->Iterations(101)                       \
        ->Unit(benchmark::kMicrosecond)
KEYSTROKE(first_letter, "a");
KEYSTROKE(two_letters, "am");
KEYSTROKE(common_word, "amber");
KEYSTROKE(short_word, "old");
KEYSTROKE(two_words, "fox weizen");
KEYSTROKE(number, "777");
KEYSTROKE(digit, "7");
KEYSTROKE(nothing, "zzzz");
KEYSTROKE(ingredient, "crystal");
KEYSTROKE(three_words, "amber crystal lomer");

std::size_t BytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void BM_Read(benchmark::State& state) {
    Database& database = Recipes();
    TWTree tree(&database);
    tree.InitFromDatabase();
    std::vector<double> ours;
    std::vector<double> trees;
    std::size_t bytes = 0;
    for ([[maybe_unused]] const auto _ : state) {
        const std::size_t before = BytesInUse();
        RecipeFinder finder(database);
        ours.push_back(Seconds([&] { finder.Find("x"); }));
        bytes = BytesInUse() - before;
        trees.push_back(Seconds([&] { tree.InitFromDatabase(); }));
        state.SetIterationTime(ours.back());
    }
    state.counters["bytes_a_recipe"] = static_cast<double>(bytes) / kRecipes;
    state.counters["tree_ms"] = Median(trees) * 1e3;
    state.counters["x_tree"] = Median(ours) / Median(trees);
}
BENCHMARK(BM_Read)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    Remove();
}
