#pragma once

// A main() for the benchmark programs that prints, after the usual table, the
// ratio of each measured operation to its baseline from the same run.
//
//   KVBENCH_RATIO("GetColor vs raw QHash", "BM_GetColor", "BM_RawHashLookup", 1.5);
//   KVBENCH_MAIN();
//
// Names are matched against the start of a benchmark's full name, so
// arguments ("BM_Parse/3") belong to the name given.

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace kvbench {

struct Ratio
{
    std::string title;
    std::string measured;
    std::string baseline;
    double goal;
};

inline std::vector<Ratio>& Ratios()
{
    static std::vector<Ratio> ratios;
    return ratios;
}

struct RatioRegistration
{
    RatioRegistration(const char* title, const char* measured, const char* baseline, double goal)
    {
        Ratios().push_back({title, measured, baseline, goal});
    }
};

class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                mTimes[run.benchmark_name()] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void PrintRatios() const
    {
        if (Ratios().empty())
            return;
        std::printf("\n%-58s %12s %8s\n", "ratio (measured / baseline)", "value", "goal");
        for (const Ratio& ratio : Ratios()) {
            const double measured = Find(ratio.measured);
            const double baseline = Find(ratio.baseline);
            if (measured <= 0 || baseline <= 0) {
                std::printf("%-58s %12s %8s\n", ratio.title.c_str(), "n/a", "");
                continue;
            }
            const double value = measured / baseline;
            std::printf("%-58s %11.2fx %7.2fx %s\n", ratio.title.c_str(), value, ratio.goal,
                        value <= ratio.goal ? "ok" : "ABOVE GOAL");
        }
    }

private:
    double Find(const std::string& name) const
    {
        for (const auto& [full, time] : mTimes) {
            if (full == name || full.rfind(name + "/", 0) == 0)
                return time;
        }
        return -1;
    }

    std::map<std::string, double> mTimes;
};

inline int Main(int argc, char** argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatios();
    benchmark::Shutdown();
    return 0;
}

} // namespace kvbench

#define KVBENCH_CONCAT2(a, b) a##b
#define KVBENCH_CONCAT(a, b) KVBENCH_CONCAT2(a, b)
#define KVBENCH_RATIO(title, measured, baseline, goal)                                                         \
    static ::kvbench::RatioRegistration KVBENCH_CONCAT(kvbenchRatio, __LINE__)(title, measured, baseline, goal)
#define KVBENCH_MAIN()                                                                                         \
    int main(int argc, char** argv) { return ::kvbench::Main(argc, argv); }
