// How many times as long one piece of work takes as another.
#pragma once

#include <benchmark/benchmark.h>

namespace r7::bench {

/// Runs the two benchmarks that are registered, "longer" and "shorter", and forgets them.
double measured_ratio();

/// The medians, in processor time, of repetitions that alternate at random: neighbours on the machine slow
/// both down alike. Each call does the work once.
template <class Longer, class Shorter>
double ratio(Longer longer, Shorter shorter)
{
    benchmark::RegisterBenchmark("longer", [&](benchmark::State& state) {
        for (auto _ : state) longer();
    });
    benchmark::RegisterBenchmark("shorter", [&](benchmark::State& state) {
        for (auto _ : state) shorter();
    });
    return measured_ratio();
}

} // namespace r7::bench
