// The arcade screen, offscreen: one mouse-move event of a cabinet dragged about a room of 20
// machines, with the event loop's pass that repaints what moved.
#include "BenchWindow.h"
#include "GameWindows.h"
#include "frmArcade.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

// Counts the paint events of a widget: the figure must include the repaint.
struct PaintCounter : QObject {
    int paints = 0;
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

void BM_ArcadeDragMove(benchmark::State& state) {
    BenchWindow window(false);
    GameWindows& w = *window.w;
    Game& game = w.game();
    game.startPlay(-1);
    w.showMain();
    arcadeManager& arcades = game.arcades;
    game.math.arcademax = 20;
    game.finances.setFunds(1e7);
    while (arcades.getMachineCount() < 20) {
        if (arcades.buyGames.empty())
            arcades.releaseGames();
        arcades.buyGame(1);
    }
    // Five rows of four, the rows overlapping as a crowded room's do.
    for (int i = 1; i <= 20; ++i) {
        const ArcadeCabinet& c = arcades.room.cabinet(i);
        arcades.moveCabinet(i, 300 + ((i - 1) % 5) * 1900 - c.left,
                            1900 + ((i - 1) / 5) * 700 - c.top, 0, 0);
    }
    game.switchMode(3);
    QCoreApplication::processEvents();
    auto* screen = static_cast<frmArcade*>(w.modeScreen(3));
    QWidget* cab = screen->findChild<QWidget*>(QStringLiteral("imgGame_8"));
    auto send = [cab](QEvent::Type type, QPointF at) {
        QMouseEvent e(type, at, cab->mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
        QApplication::sendEvent(cab, &e);
    };
    PaintCounter counter;
    cab->installEventFilter(&counter);
    const QPointF grip(30, 40);
    send(QEvent::MouseButtonPress, grip);
    QCoreApplication::processEvents();
    // The mouse sweeps to and fro across the whole room, over the divider, 3 pixels a move.
    int step = 0;
    for (auto _ : state) {
        const double phase = (step++ % 400) / 400.0;
        const double x = 20 + 560 * (phase < 0.5 ? phase * 2 : 2 - phase * 2);
        const double y = 140 + 40 * std::sin(phase * 6.283);
        send(QEvent::MouseMove, QPointF(x, y) - QPointF(cab->pos()) + grip);
        QCoreApplication::processEvents(); // the repaint of the moved cabinet and title
    }
    send(QEvent::MouseButtonRelease, grip);
    state.counters["machines"] = arcades.getMachineCount();
    state.counters["paints_per_move"] =
        benchmark::Counter(counter.paints, benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_ArcadeDragMove)->Unit(benchmark::kMicrosecond);

} // namespace
