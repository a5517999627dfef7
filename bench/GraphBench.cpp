#include "Theater.h"
#include "money/GraphTexts.h"

#include <benchmark/benchmark.h>

using namespace zorvane;

namespace {

// A theater after a year of play, so that every month has a balance.
std::unique_ptr<bench::Theater> playedYear() {
    auto theater = std::make_unique<bench::Theater>(1);
    for (int d = 0; d < 336; ++d)
        theater->game().calendar.nextDay();
    return theater;
}

} // namespace

// What a day costs the graph while its screen is visible: the redraw of the logic...
static void BM_drawGraph(benchmark::State& state) {
    auto theater = playedYear();
    GraphManager& graph = theater->game().graph;
    for (auto _ : state) {
        graph.drawGraph();
        benchmark::DoNotOptimize(graph.lines.data());
    }
}
BENCHMARK(BM_drawGraph)->Unit(benchmark::kMicrosecond);

// ...and with the texts the screen then asks for.
static void BM_drawGraphAndTexts(benchmark::State& state) {
    auto theater = playedYear();
    GraphManager& graph = theater->game().graph;
    for (auto _ : state) {
        graph.drawGraph();
        const GraphTexts texts = graphTexts(graph);
        benchmark::DoNotOptimize(texts.scale.data());
    }
}
BENCHMARK(BM_drawGraphAndTexts)->Unit(benchmark::kMicrosecond);
