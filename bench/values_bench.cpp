// Measures reading and writing quantities, each compared with the least work possible, in the same run. The
// counter "x_limit" is the ratio of the two.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "values/NumberText.h"
#include "values/QuantityParsers.h"

namespace {

constexpr std::size_t kEntries = 4096;

// A small random generator with the same sequence in every run and on every machine.
class Dice {
  public:
    double Next() {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<double>(state_ >> 11) / 9007199254740992.0;
    }
    int Below(int limit) { return static_cast<int>(Next() * limit); }

  private:
    std::uint64_t state_ = 7;
};

struct Corpus {
    std::vector<std::string> volumes;  // as brewers type them: 0 to 3 decimals, one in five a mixed fraction
    std::vector<double> typed;         // with 0 to 3 decimals
    std::vector<double> computed;      // with 15 to 17 digits, as in a computed cell
};

Corpus MakeCorpus() {
    static constexpr const char* kUnits[] = {" gal", "gal.", " qt",      " QUARTS", " l",
                                             " ml",  "",     " gallons", " pt",     " cups"};
    Corpus corpus;
    Dice dice;
    for (std::size_t i = 0; i < kEntries; ++i) {
        const double value = dice.Next() * 30;
        char buffer[64];
        const char* const end =
            std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, dice.Below(4)).ptr;
        std::string volume(buffer, static_cast<std::size_t>(end - buffer));
        double typed = 0;
        std::from_chars(buffer, end, typed);
        corpus.typed.push_back(typed);
        corpus.computed.push_back(value * 1.0000001234567);
        if (dice.Next() < 0.2) {
            volume = std::to_string(static_cast<int>(value));
            volume.append(" 1/").append(std::to_string(2 + dice.Below(7)));
        }
        corpus.volumes.push_back(volume.append(kUnits[dice.Below(10)]));
    }
    return corpus;
}

const Corpus& TheCorpus() {
    static const Corpus corpus = MakeCorpus();
    return corpus;
}

// The least work for reading "2 1/2 qt": one scan, from_chars for each number, one
// look-up in a table of words.
class HandWrittenReader {
  public:
    static bool Read(std::string_view text, double& gallons) {
        const char* at = text.data();
        const char* end = at + text.size();
        while (at < end && *at == ' ') ++at;
        while (end > at && end[-1] == ' ') --end;
        double value = 0;
        if (!TakeNumber(at, end, value)) return false;
        if (at < end && *at >= '0' && *at <= '9') {
            double numerator = 0;
            double denominator = 0;
            if (!TakeNumber(at, end, numerator) || at == end || *at++ != '/') return false;
            if (!TakeNumber(at, end, denominator) || denominator == 0) return false;
            value += numerator / denominator;
        }
        return TakeUnit(at, end, value, gallons);
    }

  private:
    struct Word {
        const char* letters;
        double gallons;
    };

    static bool TakeNumber(const char*& at, const char* end, double& value) {
        const std::from_chars_result result = std::from_chars(at, end, value, std::chars_format::fixed);
        if (result.ec != std::errc()) return false;
        at = result.ptr;
        while (at < end && *at == ' ') ++at;
        return true;
    }

    static bool TakeUnit(const char* at, const char* end, double value, double& gallons) {
        static constexpr Word kWords[] = {{"", 1},
                                          {"G", 1},
                                          {"G.", 1},
                                          {"GAL", 1},
                                          {"GAL.", 1},
                                          {"GALS", 1},
                                          {"GALS.", 1},
                                          {"GALLON", 1},
                                          {"GALLONS", 1},
                                          {"Q", .25},
                                          {"Q.", .25},
                                          {"QT", .25},
                                          {"QT.", .25},
                                          {"QTS", .25},
                                          {"QTS.", .25},
                                          {"QUART", .25},
                                          {"QUARTS", .25},
                                          {"P", .125},
                                          {"P.", .125},
                                          {"PT", .125},
                                          {"PT.", .125},
                                          {"PTS", .125},
                                          {"PTS.", .125},
                                          {"PINT", .125},
                                          {"PINTS", .125},
                                          {"CUP", 1. / 16},
                                          {"CUPS", 1. / 16},
                                          {"L", 1 / 3.785},
                                          {"L.", 1 / 3.785},
                                          {"LITER", 1 / 3.785},
                                          {"LITERS", 1 / 3.785},
                                          {"ML", 1 / 3785.},
                                          {"ML.", 1 / 3785.}};
        char upper[12] = {};
        const auto length = static_cast<std::size_t>(end - at);
        if (length >= sizeof upper) return false;
        for (std::size_t i = 0; i < length; ++i)
            upper[i] = at[i] >= 'a' && at[i] <= 'z' ? static_cast<char>(at[i] - 32) : at[i];
        for (const Word& word : kWords) {
            if (word.letters[0] != upper[0] || std::strlen(word.letters) != length) continue;
            if (std::memcmp(word.letters, upper, length) != 0) continue;
            gallons = value * word.gallons;
            return true;
        }
        return false;
    }
};

