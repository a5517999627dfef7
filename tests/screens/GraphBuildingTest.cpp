// The graph's month labels and the building's out-of-order sign, offscreen.
#include "PlayingWindow.h"
#include "frame/ChildFrame.h"
#include "frmBuilding.h"
#include "frmGraphs.h"
#include "ports/QtScreen.h"

#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

class GraphBuildingTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PlayingWindow> p;

  private slots:
    void init() { p = std::make_unique<PlayingWindow>(); }
    void cleanup() { p.reset(); }

    // Left down raises the month label without a click; the left release flattens it and asks
    // the month's box; a right press and release do neither.
    void monthLabelPressAndRelease() {
        p->game().switchMode(6);
        QVERIFY(p->w->screen().graphVisible());
        p->game().graph.drawGraph();
        p->w->screen().flush();
        auto* month = p->mode(6)->findChild<QLabel*>(QStringLiteral("lblGrfFundsMonth_11"));
        QVERIFY(month);
        const long clicks = p->clicks();
        QVERIFY(clicks >= 0); // the click's file opened: a click would be heard

        mouse(month, QEvent::MouseButtonPress, Qt::RightButton);
        QCOMPARE(month->frameShadow(), QFrame::Plain);
        mouse(month, QEvent::MouseButtonRelease, Qt::RightButton);
        QVERIFY(p->dialogs.asked.empty());

        mouse(month, QEvent::MouseButtonPress, Qt::LeftButton);
        QCOMPARE(month->frameShadow(), QFrame::Raised);
        QVERIFY(p->dialogs.asked.empty());
        mouse(month, QEvent::MouseButtonRelease, Qt::LeftButton);
        QCOMPARE(month->frameShape(), QFrame::NoFrame);
        QCOMPARE(p->dialogs.asked.size(), std::size_t(1));
        QVERIFY(QString::fromStdString(p->dialogs.asked[0])
                    .startsWith(QStringLiteral("Funds for the month of ") + month->text()));
        QCOMPARE(p->clicks(), clicks);
    }

    // The sign stands over the house exactly while the building is broken.
    void signFollowsBrokenFlag() {
        Game& game = p->game();
        game.switchMode(7);
        QVERIFY(p->w->screen().buildingVisible());
        auto* sign = p->mode(7)->findChild<QLabel*>(QStringLiteral("imgOOO"));
        QVERIFY(sign);
        for (const bool broken : {true, false, true}) {
            game.building.IamBroken = broken;
            game.building.showBuilding();
            p->w->screen().flush();
            QCOMPARE(sign->isVisible(), broken);
        }
        game.building.repairBuilding();
        p->w->screen().flush();
        QCOMPARE(sign->isVisible(), game.building.IamBroken);
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    GraphBuildingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GraphBuildingTest.moc"
