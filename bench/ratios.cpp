// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ratios.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <utility>
#include <vector>

namespace {

struct Ratio
{
    std::string name;
    double aim = 0;
};

std::vector<Ratio> &ratios()
{
    static std::vector<Ratio> all;
    return all;
}

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/** Collects the repetitions and prints one line a pair. */
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration)
                m_times[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
        }
    }

    void Finalize() override
    {
        std::printf("%-44s %12s %12s %8s %8s\n", "", "library ns", "bare ns", "ratio", "aim");
        for (const Ratio &ratio : ratios()) {
            const double library = median(m_times[ratio.name + "/library"]);
            const double bare = median(m_times[ratio.name + "/bare"]);
            if (library == 0 || bare == 0)
                continue; // filtered out
            std::printf("%-44s %12.0f %12.0f %8.2f", ratio.name.c_str(), library, bare, library / bare);
            if (ratio.aim > 0)
                std::printf(" %8.2f%s", ratio.aim, library / bare <= ratio.aim ? "" : "  missed");
            std::printf("\n");
        }
    }

private:
    std::map<std::string, std::vector<double>> m_times;
};

} // namespace

int quv::runRatios(int argc, char **argv)
{
    std::vector<char *> arguments(argv, argv + argc);
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string repetitions = "--benchmark_repetitions=9";
    std::string time = "--benchmark_min_time=0.05";
    arguments.insert(arguments.begin() + 1, {interleaving.data(), repetitions.data(), time.data()});
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

void quv::addRatio(const std::string &name, double aim, std::function<void(benchmark::State &)> library,
                   std::function<void(benchmark::State &)> bare)
{
    ratios().push_back({name, aim});
    benchmark::RegisterBenchmark((name + "/library").c_str(), std::move(library));
    benchmark::RegisterBenchmark((name + "/bare").c_str(), std::move(bare));
}
