#include "BenchWindow.h"

#include "AroundScreens.h"
#include "Commands.h"
#include "frmLoader.h"
#include "frmLog.h"
#include "frmMain.h"
#include "session/Game.h"

#include <QCoreApplication>
#include <QTimer>

#include <exception>
#include <fstream>
#include <sstream>

namespace zorvane::screens {

BenchWindow::BenchWindow(bool withDemo, bool audio) {
    WindowsSetup setup;
    setup.audio = audio;
    setup.folder = ZORVANE_SOURCE_DATA;
    setup.seed = 2026;
    setup.dialogs = &dialogs;
    setup.settings = &settings;
    w = std::make_unique<GameWindows>(setup);
    w->startup();
    if (!withDemo)
        return;
    game().startPlay(-1);
    w->showMain();
    w->around().loader().hide();
    std::ifstream script(ZORVANE_SOURCE_DATA "/demo.txt");
    std::ostringstream out;
    sim::playScript(game(), dialogs, script, out);
}

void BenchWindow::showLog() {
    log = &w->around().log();
    log->show();
}

void BenchWindow::showEverything() {
    for (int m = 0; m < 8; ++m)
        game().switchMode(m);
    showLog();
}

void BenchWindow::runAtFast(int& pictures) {
    w->screen().onShowLose = [&pictures] { ++pictures; };
    w->screen().onShowGoal = [&pictures] { ++pictures; };
    game().setSpeed(3);
    w->main().clock()->stop();
    QCoreApplication::processEvents();
}

bool BenchWindow::timeYearsAtFast(benchmark::State& state) {
    int pictures = 0;
    runAtFast(pictures);
    for (auto _ : state)
        if (!runYear(game(), state))
            return false;
    state.counters["pictures"] = pictures;
    countPerDay(state);
    return true;
}

bool runYear(Game& game, benchmark::State& state) {
    for (int d = 0; d < 336; ++d) {
        try {
            game.clockTick();
        } catch (const std::exception& e) {
            state.SkipWithError(e.what());
            return false;
        }
        QCoreApplication::processEvents();
    }
    return true;
}

void countPerDay(benchmark::State& state) {
    state.counters["per_day"] = benchmark::Counter(
        336, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

} // namespace zorvane::screens
