// Ratios of medians, from Google Benchmark's repetitions.
#include "bench/limits/ratio.h"

#include <map>
#include <string>
#include <vector>

namespace r7::bench {

namespace {

class Medians final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                medians_[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
    double of(const std::string& name) { return medians_[name]; }

private:
    std::map<std::string, double> medians_;
};

} // namespace

double measured_ratio()
{
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    benchmark::ClearRegisteredBenchmarks();
    return medians.of("longer") / medians.of("shorter");
}

} // namespace r7::bench
