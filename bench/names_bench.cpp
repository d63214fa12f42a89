// Measures one keystroke in a list of all names of the shipped catalogue with their aliases, without
// painting. The limit is a fixed time: 1 ms. The counter "x_limit" is the ratio to it.
#include <benchmark/benchmark.h>
#include <optional>
#include <string>
#include <vector>

#include "store/CatalogueLoader.h"
#include "store/CatalogueNames.h"
#include "store/Schema.h"
#include "values/Text.h"

namespace {

constexpr double kLimitSeconds = 0.001;

// Returns all names of all catalogues in one list.
tw::NameList AllNames() {
    const auto database = tw::CreateMainDatabaseInMemory();
    if (!tw::LoadCatalogue(CATALOGUE_FOLDER, *database, std::nullopt).empty())
        throw tw::Error("names_bench", "The catalogue has faults", 1);
    tw::NameList all;
    for (const tw::CatalogueKind kind : tw::kSetupOrder) {
        const tw::NameList names = tw::CatalogueNames(*database).NamesOf(kind);
        const auto facts = tw::CatalogueNames(*database).FactsOf(kind);
        for (std::size_t i = 0; i < names.Count(); ++i) {
            const auto known = facts.find(tw::Upper(names.Name(i)));
            all.Add(names.Name(i),
                    known == facts.end() ? std::vector<std::string>() : known->second.OtherNames());
        }
    }
    return all;
}

void Keystroke(benchmark::State& state, const char* typed) {
    static const tw::NameList names = AllNames();
    for ([[maybe_unused]] const auto _ : state) benchmark::DoNotOptimize(names.Find(typed));
    state.counters["names"] = static_cast<double>(names.Count());
    state.counters["x_limit"] = benchmark::Counter(static_cast<double>(state.iterations()) * kLimitSeconds,
                                                   benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK_CAPTURE(Keystroke, letter, "w")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Keystroke, word, "crystal")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Keystroke, two_words, "white lab")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Keystroke, alias, "ekg")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Keystroke, nothing, "zzz")->Unit(benchmark::kMicrosecond);

}  // namespace