// Runs work and limit, each of which handles all entries, alternately, so that a change of the machine's
// speed affects both. Reports the time of one entry and the median of the ratios.
void Compare(benchmark::State& state, const std::function<void()>& work, const std::function<void()>& limit) {
    using Clock = std::chrono::steady_clock;
    std::vector<double> ratios;
    for ([[maybe_unused]] const auto _ : state) {
        const Clock::time_point begin = Clock::now();
        work();
        const Clock::time_point middle = Clock::now();
        limit();
        const Clock::time_point end = Clock::now();
        const std::chrono::duration<double> own = middle - begin;
        const std::chrono::duration<double> least = end - middle;
        state.SetIterationTime(own.count());
        ratios.push_back(own / least);
    }
    std::nth_element(ratios.begin(), ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2),
                     ratios.end());
    state.counters["x_limit"] = ratios[ratios.size() / 2];
    state.counters["per_entry"] =
        benchmark::Counter(static_cast<double>(state.iterations() * kEntries),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

template <typename Each>
std::function<void()> ForAll(Each each) {
    return [each] {
        for (std::size_t i = 0; i < kEntries; ++i) each(i);
    };
}

void ReadVolume(benchmark::State& state) {
    const std::vector<std::string>& texts = TheCorpus().volumes;
    Compare(state, ForAll([&](std::size_t i) { benchmark::DoNotOptimize(tw::ValidateVolume(texts[i])); }),
            ForAll([&](std::size_t i) {
                double gallons = 0;
                benchmark::DoNotOptimize(HandWrittenReader::Read(texts[i], gallons));
                benchmark::DoNotOptimize(gallons);
            }));
}
BENCHMARK(ReadVolume)->UseManualTime();

std::function<void()> ShortestText(const std::vector<double>& numbers) {
    return ForAll([&](std::size_t i) {
        char buffer[64];
        benchmark::DoNotOptimize(std::to_chars(buffer, buffer + sizeof buffer, numbers[i]).ptr);
        benchmark::ClobberMemory();
    });
}

void WriteNumber(benchmark::State& state, const std::vector<double>& numbers) {
    Compare(state, ForAll([&](std::size_t i) { benchmark::DoNotOptimize(tw::NumberText(numbers[i])); }),
            ShortestText(numbers));
}
BENCHMARK_CAPTURE(WriteNumber, typed, TheCorpus().typed)->UseManualTime();
BENCHMARK_CAPTURE(WriteNumber, computed, TheCorpus().computed)->UseManualTime();

void AppendNumber(benchmark::State& state, const std::vector<double>& numbers) {
    std::string out;
    Compare(state, ForAll([&](std::size_t i) {
                out.clear();
                tw::AppendNumberText(out, numbers[i]);
                benchmark::DoNotOptimize(out.data());
            }),
            ShortestText(numbers));
}
BENCHMARK_CAPTURE(AppendNumber, computed, TheCorpus().computed)->UseManualTime();

std::function<void()> FixedText(const std::vector<double>& numbers) {
    return ForAll([&](std::size_t i) {
        char buffer[64];
        benchmark::DoNotOptimize(
            std::to_chars(buffer, buffer + sizeof buffer, numbers[i], std::chars_format::fixed, 3).ptr);
        benchmark::ClobberMemory();
    });
}

void RoundQuantity(benchmark::State& state, const std::vector<double>& numbers) {
    Compare(state,
            ForAll([&](std::size_t i) { benchmark::DoNotOptimize(tw::FormatQuantity(numbers[i], 3)); }),
            FixedText(numbers));
}
BENCHMARK_CAPTURE(RoundQuantity, typed, TheCorpus().typed)->UseManualTime();
BENCHMARK_CAPTURE(RoundQuantity, computed, TheCorpus().computed)->UseManualTime();

void FormatByPattern(benchmark::State& state, const std::vector<double>& numbers) {
    Compare(state,
            ForAll([&](std::size_t i) { benchmark::DoNotOptimize(tw::FormatNumber(numbers[i], "0.##0")); }),
            FixedText(numbers));
}
BENCHMARK_CAPTURE(FormatByPattern, computed, TheCorpus().computed)->UseManualTime();

}  // namespace
