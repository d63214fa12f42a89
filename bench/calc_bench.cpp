// Recalculates a recipe of 30 lines (14 grains, 4 extracts, 10 hops, 2 sugars) through its document, without
// a window, and compares the time with the least that the arithmetic and the texts can cost. The counter
// "x_limit" is the ratio of the two, which are measured alternately in the same run.
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "BenchRecipe.h"

namespace {

using tw::bench::Dice;
using tw::bench::kExtracts;
using tw::bench::kGrains;
using tw::bench::kHops;
using tw::bench::kSugars;
using tw::bench::Recipe;
using tw::bench::Typed;

// The least work. One recalculation does at least this:
//   written, shortest text (54 numbers): points and colour units of 18 rows, 10 IBUs, 2 priming volumes,
//     6 totals;
//   read from text again (55 numbers): the 36 + 13 cells that are summed, the 6 totals;
//   written by pattern (7 numbers): both gravities, alcohol, two for the colour, bitterness, carbonation;
//   calculated: one exp and one pow for each row of hops, one pow for the colour.
// Buffers are on the stack; there are no cells, no commands and no entries to read.
class Floor {
  public:
    Floor() {
        Dice dice;
        for (std::size_t i = 0; i < kEntries; ++i) {
            typed_.push_back(std::round(dice.Next() * 3000) / 100);
            std::array<char, 32> buffer{};
            const auto result =
                std::to_chars(buffer.data(), buffer.data() + buffer.size(), typed_.back() * 1.0000001234567);
            full_.emplace_back(buffer.data(), result.ptr);
        }
    }

    void Run() {
        base_ = (base_ + 97) % (kEntries - 128);
        const double volume = typed_[base_] + 1;
        double sum = 0;
        for (std::size_t row = 0; row < kGrains + kExtracts; ++row) {
            const double amount = typed_[base_ + row];
            Write(amount * 36.5 * 0.72 / volume);
            Write(amount * 4.2 / volume);
        }
        for (std::size_t cell = 0; cell < std::size_t{2} * (kGrains + kExtracts); ++cell) sum += Read(cell);
        const double boilGravity = 1 + sum / 100000;
        for (std::size_t row = 0; row < kHops; ++row)
            Write(typed_[base_ + row] * 7490 / volume * 1.65 * std::pow(0.000125, boilGravity - 1) *
                  (1 - std::exp(-0.04 * typed_[base_ + row + 20])) / 4.15);
        for (std::size_t cell = 0; cell < kHops + kSugars + 1; ++cell) sum += Read(cell);
        for (std::size_t row = 0; row < kSugars; ++row) Write(typed_[base_ + row] * 0.27 / volume);
        for (std::size_t total = 0; total < 6; ++total) {
            Write(sum * (static_cast<double>(total) + 1.1));
            benchmark::DoNotOptimize(Read(total));
        }
        const double srm = 1.4922 * std::pow(std::fabs(sum) + 1, 0.6859);
        for (int figure = 0; figure < 7; ++figure) WriteFixed(figure == 0 ? srm : sum + figure, figure % 4);
    }

  private:
    static constexpr std::size_t kEntries = 4096;

    double Read(std::size_t cell) const {
        const std::string& text = full_[base_ + cell];
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
    static void Write(double value) {
        char buffer[64];
        benchmark::DoNotOptimize(std::to_chars(std::begin(buffer), std::end(buffer), value).ptr);
        benchmark::ClobberMemory();
    }
    static void WriteFixed(double value, int decimals) {
        char buffer[64];
        benchmark::DoNotOptimize(
            std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::fixed, decimals)
                .ptr);
        benchmark::ClobberMemory();
    }

    std::vector<double> typed_;
    std::vector<std::string> full_;
    std::size_t base_ = 0;
};

// Runs edit(n) for n = 0, 1, ... and the least work alternately, in rounds of kRound calls. Reports the
// median of the ratios of all rounds.
void Compare(benchmark::State& state, const std::function<void(int)>& edit) {
    using Clock = std::chrono::steady_clock;
    constexpr int kRound = 20;
    Floor floor;
    std::vector<double> ratios;
    int n = 0;
    for ([[maybe_unused]] const auto _ : state) {
        const Clock::time_point begin = Clock::now();
        for (int i = 0; i < kRound; ++i) edit(n++);
        const Clock::time_point middle = Clock::now();
        for (int i = 0; i < kRound; ++i) floor.Run();
        const Clock::time_point end = Clock::now();
        const std::chrono::duration<double> own = middle - begin;
        const std::chrono::duration<double> least = end - middle;
        state.SetIterationTime(own.count());
        ratios.push_back(own / least);
    }
    std::nth_element(ratios.begin(), ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2),
                     ratios.end());
    state.counters["x_limit"] = ratios[ratios.size() / 2];
    state.counters["per_edit"] =
        benchmark::Counter(static_cast<double>(state.iterations() * kRound),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void RecalculateTotalVolume(benchmark::State& state) {
    Recipe recipe;
    std::vector<std::string> volumes;
    volumes.reserve(16);
    for (int i = 0; i < 16; ++i) volumes.push_back(Typed(4 + i * 0.37) + " gal");
    Compare(state, [&](int n) { recipe.CommitTotalVolume(volumes[static_cast<std::size_t>(n % 16)]); });
}
BENCHMARK(RecalculateTotalVolume)->UseManualTime();

void RecalculateGrainAmount(benchmark::State& state) {
    Recipe recipe;
    std::vector<std::string> amounts;
    amounts.reserve(15);
    for (int i = 0; i < 15; ++i) amounts.push_back(Typed(2 + i * 0.53));
    Compare(state,
            [&](int n) { recipe.CommitGrain(1 + n % kGrains, amounts[static_cast<std::size_t>(n % 15)]); });
}
BENCHMARK(RecalculateGrainAmount)->UseManualTime();

}  // namespace
