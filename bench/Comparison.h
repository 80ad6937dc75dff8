// Times of several ways to do the same beside the raw limit, taken by turns so that a noisy neighbour meets
// all of them.
//
//     Compare(state, [] { Raw(); }, {{"ours", [] { Ours(); }}, {"peer", [] { Peer(); }}});
//
// Counters: raw_ms the median of the limit, and for each contender the median of its multiples of the limit.
#pragma once
#include <benchmark/benchmark.h>
#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

using Work = std::function<void()>;

struct Contender {
    const char* Name;
    Work Do;  // none: takes no part
};

inline double SecondsOf(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// As many rounds as the state has iterations; the first contender's time is the benchmark's. The others,
// which may be slow, take part in the first few rounds only.
inline void Compare(benchmark::State& state, const Work& raw, const std::vector<Contender>& contenders) {
    constexpr size_t kRoundsOfOthers = 3;
    std::vector<double> limits;
    std::vector<std::vector<double>> ratios(contenders.size());
    raw();
    contenders.front().Do();
    for (auto unused : state) {
        static_cast<void>(unused);
        limits.push_back(SecondsOf(raw));
        for (size_t i = 0; i < contenders.size(); ++i) {
            if (!contenders[i].Do || (i > 0 && ratios[i].size() >= kRoundsOfOthers)) continue;
            const double spent = SecondsOf(contenders[i].Do);
            if (i == 0) state.SetIterationTime(spent);
            ratios[i].push_back(spent / limits.back());
        }
    }
    state.counters["raw_ms"] = Median(limits) * 1e3;
    for (size_t i = 0; i < contenders.size(); ++i) state.counters[contenders[i].Name] = Median(ratios[i]);
}
