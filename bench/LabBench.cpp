#include "lab/Lab.h"

#include <benchmark/benchmark.h>

using namespace zorvane;

// The balance lab at its working size: 1000 games of the advisor for one year, on every core.
static void BM_labAdvisorYear(benchmark::State& state) {
    lab::LabOptions options;
    options.strategy = "advisor";
    options.dataDir = ZORVANE_SOURCE_DATA;
    options.games = static_cast<int>(state.range(0));
    options.years = 1;
    for (auto _ : state) {
        const lab::LabResult result = lab::runLab(options);
        benchmark::DoNotOptimize(result.games.size());
    }
    state.counters["games"] = static_cast<double>(options.games);
}
BENCHMARK(BM_labAdvisorYear)->Arg(1000)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();
