// SPDX-License-Identifier: MIT
// caltofal_bench: the time of each page, beside that of its floor; that of reading surveys, beside a bare splitter.
#include "check.h"
#include "page.h"
#include "platform/platform.h"
#include "survey.h"

#include <benchmark/benchmark.h>
#include <map>

using namespace bench;

namespace {

void run(benchmark::State &state, const Page &page, Side side) {
    holdAnswers(page.answers);
    const Cost cost = costOf(page, side);
    std::string record(page.recordSize, '\0');
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(runOnce(page, side, record.data()));
    }
    state.counters["calls"] = static_cast<double>(cost.calls);
    state.counters["nodes"] = static_cast<double>(cost.nodes);
    state.counters["mallocs"] = static_cast<double>(cost.allocations);
}

void runSurvey(benchmark::State &state, const SurveyReader &reader, int lines) {
    const SurveyFile file(lines);
    for ([[maybe_unused]] auto _ : state) {
        SurveyRun run(file);
        benchmark::DoNotOptimize(reader.read(&run));
    }
}

void registerSurveys() {
    for (const int lines : {200, 20000}) {
        for (const char *name : {"split", "scan", "library"}) {
            const std::string row = "survey-" + std::to_string(lines) + '/' + name;
            benchmark::RegisterBenchmark(row.c_str(), runSurvey, surveyReader(name), lines)
                ->Unit(benchmark::kMicrosecond);
        }
    }
}

// Adds to each row the ratio of its time to that of the page's floor, which runs first.
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    RatioReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run> &reports) override {
        std::vector<Run> rows = reports;
        for (Run &row : rows) {
            const std::string name = row.benchmark_name();
            const std::string page = name.substr(0, name.find('/'));
            const double time = row.GetAdjustedRealTime();
            const auto floor = floors_.try_emplace(page + row.aggregate_name, time).first;
            row.counters["ratio"] = time / floor->second;
        }
        ConsoleReporter::ReportRuns(rows);
    }

  private:
    std::map<std::string, double> floors_;
};

} // namespace

int main(int argc, char **argv) {
    for (const Page &page : pages()) {
        for (const auto &[name, side] : {std::pair{"/floor", page.floor}, {"/library", page.library}}) {
            benchmark::RegisterBenchmark((page.name + name).c_str(), run, page, side)->Unit(benchmark::kMicrosecond);
        }
    }
    registerSurveys();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
