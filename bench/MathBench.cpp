#include "session/Game.h"

#include <benchmark/benchmark.h>

using namespace zorvane;

// Reading the shipped math.txt, as the game does at start-up (right after the settings,
// before any screen or list is set up) and again on "Reload math".
static void BM_loadMath(benchmark::State& state) {
    GameSetup setup;
    setup.folder = ZORVANE_SOURCE_DATA;
    Game game(std::move(setup));
    for (auto _ : state) {
        std::string path = game.dataPath("math.txt");
        game.mathFile.loadMath(game.math, game.dialogs(), path);
        benchmark::DoNotOptimize(game.math.gamespeed[1]);
    }
}
BENCHMARK(BM_loadMath)->Unit(benchmark::kMicrosecond);

// The floor no day can beat: the same generator drawing uniform numbers, nothing else.
static void BM_referenceDraws(benchmark::State& state) {
    Random rng(1);
    const auto draws = state.range(0);
    for (auto _ : state) {
        double sum = 0;
        for (int64_t i = 0; i < draws; ++i)
            sum += rng.next();
        benchmark::DoNotOptimize(sum);
    }
    state.counters["draws"] = static_cast<double>(draws);
}
BENCHMARK(BM_referenceDraws)->Arg(1000)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
