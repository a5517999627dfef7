// Benchmarks of the staff screen, offscreen (Google Benchmark): refilling the staff grid with
// 300 people on the staff, and a day at Fast with the screen open on the grid and 50 people.
//   build/release/bin/zorvane-window-bench --benchmark_filter=Staff
#include "BenchWindow.h"
#include "frmEmployees.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QCoreApplication>
#include <QTabWidget>
#include <QTableView>

#include <benchmark/benchmark.h>

#include <exception>
#include <set>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

// The demo theater (staffed and in business), the staff screen on its grid.
struct StaffWindow : BenchWindow {
    frmEmployees* screen = nullptr;

    StaffWindow() : BenchWindow(true) {
        // A manager of fifty has long closed the advisor; its open panel costs the offscreen
        // day as much again (see the README).
        game().tutor.endTutor();
        game().switchMode(1);
        screen = static_cast<frmEmployees*>(w->modeScreen(1));
        screen->findChild<QTabWidget*>(QStringLiteral("SSTab1"))->setCurrentIndex(1);
        QCoreApplication::processEvents();
    }
    // Hires from the day's applicants until the staff counts `n` (a new draw when the table
    // runs empty), with the money for it.
    void staffUpTo(int n) {
        Game& game = w->game();
        employeeManager& staff = game.employees;
        game.finances.earn(1000.0 * n, "");
        std::set<const employee*> onStaff;
        for (int i = 1; i <= staff.employeeCount(); ++i)
            onStaff.insert(&staff.getEmployee(i));
        while (staff.employeeCount() < n) {
            int row = 1;
            while (row <= staff.candidateCount() && onStaff.count(&staff.getCandidate(row)))
                ++row;
            if (row > staff.candidateCount()) {
                staff.newCandidates();
                continue;
            }
            onStaff.insert(&staff.getCandidate(row));
            staff.hireEmployee(row);
        }
        QCoreApplication::processEvents();
    }
};

// The grid refilled with 300 people: the rows' texts, the model, and the grid painted.
void BM_StaffGridRefresh300(benchmark::State& state) {
    StaffWindow window;
    window.staffUpTo(300);
    auto* grid = window.screen->findChild<QTableView*>(QStringLiteral("grdEmps"));
    for (auto _ : state) {
        window.w->game().employees.refreshEmployeeGrid();
        window.w->screen().flush();
        grid->viewport()->repaint(); // the whole grid, not only what changed
    }
    state.counters["staff"] = window.w->game().employees.employeeCount();
}
BENCHMARK(BM_StaffGridRefresh300)->Unit(benchmark::kMillisecond);

// A game year at Fast with the staff screen open on the grid and 50 people on the staff:
// the tick, then the pass that repaints the stale views and paints the windows. People who
// quit are replaced between days, outside the figure, so the staff stays at 50, and the
// funds are kept up and the building repaired the same way: the theater stays in business
// (closed days would pile up the stand's monthly orders past the game's 16-bit stock).
void BM_StaffDayAtFast50(benchmark::State& state) {
    StaffWindow window;
    Game& game = window.w->game();
    window.staffUpTo(50);
    int pictures = 0, topups = 0;
    // Enough money to pay everyone, not so much that the stand's monthly order of goods
    // passes the game's 16-bit counts.
    game.finances.earn(100000, "");
    window.runAtFast(pictures);
    for (auto _ : state) {
        for (int d = 0; d < 336; ++d) {
            try {
                game.clockTick();
            } catch (const std::exception& e) {
                state.SkipWithError(e.what());
                return;
            }
            QCoreApplication::processEvents();
            if (game.employees.employeeCount() < 50 || game.finances.getFunds() < 50000 ||
                game.building.IamBroken) {
                state.PauseTiming();
                ++topups;
                if (game.building.IamBroken)
                    game.building.repairBuilding();
                window.staffUpTo(50);
                if (game.finances.getFunds() < 50000)
                    game.finances.earn(100000, "");
                state.ResumeTiming();
            }
        }
    }
    state.counters["pictures"] = pictures;
    state.counters["topups"] = topups;
    countPerDay(state);
}
BENCHMARK(BM_StaffDayAtFast50)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
