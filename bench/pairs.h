// Pairs of runs: ours and theirs in turn, judged by the median of the pairs' ratios. Two runs that follow each other
// meet the same machine; what slows it down for a while spoils a few pairs and not the median.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

inline double MedianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The seconds that the call takes.
template <class Call>
double SecondsOf(Call&& call) {
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs both `pairs` times, each first in every other pair, after one run of each that does not count. Reports the
/// median ratio ours/theirs, the ratio aimed at, and both medians in microseconds. Register with Iterations(1).
template <class Ours, class Theirs>
void RunPairs(benchmark::State& state, int pairs, double target, Ours ours, Theirs theirs) {
    std::vector<double> ratios, ourTimes, theirTimes;
    for (auto _ : state) {
        ours();
        theirs();
        for (int pair = 0; pair < pairs; ++pair) {
            double our = 0;
            if (pair % 2 == 0) our = SecondsOf(ours);
            const double their = SecondsOf(theirs);
            if (pair % 2 == 1) our = SecondsOf(ours);
            ratios.push_back(our / their);
            ourTimes.push_back(our * 1e6);
            theirTimes.push_back(their * 1e6);
        }
    }
    state.counters["ratio"] = MedianOf(ratios);
    state.counters["target"] = target;
    state.counters["ours_us"] = MedianOf(ourTimes);
    state.counters["theirs_us"] = MedianOf(theirTimes);
}
