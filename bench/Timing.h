// How the benchmarks that compare two ways in one run take their times.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace tw {

// What action takes, in seconds.
template <typename Action>
double Seconds(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The upper one of the two in the middle, for an even count. REQUIRES: times holds one.
inline double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace tw
