// Benchmarks of the game window, offscreen (Google Benchmark): a day at Fast with the main
// screen and the log window showing, repaint included (and with the movies and promotions
// screens showing); start-up to the title screen painted;
// one line added to a log window that holds 20,000.
//   build/release/bin/zorvane-window-bench
#include "Commands.h"
#include "GameApplication.h"
#include "GameWindows.h"
#include "AroundScreens.h"
#include "frmLoader.h"
#include "frmLog.h"
#include "frmMain.h"

#include <QPlainTextEdit>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <fstream>
#include <memory>
#include <sstream>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

struct Window {
    ScriptedDialogs dialogs;
    MemorySettings settings;
    std::unique_ptr<GameWindows> w;
    frmLog* log = nullptr;

    explicit Window(bool withDemo) {
        WindowsSetup setup;
        setup.folder = ZORVANE_SOURCE_DATA;
        setup.seed = 2026;
        setup.dialogs = &dialogs;
        setup.settings = &settings;
        w = std::make_unique<GameWindows>(setup);
        w->startup(); // the title screen is up
        if (withDemo) {
            w->game().startPlay(-1);
            w->showMain(); // a staffed theater in business: the demo script's month
            std::ifstream script(ZORVANE_SOURCE_DATA "/demo.txt");
            std::ostringstream out;
            sim::playScript(w->game(), dialogs, script, out);
        }
    }
    void showLog() {
        log = &w->around().log();
        log->show();
    }
};

// One game day as the clock runs it at Fast: the tick, then the event loop's pass that
// repaints every stale view once and paints both windows.
void BM_DayAtFastWithWindows(benchmark::State& state) {
    Window window(true);
    if (state.range(0) != 0)
        window.showLog();
    Game& game = window.w->game();
    // A year of the demo theater may end in a lost game: the picture would wait for a
    // double click, so here it only counts.
    int pictures = 0;
    window.w->screen().onShowLose = [&pictures] { ++pictures; };
    window.w->screen().onShowGoal = [&pictures] { ++pictures; };
    game.setSpeed(3);
    window.w->main().clock()->stop(); // the benchmark is the clock
    QCoreApplication::processEvents();
    for (auto _ : state) {
        // A game year per round: the figure is the mean of its 336 days.
        for (int d = 0; d < 336; ++d) {
            try {
                game.clockTick();
            } catch (const std::exception& e) {
                state.SkipWithError(e.what());
                return;
            }
            // The pass that follows: stale views repainted once, both windows painted.
            QCoreApplication::processEvents();
        }
    }
    // Seconds per day, printed with its unit (e.g. 450u is 0.45 ms).
    state.counters["pictures"] = pictures;
    state.counters["per_day"] = benchmark::Counter(
        336, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
// Argument 1: the log window shows too (the goal's case); 0: the main screen alone.
BENCHMARK(BM_DayAtFastWithWindows)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond)->Iterations(3);

// The same day at Fast with the movies and promotions screens up beside the main screen:
// the showtime table and the own list repaint every day, the promotions when they change.
void BM_DayAtFastWithMoviesAndPromo(benchmark::State& state) {
    Window window(true);
    Game& game = window.w->game();
    int pictures = 0;
    window.w->screen().onShowLose = [&pictures] { ++pictures; };
    window.w->screen().onShowGoal = [&pictures] { ++pictures; };
    game.promos.addPromo(2);
    game.promos.addPromo(3);
    game.switchMode(0);
    game.switchMode(2); // both stay visible; the movies screen in front on its first tab
    game.setSpeed(3);
    window.w->main().clock()->stop();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        for (int d = 0; d < 336; ++d) {
            try {
                game.clockTick();
            } catch (const std::exception& e) {
                state.SkipWithError(e.what());
                return;
            }
            QCoreApplication::processEvents();
        }
    }
    state.counters["pictures"] = pictures;
    state.counters["per_day"] = benchmark::Counter(
        336, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_DayAtFastWithMoviesAndPromo)->Unit(benchmark::kMillisecond)->Iterations(3);

// From nothing to the title screen painted: the ports, the game and every window, the
// whole start-up order, then the first screen shown and painted.
void BM_StartToTitle(benchmark::State& state) {
    for (auto _ : state) {
        Window window(false);
        QCoreApplication::processEvents();
        window.w->around().loader().repaint();
        benchmark::DoNotOptimize(window.w.get());
    }
}
BENCHMARK(BM_StartToTitle)->Unit(benchmark::kMillisecond)->Iterations(10);

// One more line in a log window that already holds 20,000. Lines come in bursts (a day
// writes several) and the window paints once per pass of the event loop: here once every
// ten lines, included in the figure.
void BM_LogWindowAppend(benchmark::State& state) {
    Window window(false);
    window.showLog();
    QCoreApplication::processEvents(); // shown and activated: it holds its copy of the log
    for (int i = 0; i < 20000; ++i)
        window.log->appendLine(QStringLiteral("Line %1 of a long game: nobody came to the matinee today.").arg(i));
    QCoreApplication::processEvents();
    int n = 0;
    for (auto _ : state) {
        window.log->appendLine(QStringLiteral("Another line at the end of the log"));
        if (++n % 10 == 0)
            QCoreApplication::processEvents();
    }
    state.counters["lines"] = static_cast<double>(window.log->box()->blockCount());
}
BENCHMARK(BM_LogWindowAppend)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
