// The main screen and the frame of the mode screens, offscreen: what a player would notice
// going wrong when dragging, gluing, pausing, clicking and quitting.
#include "PlayingWindow.h"
#include "core/GameError.h"
#include "frame/ButtonLabel.h"
#include "frame/ChildFrame.h"
#include "frame/Twips.h"
#include "frmMain.h"
#include "session/MainTexts.h"

#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

// Drags a window by one of its labels, by `by` pixels.
void drag(QWidget* header, QPoint by) {
    const QPoint grip(20, 5);
    mouse(header, QEvent::MouseButtonPress, Qt::LeftButton, grip);
    // The label moves with its window: after the move the grip is back under the mouse.
    mouse(header, QEvent::MouseMove, Qt::LeftButton, grip + by);
    mouse(header, QEvent::MouseButtonRelease, Qt::LeftButton, grip);
}

} // namespace

class MainScreenTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PlayingWindow> p;
    GameWindows* w = nullptr;
    int processEnded = 0;

    frmMain& main() { return w->main(); }
    template <class T = ButtonLabel> T* control(const char* name) {
        T* c = main().findChild<T*>(QString::fromLatin1(name));
        if (!c)
            qFatal("no control %s", name);
        return c;
    }
    void flush() { QCoreApplication::processEvents(); }
    QRect underMain() const {
        const QWidget& m = const_cast<MainScreenTest*>(this)->main();
        return {m.x(), m.y() + m.height(), m.width(), 0};
    }
    void expectGlued(ChildFrame* child) {
        QCOMPARE(child->pos(), underMain().topLeft());
        QCOMPARE(child->width(), main().width());
    }

  private slots:
    void init() {
        processEnded = 0;
        static_cast<GameApplication*>(qApp)->onProcessEnded = [this] { ++processEnded; };
        p = std::make_unique<PlayingWindow>(7, "/opt/zorvane/zorvane");
        w = p->w.get();
        main().move(100, 80);
        main().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&main()));
        flush();
    }
    void cleanup() { p.reset(); }

    void glue() {
        Game& game = w->game();
        game.switchMode(2);
        ChildFrame* movies = w->modeScreen(2);
        QVERIFY(movies->isVisible());
        expectGlued(movies);
        game.switchMode(1);
        ChildFrame* staff = w->modeScreen(1);

        // Moving the main screen takes only the current mode's screen along.
        const QPoint moviesAt = movies->pos();
        drag(main().findChild<QLabel*>("lblHeader", Qt::FindDirectChildrenOnly), QPoint(30, 40));
        QCOMPARE(main().pos(), QPoint(130, 120));
        expectGlued(staff);
        QCOMPARE(movies->pos(), moviesAt);

        // Dragged by its header, the staff screen is torn off and stays where it was dropped,
        // even when its mode is chosen again, by its button or by a click on its header.
        drag(staff->header(), QPoint(200, 15));
        QVERIFY(!staff->getGlued());
        const QPoint dropped = staff->pos();
        QCOMPARE(dropped, underMain().topLeft() + QPoint(200, 15));
        control("lbcMode_0")->trigger();
        control("lbcMode_1")->trigger();
        QCOMPARE(game.currentMode, 1);
        control("lbcMode_0")->trigger();
        mouse(staff->header(), QEvent::MouseButtonPress, Qt::LeftButton, QPoint(10, 5));
        mouse(staff->header(), QEvent::MouseButtonRelease, Qt::LeftButton, QPoint(10, 5));
        QCOMPARE(game.currentMode, 1);
        QCOMPARE(staff->pos(), dropped);

        // A double click on its header brings it back under the main screen.
        mouse(staff->header(), QEvent::MouseButtonDblClick, Qt::LeftButton, QPoint(10, 5));
        QVERIFY(staff->getGlued());
        expectGlued(staff);

        // Opening and closing the details moves the glued screen down and back up.
        control("lbcExpand")->trigger();
        flush();
        QCOMPARE(main().height(), px(summaryLayout(game).mainHeight));
        expectGlued(staff);
        const int openTop = staff->y();
        control("lbcExpand")->trigger();
        flush();
        expectGlued(staff);
        QCOMPARE(openTop - staff->y(), px(2955) - px(1275));

        // A right click on the header hides the screen.
        mouse(staff->header(), QEvent::MouseButtonPress, Qt::RightButton, QPoint(10, 5));
        QVERIFY(!staff->isVisible());
    }

    void speedStopAndResume() {
        Game& game = w->game();
        QTimer* clock = main().clock();
        auto raised = [this](int i) {
            return main().speedImage(i)->frameShadow() == QFrame::Raised;
        };

        QTest::mouseClick(main().speedImage(2), Qt::LeftButton);
        flush();
        QCOMPARE(int(game.speed), 2);
        QVERIFY(clock->isActive());
        QCOMPARE(clock->interval(), int(game.math.gamespeed[2]));

        game.setSpeed(-1); // the day cycle stops the clock, remembering the speed
        flush();
        QVERIFY(!clock->isActive());
        QVERIFY(raised(0) && !raised(2));
        game.setSpeed(-2);
        flush();
        QCOMPARE(int(game.speed), 2);
        QVERIFY(clock->isActive() && raised(2));

        // The player's own pause overwrites the remembered speed: -2 then stays paused.
        QTest::keyClick(&main(), Qt::Key_Space);
        flush();
        QCOMPARE(int(game.speed), 0);
        game.setSpeed(-2);
        flush();
        QCOMPARE(int(game.speed), 0);
        QVERIFY(!clock->isActive() && raised(0));
        // Space resumes at the speed the player last chose.
        QTest::keyClick(&main(), Qt::Key_Space);
        flush();
        QCOMPARE(int(game.speed), 2);
    }

    void buttonLabels() {
        Game& game = w->game();
        const long clicks0 = p->clicks();
        const auto clicks = [&] { return int(p->clicks() - clicks0); };
        ButtonLabel* arcade = control("lbcMode_3");

        // Left down: the click and the sunken look at once; the action waits for the release,
        // which counts wherever the mouse is let go.
        mouse(arcade, QEvent::MouseButtonPress, Qt::LeftButton, QPoint(5, 5));
        QCOMPARE(clicks(), 1);
        QVERIFY(arcade->isPressed());
        QCOMPARE(game.currentMode, 0);
        mouse(arcade, QEvent::MouseButtonRelease, Qt::LeftButton, QPoint(-300, 200));
        QVERIFY(!arcade->isPressed());
        QCOMPARE(game.currentMode, 3);

        // A right release only restores the look.
        ButtonLabel* loans = control("lbcMode_5");
        mouse(loans, QEvent::MouseButtonPress, Qt::LeftButton, QPoint(5, 5));
        mouse(loans, QEvent::MouseButtonRelease, Qt::RightButton, QPoint(5, 5));
        QVERIFY(!loans->isPressed());
        QCOMPARE(game.currentMode, 3);
        mouse(loans, QEvent::MouseButtonPress, Qt::RightButton, QPoint(5, 5));
        mouse(loans, QEvent::MouseButtonRelease, Qt::RightButton, QPoint(5, 5));
        QCOMPARE(clicks(), 2);
        QCOMPARE(game.currentMode, 3);

        // The next-day button and the day labels act on the click itself.
        const int day = game.calendar.currentday;
        QTest::mouseClick(control("lbcNextDay"), Qt::LeftButton);
        QTest::mouseClick(control("lblDay_0"), Qt::LeftButton);
        QCOMPARE(int(game.calendar.currentday), (day + 2) % 7);
        QCOMPARE(clicks(), 4);
        flush();
        QCOMPARE(control("lbcNextDay")->x(),
                 control(qPrintable(QStringLiteral("lblDay_%1").arg((day + 2) % 7)))->x());
        // A key does what the click does, sound included.
        QTest::keyClick(&main(), Qt::Key_F9);
        QCOMPARE(game.currentMode, 7);
        QCOMPARE(clicks(), 5);
    }

    void quitAndNewGameQuestions_data() {
        QTest::addColumn<bool>("newGame");
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("question");
        QTest::addColumn<bool>("ends");
        QTest::addColumn<bool>("starts");
        const QString quit = "Save your theater before quitting?";
        // Yes asks for a file; the cancelled dialog lets the game go on.
        QTest::newRow("quit, cancel")
            << false << "" << int(Answer::Cancel) << quit << false << false;
        QTest::newRow("quit, no") << false << "" << int(Answer::No) << quit << true << false;
        QTest::newRow("quit, yes, dialog cancelled")
            << false << "" << int(Answer::Yes) << quit << false << false;
        QTest::newRow("new, unsaved, no")
            << true << "" << int(Answer::No) << "Unsaved game, proceed?" << false << false;
        QTest::newRow("new, unsaved, yes")
            << true << "" << int(Answer::Yes) << "Unsaved game, proceed?" << true << true;
        QTest::newRow("new, saved, cancel")
            << true << "x.zvn" << int(Answer::Cancel) << "Save first?" << false << false;
        QTest::newRow("new, saved, no")
            << true << "x.zvn" << int(Answer::No) << "Save first?" << true << true;
    }
    void quitAndNewGameQuestions() {
        QFETCH(bool, newGame);
        QFETCH(QString, path);
        QFETCH(int, answer);
        QFETCH(QString, question);
        QFETCH(bool, ends);
        QFETCH(bool, starts);
        w->game().savedPath = path.toStdString();
        p->dialogs.answers = {static_cast<Answer>(answer)};
        if (newGame)
            QTest::keyClick(&main(), Qt::Key_N, Qt::ControlModifier);
        else
            QTest::mouseClick(control("lbcClose"), Qt::LeftButton);
        QCOMPARE(p->dialogs.asked.size(), std::size_t(1));
        QCOMPARE(QString::fromStdString(p->dialogs.asked[0]), question);
        QCOMPARE(processEnded, ends ? 1 : 0);
        QCOMPARE(p->dialogs.started.size(), std::size_t(starts ? 1 : 0));
        if (starts)
            QCOMPARE(QString::fromStdString(p->dialogs.started[0]),
                     QStringLiteral("\"/opt/zorvane/zorvane\""));
    }

    void savedGameQuitsWithoutAQuestion() {
        w->game().saved = true;
        QTest::keyClick(&main(), Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(p->dialogs.asked.empty());
        QCOMPARE(processEnded, 1);
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    MainScreenTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MainScreenTest.moc"
