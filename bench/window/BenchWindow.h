#pragma once
// The game window as the window benchmarks set it up, offscreen: the demo theater or the
// bare title screen, and the clock at Fast driven by the benchmark itself.
#include "GameWindows.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace zorvane::screens {

class frmLog;

struct BenchWindow {
    ScriptedDialogs dialogs;
    MemorySettings settings;
    std::unique_ptr<GameWindows> w;
    frmLog* log = nullptr;

    // The title screen is up; with the demo, a staffed theater in business (the demo
    // script's month) with the main screen showing, as "Play !" leaves it.
    explicit BenchWindow(bool withDemo, bool audio = false);
    Game& game() { return w->game(); }
    void showLog();
    // Every window a player can have open at once: the eight mode screens (each shown
    // through its mode, the last one glued under the main screen) and the log window.
    void showEverything();
    // The clock at Fast with the benchmark as its timer; a lost game or a reached goal
    // would wait for a double click on its picture, so here they only count.
    void runAtFast(int& pictures);
    // The benchmark's loop: a game year at Fast an iteration, with the end pictures counted
    // and the time a day reported. False when the game ended in an error.
    bool timeYearsAtFast(benchmark::State& state);
};

// A game year at Fast, day by day: the tick, then the event loop's pass that repaints every
// stale view once and paints the windows. False with the error when the game ends in one.
bool runYear(Game& game, benchmark::State& state);

// The time a day (a year is 336 of them), printed with its unit: 450u is 0.45 ms.
void countPerDay(benchmark::State& state);

} // namespace zorvane::screens
