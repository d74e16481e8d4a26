// Measures what the panel is held to. Arguments are Google Benchmark's. Exit status 1 where a limit is
// missed.
#include "bench/limits/limits.h"

#include <benchmark/benchmark.h>

#include <vector>

int main(int argc, char** argv)
{
    char repetitions[] = "--benchmark_repetitions=31",
         interleaving[] = "--benchmark_enable_random_interleaving=true",
         min_time[] = "--benchmark_min_time=0.02";
    std::vector<char*> arguments{argv[0], repetitions, interleaving, min_time};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    auto count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

    r7::bench::Limits limits;
    measure_curves(limits);
    measure_tone_control(limits);
    measure_waveshaper(limits);
    measure_painting(limits);
    measure_allocations(limits);
    measure_idleness(limits);
    return limits.all_kept() ? 0 : 1;
}
