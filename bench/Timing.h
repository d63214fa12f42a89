// Timing for the benchmarks that compare two implementations in one run.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace tw {

// Returns the time that action takes, in seconds.
template <typename Action>
double Seconds(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Returns the median; of an even number of times, the upper one of the two in the middle.
// REQUIRES: times is not empty.
inline double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace tw
