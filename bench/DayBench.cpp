#include "Theater.h"

#include <benchmark/benchmark.h>

using namespace zorvane;

namespace {

// Runs days of a full theater, rebuilding it every four weeks (untimed) so that it stays
// full: staff quit and movies fade over a longer run.
void runDays(benchmark::State& state, bool singleTicket) {
    std::uint64_t seed = 1;
    auto theater = std::make_unique<bench::Theater>(seed);
    if (singleTicket)
        theater->singleTicketDays();
    int days = 0;
    std::uint64_t draws = 0;
    for (auto _ : state) {
        if (++days % 28 == 0) {
            state.PauseTiming();
            theater = std::make_unique<bench::Theater>(++seed);
            if (singleTicket)
                theater->singleTicketDays();
            state.ResumeTiming();
        }
        const std::uint64_t before = theater->game().rng.draws();
        theater->game().calendar.nextDay();
        draws += theater->game().rng.draws() - before;
    }
    state.counters["draws/day"] =
        benchmark::Counter(static_cast<double>(draws) / static_cast<double>(state.iterations()));
}

} // namespace

static void BM_fullTheaterDay(benchmark::State& state) {
    runDays(state, false);
}
BENCHMARK(BM_fullTheaterDay)->Unit(benchmark::kMicrosecond);

static void BM_singleTicketDay(benchmark::State& state) {
    runDays(state, true);
}
BENCHMARK(BM_singleTicketDay)->Unit(benchmark::kMicrosecond);

// A game year (336 days) of the full theater.
static void BM_fullTheaterYear(benchmark::State& state) {
    std::uint64_t seed = 1;
    for (auto _ : state) {
        state.PauseTiming();
        bench::Theater theater(seed++);
        state.ResumeTiming();
        for (int d = 0; d < 336; ++d)
            theater.game().calendar.nextDay();
    }
}
BENCHMARK(BM_fullTheaterYear)->Unit(benchmark::kMillisecond);
