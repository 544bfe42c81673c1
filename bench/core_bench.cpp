// What the core takes: one chart, all charts that the form can ask for, all palaces of a chart composed.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "allocations.h"
#include "chart/generate.h"
#include "input/input_check.h"
#include "interpret/composer.h"
#include "table.h"

namespace {

// Every date that passes the check, at each of the twelve double-hours and at midnight.
std::vector<BirthEntry> allEntries() {
    std::vector<BirthEntry> entries;
    for (int year = 0; year < yearCount; ++year) {
        for (int month = 0; month < monthCount; ++month) {
            for (int day = 0; day < dayCount; ++day) {
                const BirthEntry entry{u"SOMEBODY", {day, month, year}, 0, 0};
                if (checkBirthEntry(entry)) continue;
                entries.push_back(entry);
                for (int hour = 0; hour < 24; hour += 2) entries.push_back({entry.name, entry.date, hour, 1});
            }
        }
    }
    return entries;
}

void cast(BirthEntry& entry, ChartModel& chart) {
    chart.loadCells();
    benchmark::DoNotOptimize(generateChart(entry, chart));
    benchmark::DoNotOptimize(chart);
}

void oneChart(benchmark::State& state) {
    BirthEntry entry{u"SOMEBODY", {14, 5, 20}, 10, 30};
    ChartModel chart;
    cast(entry, chart);
    const long before = allocationCount();
    for (auto _ : state) {
        cast(entry, chart);
        benchmark::ClobberMemory();
    }
    state.counters["allocations"] = static_cast<double>(allocationCount() - before);
}

// The midnight rule moves an entry's date on, so each pass works on entries of its own.
void allCharts(benchmark::State& state) {
    const std::vector<BirthEntry> entries = allEntries();
    ChartModel chart;
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<BirthEntry> pass = entries;
        state.ResumeTiming();
        for (BirthEntry& entry : pass) cast(entry, chart);
    }
    state.counters["charts"] = static_cast<double>(entries.size());
}

void allPalaces(benchmark::State& state) {
    BirthEntry entry{u"SOMEBODY", {14, 5, 20}, 10, 30};
    ChartModel chart;
    cast(entry, chart);
    for (auto _ : state) benchmark::DoNotOptimize(composeAllPalaces(chart));
}

BENCHMARK(oneChart)->Repetitions(15)->ReportAggregatesOnly();
BENCHMARK(allCharts)->Unit(benchmark::kMillisecond)->Repetitions(15)->ReportAggregatesOnly();
BENCHMARK(allPalaces)->Unit(benchmark::kMicrosecond)->Repetitions(15)->ReportAggregatesOnly();

// Prints the medians as rows of the table.
class TableReporter : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.aggregate_name == "median") reportMedian(run);
        }
    }

  private:
    static void reportMedian(const Run& run) {
        const double time = run.GetAdjustedCPUTime();
        const std::string& name = run.run_name.function_name;
        if (name == "oneChart") {
            printFigure("one chart cast in the core", "ns", time, 1000);
            printFigure("  its allocations", "", run.counters.at("allocations"), 1);
        } else if (name == "allCharts") {
            const int charts = static_cast<int>(run.counters.at("charts"));
            printFigure(("all " + std::to_string(charts) + " charts of the form").c_str(), "ms", time, 300);
        } else {
            printFigure("all twelve palaces composed", "us", time, 20);
        }
    }
};

}  // namespace

// With any argument it is an ordinary benchmark program; without one it prints rows of the table.
int main(int argc, char** argv) {
    const bool table = argc == 1;
    benchmark::Initialize(&argc, argv);
    TableReporter rows;
    if (table) {
        benchmark::RunSpecifiedBenchmarks(&rows);
    } else {
        benchmark::RunSpecifiedBenchmarks();
    }
    return 0;
}
