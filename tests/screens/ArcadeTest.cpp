// The arcade screen, offscreen: dragging cabinets about the room, the details panel and its
// slider, buttons and name box, the market, and a room saved and loaded where it was left.
#include "PlayingWindow.h"
#include "arcade/ArcadeTexts.h"
#include "frame/ButtonLabel.h"
#include "frmArcade.h"
#include "ports/QtScreen.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

// Drags a widget by `by` pixels with one button, in `steps` moves: each move is where the
// mouse is, relative to where the widget stood when the move began, as on a real screen.
void drag(QWidget* w, Qt::MouseButton button, QPointF by, int steps = 1) {
    const QPointF grip(20, 30);
    mouse(w, QEvent::MouseButtonPress, button, grip);
    QPointF mouseAt = w->mapToParent(grip);
    for (int s = 1; s <= steps; ++s) {
        mouseAt += by / steps;
        mouse(w, QEvent::MouseMove, button, mouseAt - QPointF(w->pos()));
    }
    mouse(w, QEvent::MouseButtonRelease, button, mouseAt - QPointF(w->pos()));
}

} // namespace

class ArcadeTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PlayingWindow> p;
    frmArcade* screen = nullptr;

    Game& game() { return p->game(); }
    arcadeManager& arcades() { return game().arcades; }
    template <class T = QWidget> T* control(const QString& name) {
        return PlayingWindow::control<T>(screen, name);
    }
    QWidget* cabinet(int i) { return control(QStringLiteral("imgGame_%1").arg(i)); }
    QLabel* title(int i) { return control<QLabel>(QStringLiteral("lblGameName_%1").arg(i)); }
    QString text(const char* name) { return control<QLabel>(QString::fromLatin1(name))->text(); }
    void flush() { QApplication::processEvents(); }
    // Where a widget stands among the room's pictures: higher is nearer the front.
    int stackPlace(QWidget* w) {
        return static_cast<int>(w->parentWidget()->children().indexOf(w));
    }
    // Buys the first `n` games of the market (buying more when it runs out).
    void buy(int n) {
        game().finances.setFunds(1e6);
        for (int i = 0; i < n; ++i) {
            if (arcades().buyGames.empty())
                arcades().releaseGames();
            arcades().buyGame(1);
        }
        flush();
    }
    void openDetails(int i) {
        doubleClick(cabinet(i), {10, 10});
        flush();
    }

  private slots:
    void init() {
        p = std::make_unique<PlayingWindow>();
        screen = static_cast<frmArcade*>(p->show(3));
    }
    void cleanup() { p.reset(); }

    // Either button drags, only the left brings the cabinet (and its title) to the front; the
    // picture turns round at the divider while the drag goes on; a cabinet dragged out past
    // the room's edge can be taken hold of again and brought back; a cabinet whose picture
    // is missing keeps its title and is dragged like any other.
    void dragging() {
        buy(3);
        const ArcadeRoom& room = arcades().room;
        const ArcadeCabinet start = room.cabinet(1);

        drag(cabinet(1), Qt::RightButton, {100, 20});
        QCOMPARE(room.cabinet(1).left, start.left + 1500);
        QCOMPARE(room.cabinet(1).top, start.top + 300);
        QCOMPARE(cabinet(1)->pos(), QPoint(int(start.left / 15) + 100, int(start.top / 15) + 20));
        QVERIFY(stackPlace(cabinet(1)) < stackPlace(cabinet(3))); // still behind
        const QRect t1 = title(1)->geometry(), c1 = cabinet(1)->geometry();
        QCOMPARE(t1.center().x(), c1.center().x()); // the title came along, centred above
        QCOMPARE(t1.top(), c1.top() - 24);

        drag(cabinet(1), Qt::LeftButton, {-10, 0});
        QVERIFY(stackPlace(cabinet(1)) > stackPlace(cabinet(3)));
        QVERIFY(stackPlace(title(1)) > stackPlace(cabinet(1)));

        // Over the divider and back in one drag: the picture follows each crossing.
        QWidget* two = cabinet(2);
        const QPointF grip(20, 30);
        mouse(two, QEvent::MouseButtonPress, Qt::RightButton, grip);
        QVERIFY(room.cabinet(2).picture.ends_with("L.gif"));
        mouse(two, QEvent::MouseMove, Qt::RightButton, grip + QPointF(400, 0));
        QVERIFY(room.cabinet(2).left > room.dividerX);
        QVERIFY(room.cabinet(2).picture.ends_with("R.gif"));
        mouse(two, QEvent::MouseMove, Qt::RightButton, grip + QPointF(-400, 0));
        QVERIFY(room.cabinet(2).picture.ends_with("L.gif"));
        mouse(two, QEvent::MouseButtonRelease, Qt::RightButton, grip);
        QVERIFY(!screen->draggingCabinet());

        // Far out past the left edge, then back by the strip that stays in the room.
        const float before = room.cabinet(3).left;
        drag(cabinet(3), Qt::LeftButton, {-2000, 0}, 4);
        QCOMPARE(room.cabinet(3).left, before - 30000);
        const QRect shown = cabinet(3)->geometry();
        QVERIFY(shown.intersects(control(QStringLiteral("picRoom"))->rect()));
        mouse(cabinet(3), QEvent::MouseButtonPress, Qt::LeftButton,
              {double(shown.width() - 5), 30});
        for (int s = 1; s <= 4; ++s)
            mouse(cabinet(3), QEvent::MouseMove, Qt::LeftButton,
                  QPointF(shown.width() - 5 + 500.0 * s, 30) +
                      QPointF(shown.topLeft() - cabinet(3)->pos()));
        mouse(cabinet(3), QEvent::MouseButtonRelease, Qt::LeftButton, {5, 5});
        QCOMPARE(room.cabinet(3).left, before);

        // A style with no picture: no picture, the title stays, the drag still works.
        arcade& m = arcades().myGameAt(3);
        m.CabinetImageFileNumber = 99;
        m.setCabinetFile();
        QVERIFY(screen->cabinetPixmap(room.cabinet(3).picture, 1.0).isNull());
        QVERIFY(cabinet(3)->isVisible() && title(3)->isVisible());
        drag(cabinet(3), Qt::LeftButton, {30, 0});
        QCOMPARE(room.cabinet(3).left, before + 450);
    }

    // The slider: each move shows the style of where the handle stood before that move, the
    // sample follows, the machine keeps its style until the slider is let go, and the style
    // shown then is the one taken. A handle being dragged leans; let go it stands upright.
    void sliderTrailsByOneMove() {
        buy(1);
        arcades().setCabinetNum(1, 1);
        openDetails(1);
        QVERIFY(control(QStringLiteral("frmDetails"))->isVisible());
        QCOMPARE(text("lblGameDetailsNum"), QStringLiteral("1"));
        QCOMPARE(text("lblSliderBack"), QStringLiteral("1"));
        QWidget* top = control(QStringLiteral("lblSliderTop"));
        auto* sample = control<QLabel>(QStringLiteral("imgGameExample"));
        const int right = (top->x() + top->width()) * 15;
        const int images = game().math.arcadeimages;
        // The mouse at the handle place of a style, in the track's own pixels.
        auto at = [&](int style) {
            return QPointF(arcadeSliderX(top->x() * 15, top->width() * 15, style, images) / 15.0 -
                               top->x(),
                           5);
        };
        QCOMPARE(screen->sliderTopX(), arcadeSliderX(top->x() * 15, top->width() * 15, 1, images));

        mouse(top, QEvent::MouseButtonPress, Qt::LeftButton, at(1));
        int shownBefore = 1;
        for (const int style : {4, 6, 2}) {
            mouse(top, QEvent::MouseMove, Qt::LeftButton, at(style));
            QCOMPARE(text("lblSliderBack").toInt(), shownBefore);
            QCOMPARE(
                sample->pixmap().cacheKey(),
                screen->cabinetPixmap(arcades().cabinetPath(shownBefore, false), 1.0).cacheKey());
            QCOMPARE(arcades().myGameAt(1).CabinetImageFileNumber, 1);
            QVERIFY(screen->sliderTopX() != screen->sliderBottomX());
            shownBefore = arcadeSliderStyle(screen->sliderTopX(), right, images);
        }
        mouse(top, QEvent::MouseButtonRelease, Qt::LeftButton, at(2));
        QCOMPARE(arcades().myGameAt(1).CabinetImageFileNumber, 6); // the one shown, not 2
        QCOMPARE(screen->sliderBottomX(), screen->sliderTopX());
        QVERIFY(arcades().room.cabinet(1).picture.ends_with("006L.gif"));
    }

    // Repair acts only on a left release and only shows while broken; Sell acts on any
    // button's release, even away from it; Close hides the panel on any button.
    void buttonsAndTheirReleases() {
        buy(3);
        arcade& one = arcades().myGameAt(1);
        one.IamBroke = true;
        one.setTitleColor();
        openDetails(1);
        auto* repair = control(QStringLiteral("lbcRepair"));
        QVERIFY(repair->isVisible());
        QCOMPARE(text("lblDetailsCondition"), QStringLiteral("Broken"));
        QCOMPARE(control(QStringLiteral("lblDetailsCondition"))->palette().color(QPalette::Window),
                 QColor(255, 0, 0));
        QCOMPARE(title(1)->palette().color(QPalette::WindowText), QColor(255, 0, 0));
        press(repair, Qt::RightButton);
        QVERIFY(one.IamBroke);
        press(repair, Qt::LeftButton);
        QVERIFY(!one.IamBroke);
        flush();
        QVERIFY(!repair->isVisible());
        QCOMPARE(text("lblDetailsCondition"), QStringLiteral("Working"));
        QCOMPARE(title(1)->palette().color(QPalette::WindowText), QColor(128, 255, 255));
        QCOMPARE(control(QStringLiteral("lblDetailsCondition"))->palette().color(QPalette::Window),
                 QColor(255, 255, 128));

        auto* sell = control(QStringLiteral("lbcSell"));
        const std::string second = arcades().myGameAt(2).getName();
        press(sell, Qt::RightButton);
        flush();
        QCOMPARE(arcades().getMachineCount(), 2);
        QVERIFY(!control(QStringLiteral("frmDetails"))->isVisible());
        QCOMPARE(title(1)->text(), QString::fromStdString(second)); // the room closed up
        openDetails(2);
        mouse(sell, QEvent::MouseButtonPress, Qt::LeftButton, {5, 5});
        mouse(sell, QEvent::MouseButtonRelease, Qt::LeftButton, {-80, 200}); // let go elsewhere
        flush();
        QCOMPARE(arcades().getMachineCount(), 1);
        QVERIFY(!screen->findChild<QWidget*>(QStringLiteral("imgGame_2")));

        openDetails(1);
        press(control(QStringLiteral("lbcClose")), Qt::MiddleButton);
        flush();
        QVERIFY(!control(QStringLiteral("frmDetails"))->isVisible());
        QCOMPARE(arcades().getMachineCount(), 1);
    }

    // Every key stroke renames the machine and its title; an empty box keeps the last name.
    // The price list reads as the player sees it and sets the machine's price.
    void nameAndPrice() {
        buy(1);
        openDetails(1);
        auto* box = control<QLineEdit>(QStringLiteral("txtGameName"));
        const std::string old = arcades().myGameAt(1).getName();
        QCOMPARE(box->text(), QString::fromStdString(old));
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Backspace);
        QCOMPARE(arcades().myGameAt(1).getName(), old);
        for (const char* typed : {"Z", "Zo", "Zor"}) {
            QTest::keyClick(box, typed[std::strlen(typed) - 1]);
            QCOMPARE(arcades().myGameAt(1).getName(), std::string(typed));
            QCOMPARE(title(1)->text(), QString::fromLatin1(typed));
        }
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(box, Qt::Key_Backspace);
        QCOMPARE(arcades().myGameAt(1).getName(), std::string("Z"));
        QVERIFY(box->text().isEmpty());

        auto* price = control<QComboBox>(QStringLiteral("ddPrice"));
        QStringList items;
        for (int i = 0; i < price->count(); ++i)
            items << price->itemText(i);
        QCOMPARE(items, (QStringList{"Free Play", "$0.25", "$0.50", "$0.75", "$1"}));
        QCOMPARE(price->currentIndex(), int(arcades().myGameAt(1).PricePerPlay));
        const long clicks = p->clicks();
        QTest::keyClick(price, Qt::Key_Down); // a pick from the list, by key
        QCOMPARE(arcades().myGameAt(1).PricePerPlay, game().math.arcadeplaypricedefault + 1);
        QCOMPARE(p->clicks(), clicks + 1);
    }

    // The panel follows the machine's plays as the days go by, and jumps to a machine that
    // breaks down, with its Repair button.
    void detailsKeptCurrent() {
        buy(2);
        for (int i = 1; i <= 2; ++i) {
            arcades().myGameAt(i).Pop = 90;
            arcades().myGameAt(i).PricePerPlay = 1;
        }
        openDetails(1);
        game().math.arcadebreakchance = 1e9;
        for (int day = 0; day < 3; ++day) {
            game().clockTick();
            arcades().doArcadeBusiness(20);
            flush();
            const ArcadeDetails d = arcadeDetails(arcades());
            QCOMPARE(text("lblDetailsPlays"), QString::fromStdString(d.plays));
            QCOMPARE(text("lblDetailsIncome"), QString::fromStdString(d.income));
            QCOMPARE(text("lblDetailsProfit"), QString::fromStdString(d.profit));
        }
        QVERIFY(arcades().myGameAt(1).TotalPlays > 0);
        // Machine 2 breaks on its next play: machine 1's roll fails, machine 2's passes.
        game().math.arcadebreakchance = 1;
        game().rng.force({0.99, 0.0});
        arcades().doArcadeBusiness(game().math.percentarcade * 100); // one visitor
        flush();
        QCOMPARE(text("lblGameDetailsNum"), QStringLiteral("2"));
        QCOMPARE(text("lblDetailsCondition"), QStringLiteral("Broken"));
        QVERIFY(control(QStringLiteral("lbcRepair"))->isVisible());
        QCOMPARE(control<QLineEdit>(QStringLiteral("txtGameName"))->text(),
                 QString::fromStdString(arcades().myGameAt(2).getName()));
    }

    // The market: one row a title under its header; a double click buys that row's game and
    // turns to the room. A cabinet dropped somewhere is there again after a save and a load.
    void buyAndSaveWhereDropped() {
        auto* tabs = control<QTabWidget>(QStringLiteral("SSTab1"));
        auto* grid = control<QTableWidget>(QStringLiteral("grdBuyGames"));
        tabs->setCurrentIndex(1);
        flush();
        QCOMPARE(grid->rowCount(), int(arcades().buyGames.size()));
        QCOMPARE(grid->horizontalHeaderItem(0)->text(), QStringLiteral("Game Title"));
        const std::string wanted = arcades().buyGameAt(2).getName();
        QCOMPARE(grid->item(1, 0)->text(), QString::fromStdString(wanted));
        game().finances.setFunds(1e6);
        const QRect row = grid->visualItemRect(grid->item(1, 0));
        doubleClick(grid->viewport(), row.center());
        flush();
        QCOMPARE(arcades().getMachineCount(), 1);
        QCOMPARE(arcades().myGameAt(1).getName(), wanted);
        QCOMPARE(tabs->currentIndex(), 0);
        QCOMPARE(grid->rowCount(), int(arcades().buyGames.size()));

        drag(cabinet(1), Qt::LeftButton, {331, 77});
        const ArcadeCabinet dropped = arcades().room.cabinet(1);
        const QRect shown = cabinet(1)->geometry();
        // A theater saved with no staff keeps nothing after its staff: someone is hired first.
        game().employees.hireEmployee(1);
        QTemporaryDir dir;
        const std::string path = dir.filePath(QStringLiteral("room.zvn")).toStdString();
        game().files.writeAll(path);
        drag(cabinet(1), Qt::LeftButton, {-200, -50});
        game().files.loadGame(path);
        flush();
        QCOMPARE(arcades().room.cabinet(1).left, dropped.left);
        QCOMPARE(arcades().room.cabinet(1).top, dropped.top);
        QCOMPARE(cabinet(1)->geometry(), shown);
        QCOMPARE(title(1)->text(), QString::fromStdString(wanted));
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    ArcadeTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArcadeTest.moc"
