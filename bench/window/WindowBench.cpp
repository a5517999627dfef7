// Benchmarks of the game window, offscreen (Google Benchmark): a day at Fast with the main
// screen and the log window showing, repaint included; the same with the movies and
// promotions screens up, with the arcade and concession screens up and 20 machines, and with
// every mode screen open; resident memory over ten game years with every screen open;
// start-up to the title screen painted, silent and with the game's sound port; making the
// sound players after it; one line added to a log window that holds 20,000.
//   build/release/bin/zorvane-window-bench
#include "AroundScreens.h"
#include "BenchWindow.h"
#include "GameApplication.h"
#include "frame/ChildFrame.h"
#include "frmLoader.h"
#include "frmLog.h"
#include "frmMain.h"
#include "ports/QtSound.h"
#include "session/Game.h"

#include <QPlainTextEdit>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

// The process's resident memory now, in megabytes.
double residentMegabytes() {
    long pages = 0, resident = 0;
    if (FILE* f = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(f, "%ld %ld", &pages, &resident) != 2)
            resident = 0;
        std::fclose(f);
    }
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1048576.0;
}

// One game day as the clock runs it at Fast: the tick, then the event loop's pass that
// repaints every stale view once and paints both windows.
void BM_DayAtFastWithWindows(benchmark::State& state) {
    BenchWindow window(true);
    if (state.range(0) != 0)
        window.showLog();
    window.timeYearsAtFast(state); // a year of the demo theater may end in a lost game
}
// Argument 1: the log window shows too (the goal's case); 0: the main screen alone.
BENCHMARK(BM_DayAtFastWithWindows)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond)->Iterations(3);

// A day at Fast with the arcade and concession screens up and 20 machines in the room (made
// to hold 20, as a player's math file may allow), in a theater that stays in business: every
// crowd plays the machines and passes the stand, and both screens repaint what changed.
void BM_DayAtFastWithArcadeAndStand(benchmark::State& state) {
    BenchWindow window(true);
    Game& game = window.w->game();
    game.math.arcademax = 20;
    // A prosperous theater, in business all year: a fortune, and stand orders that three
    // years of buying cannot push past the stock's 16 bits.
    game.finances.setFunds(1e6);
    for (int i = 0; i < ConcessionManager::itemCount; ++i)
        game.concessions.setItemBuyQuant(i, 400);
    arcadeManager& arcades = game.arcades;
    for (int tries = 0; arcades.getMachineCount() < 20 && tries < 10000; ++tries) {
        if (arcades.buyGames.empty())
            arcades.releaseRandomGame();
        else
            arcades.buyGame(1);
    }
    if (arcades.getMachineCount() < 20) {
        state.SkipWithError("could not buy 20 machines");
        return;
    }
    game.switchMode(3);
    game.switchMode(4);
    // How often the stand's rows repainted: the screens had work to do.
    int standPaints = 0;
    window.w->screen().addPainter(View::ConcessionListing, [&standPaints] { ++standPaints; });
    if (!window.timeYearsAtFast(state))
        return;
    state.counters["stand_paints"] = standPaints;
    state.counters["machines"] = arcades.getMachineCount();
    state.counters["visible"] =
        window.w->modeScreen(3)->isVisible() + window.w->modeScreen(4)->isVisible();
}
BENCHMARK(BM_DayAtFastWithArcadeAndStand)->Unit(benchmark::kMillisecond)->Iterations(3);

// The same day with every screen open: the main screen, the eight mode screens and the log
// window, all repainted as their views go stale.
void BM_DayAtFastWithEveryScreen(benchmark::State& state) {
    BenchWindow window(true);
    window.showEverything();
    window.timeYearsAtFast(state);
}
BENCHMARK(BM_DayAtFastWithEveryScreen)->Unit(benchmark::kMillisecond)->Iterations(3);

// Ten game years at Fast with every screen open: the resident memory after each year, in
// megabytes (counters year1 to year10), and its growth from the first year to the last.
// The log window keeps every line while it is open (it has no limit of its own, unlike the
// main screen's log box): argument 0 closes it again, to tell its growth from the rest.
void BM_MemoryOverTenYears(benchmark::State& state) {
    for (auto _ : state) {
        BenchWindow window(true);
        window.showEverything();
        if (state.range(0) == 0)
            window.log->hide();
        int pictures = 0;
        window.runAtFast(pictures);
        std::vector<double> rss;
        for (int year = 1; year <= 10; ++year) {
            if (!runYear(window.w->game(), state))
                return;
            rss.push_back(residentMegabytes());
            state.counters["year" + std::to_string(year)] = rss.back();
        }
        state.counters["growth"] = rss.back() - rss.front();
        state.counters["pictures"] = pictures;
    }
}
BENCHMARK(BM_MemoryOverTenYears)->Arg(1)->Arg(0)->Unit(benchmark::kSecond)->Iterations(1);

// The same day at Fast with the movies and promotions screens up beside the main screen:
// the showtime table and the own list repaint every day, the promotions when they change.
void BM_DayAtFastWithMoviesAndPromo(benchmark::State& state) {
    BenchWindow window(true);
    Game& game = window.w->game();
    game.promos.addPromo(2);
    game.promos.addPromo(3);
    game.switchMode(0);
    game.switchMode(2); // both stay visible; the movies screen in front on its first tab
    window.timeYearsAtFast(state);
}
BENCHMARK(BM_DayAtFastWithMoviesAndPromo)->Unit(benchmark::kMillisecond)->Iterations(3);

// From nothing to the title screen painted: the ports, the game and every window, the
// whole start-up order, then the first screen shown and painted. Argument 1: with the game's
// sound port on Qt Multimedia (the sound board's init opens every player and starts the
// music); 0: silent, as the tests run. The difference is what the sound board adds.
void BM_StartToTitle(benchmark::State& state) {
    for (auto _ : state) {
        BenchWindow window(false, state.range(0) != 0);
        QCoreApplication::processEvents();
        window.w->around().loader().repaint();
        benchmark::DoNotOptimize(window.w.get());
    }
}
BENCHMARK(BM_StartToTitle)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(10);

// The sound board's part of start-up alone (step "starting sound board"), with the game's
// sound port: every player opened and the music started.
void BM_SoundBoardInit(benchmark::State& state) {
    BenchWindow window(false, true);
    for (auto _ : state)
        window.w->game().soundBoard.init();
}
BENCHMARK(BM_SoundBoardInit)->Unit(benchmark::kMicrosecond);

// The players themselves, made after the title screen is up (one per pass of the event loop
// in the game; all at once here): on a machine without an audio output this is the one look
// for a device.
void BM_SoundPlayersMade(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto window = std::make_unique<BenchWindow>(false, true);
        QtSound* sound = window->w->qtSound();
        state.ResumeTiming();
        sound->makeAll();
        state.PauseTiming();
        state.counters["audio"] = sound->hasAudio() ? 1 : 0;
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SoundPlayersMade)->Unit(benchmark::kMillisecond)->Iterations(5);

// One more line in a log window that already holds 20,000. Lines come in bursts (a day
// writes several) and the window paints once per pass of the event loop: here once every
// ten lines, included in the figure.
void BM_LogWindowAppend(benchmark::State& state) {
    BenchWindow window(false);
    window.showLog();
    QCoreApplication::processEvents(); // shown and activated: it holds its copy of the log
    for (int i = 0; i < 20000; ++i)
        window.log->appendLine(
            QStringLiteral("Line %1 of a long game: nobody came to the matinee today.").arg(i));
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
