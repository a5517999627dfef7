// A newcomer's first evening, offscreen, through the window's own controls: the title screen,
// a goal, the advisor, hiring, movies and showtimes, the stand, the arcade, a promotion, two
// months at Fast, the graph, a save, and the save opened again from the command line. Two
// short games more end on the goal picture and on the lost picture. The managers are only
// read, for the checks (and the math changed, to bring an ending near).
#include "AroundScreens.h"
#include "EndPicture.h"
#include "PlayingWindow.h"
#include "frame/ButtonLabel.h"
#include "frmGoal.h"
#include "frmLoader.h"
#include "frmLose.h"
#include "frmMain.h"
#include "frmMenuFile.h"
#include "frmTutor.h"
#include "ports/QtScreen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

void flush() {
    QApplication::processEvents();
}

template <class T = ButtonLabel> T* named(QWidget* in, const QString& name) {
    return PlayingWindow::control<T>(in, name);
}
void click(QWidget* w, QPoint at = {}) {
    QTest::mouseClick(w, Qt::LeftButton, {}, at.isNull() ? w->rect().center() : at);
    flush();
}
void click(QWidget* in, const QString& name) {
    click(named<QWidget>(in, name));
}
void doubleClickRow(QTableWidget* grid, int row) {
    doubleClick(grid->viewport(), grid->visualItemRect(grid->item(row, 0)).center());
    flush();
}
void clickTab(QWidget* screen, int tab) {
    QTabBar* bar = named<QTabWidget>(screen, QStringLiteral("SSTab1"))->tabBar();
    click(bar, bar->tabRect(tab).center());
}
void clickListRow(QListWidget* list, int row) {
    click(list->viewport(), list->visualItemRect(list->item(row)).center());
}
// Selects a box's text, types over it and presses Enter.
void typeInto(QLineEdit* box, const QString& text) {
    click(box);
    box->selectAll();
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
    flush();
}
// Acts on a window as soon as it is shown: the file menu and the end pictures wait in a loop
// of their own.
void onceShown(QWidget* window, std::function<void()> act) {
    auto* poll = new QTimer(window);
    QObject::connect(poll, &QTimer::timeout, window, [window, poll, act] {
        if (!window->isVisible())
            return;
        poll->stop();
        poll->deleteLater();
        act();
    });
    poll->start(1);
}
void doubleClickWhenShown(EndPicture* picture) {
    onceShown(picture, [picture] { QTest::mouseDClick(picture->picture(), Qt::LeftButton); });
}

// What a saved game must bring back.
struct Theater {
    double funds = 0;
    std::vector<std::string> staff, movies;
    std::vector<std::pair<float, float>> cabinets;
    int year = 0, month = 0, day = 0;

    static Theater of(Game& g) {
        Theater t;
        t.funds = g.finances.getFunds();
        for (int i = 1; i <= g.employees.employeeCount(); ++i)
            t.staff.push_back(g.employees.getEmployee(i).getMyName());
        for (int i = 1; i <= g.movies.myMoviesCount(); ++i)
            t.movies.push_back(g.movies.myMovieAt(i).getMyTitle());
        for (int i = 1; i <= g.arcades.getMachineCount(); ++i)
            t.cabinets.emplace_back(g.arcades.room.cabinet(i).left, g.arcades.room.cabinet(i).top);
        t.year = g.calendar.getCurrentYear();
        t.month = g.calendar.currentmonth;
        t.day = g.calendar.currentday;
        return t;
    }
};

} // namespace

class WalkthroughTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PlayingWindow> p;
    QTemporaryDir dir;
    QString savedPath;
    Theater saved;
    std::vector<GraphLine> graphAtStart;
    int endPictures = 0;

    Game& game() { return p->game(); }
    frmMain& main() { return p->w->main(); }
    // A mode screen, opened by its button on the main screen.
    ChildFrame* open(int mode) {
        click(&main(), QStringLiteral("lbcMode_%1").arg(mode));
        return p->mode(mode);
    }
    // Picks a goal in the title screen's list and presses "Play !".
    void playGoal(int row) {
        frmLoader& title = p->w->around().loader();
        QVERIFY(title.isVisible());
        auto* goals = named<QListWidget>(&title, QStringLiteral("lstGoals"));
        flush(); // the list as the title screen first paints it
        clickListRow(goals, row);
        click(&title, QStringLiteral("lbcStart"));
        QCOMPARE(game().goals.getSelected(), row);
        QVERIFY(!title.isVisible());
        QVERIFY(main().isVisible());
        QVERIFY(game().playing);
    }
    // Takes a loan through the bank's boxes and its Start button.
    void takeLoan(int amount) {
        ChildFrame* bank = open(5);
        typeInto(named<QLineEdit>(bank, QStringLiteral("txtProposedAmount")),
                 QString::number(amount));
        click(bank, QStringLiteral("lbcStartLoan"));
        QCOMPARE(game().loans.loanAmount, double(amount));
    }

  private slots:
    void titleScreenAndGoal() {
        QVERIFY(dir.isValid());
        p = std::make_unique<PlayingWindow>(11, std::string(), false);
        QVERIFY(!main().isVisible());
        playGoal(1);
        QCOMPARE(QString::fromStdString(game().goals.getGoal(1).getType()),
                 QStringLiteral("funds"));
        game().graph.drawGraph();
        graphAtStart = game().graph.lines;
    }

    void advisorSteps() {
        QWidget* advisor = &p->w->tutorWindow();
        QVERIFY(advisor->isVisible());
        QCOMPARE(int(game().tutor.step), 1);
        for (int step = 2; step <= 4; ++step) {
            click(advisor, QStringLiteral("lbcNext"));
            QCOMPARE(int(game().tutor.step), step);
        }
        click(advisor, QStringLiteral("lbcPrev"));
        QCOMPARE(int(game().tutor.step), 3);
    }

    void hireSeven() {
        ChildFrame* staff = open(1);
        clickTab(staff, 2);
        QStringList names;
        for (int i = 0; i < 7; ++i) {
            names << named<QLabel>(staff, QStringLiteral("lblHireName_1"))->text();
            click(staff, QStringLiteral("lbcHireEmp_1")); // the table closes up under row 1
        }
        QCOMPARE(game().employees.employeeCount(), 7);
        for (int i = 1; i <= 7; ++i)
            QCOMPARE(QString::fromStdString(game().employees.getEmployee(i).getMyName()),
                     names[i - 1]);
    }

    void buyThreeMoviesAndBookEveryShowtime() {
        ChildFrame* movies = open(2);
        clickTab(movies, 1);
        for (int i = 0; i < 3; ++i)
            doubleClickRow(named<QTableWidget>(movies, QStringLiteral("grdBuyMovies")), 0);
        QCOMPARE(game().movies.myMoviesCount(), 3);
        clickTab(movies, 0);
        auto* list = named<QListWidget>(movies, QStringLiteral("lstMyMovies"));
        const int bookings[3][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 0}};
        for (int m = 0; m < 3; ++m) {
            clickListRow(list, m);
            for (int s : bookings[m])
                if (s)
                    click(movies, QStringLiteral("chkShowtimeAssign_%1").arg(s));
            click(movies, QStringLiteral("lbcAssign"));
        }
        for (int s = 1; s <= 8; ++s)
            QCOMPARE(game().movies.showtimeAt(s).getMyMovie(), (s - 1) / 3 + 1);
    }

    void doubleTheStandsOrders() {
        ChildFrame* stand = open(4);
        clickTab(stand, 1);
        for (int i = 0; i < 5; ++i) {
            const int before = int(game().concessions.item(i).buypermonth);
            typeInto(named<QLineEdit>(stand, QStringLiteral("txtBuyPerMonth_%1").arg(i)),
                     QString::number(2 * before));
            QCOMPARE(int(game().concessions.item(i).buypermonth), 2 * before);
        }
    }

    void buyTwoArcadeGamesAndPriceThem() {
        ChildFrame* arcade = open(3);
        clickTab(arcade, 1);
        for (int i = 0; i < 2; ++i)
            doubleClickRow(named<QTableWidget>(arcade, QStringLiteral("grdBuyGames")), 0);
        QCOMPARE(game().arcades.getMachineCount(), 2);
        clickTab(arcade, 0);
        for (int g = 1; g <= 2; ++g) {
            doubleClick(named<QWidget>(arcade, QStringLiteral("imgGame_%1").arg(g)), {10, 10});
            flush();
            auto* price = named<QComboBox>(arcade, QStringLiteral("ddPrice"));
            const int wanted = g + 2; // $0.75 and $1
            for (int k = 0; k < 4 && price->currentIndex() != wanted; ++k)
                QTest::keyClick(price, price->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
            QCOMPARE(int(game().arcades.myGameAt(g).PricePerPlay), wanted);
        }
    }

    void televisionPromotion() {
        ChildFrame* promo = open(0);
        click(promo, QStringLiteral("lbcAddAd_4"));
        QCOMPARE(int(game().promos.promoRunning[4]), 1);
    }

    // The clock's timer is the test's: days come from clockTick at the speed the speed
    // control chose. An end picture would wait for a double click, so here it only counts.
    void twoMonthsAtFast() {
        p->w->screen().onShowLose = [this] { ++endPictures; };
        p->w->screen().onShowGoal = [this] { ++endPictures; };
        click(main().speedImage(3));
        QCOMPARE(int(game().speed), 3);
        main().clock()->stop();
        const int month = game().calendar.currentmonth;
        for (int d = 0; d < 2 * 28; ++d) {
            game().clockTick();
            flush();
        }
        QCOMPARE((game().calendar.currentmonth - month + 12) % 12, 2);
        QCOMPARE(endPictures, 0);
    }

    // The graph is drawn at start-up and then each day while it is open: a day after opening
    // it, the two month ends stand apart from the running funds.
    void graphHasPoints() {
        open(6);
        QVERIFY(p->w->screen().graphVisible());
        QCOMPARE(game().graph.lines, graphAtStart);
        game().clockTick();
        flush();
        const auto& y = game().graph.pointY;
        QVERIFY(std::adjacent_find(y.begin() + 9, y.end(), std::not_equal_to<>()) != y.end());
        QVERIFY(game().graph.lines != graphAtStart);
    }

    void saveAs() {
        savedPath = dir.filePath(QStringLiteral("walk.zvn"));
        p->dialogs.files = {savedPath.toStdString()};
        frmMenuFile& menu = p->w->around().menuFile();
        onceShown(&menu, [&menu] { click(menu.option(3)); });
        click(&main(), QStringLiteral("lbcMenu_0"));
        QVERIFY(!menu.isVisible());
        QVERIFY(QFileInfo(savedPath).size() > 0);
        QCOMPARE(QString::fromStdString(game().savedPath), savedPath);
        saved = Theater::of(game());
        p.reset();
    }

    void reopenedFromTheCommandLine() {
        p = std::make_unique<PlayingWindow>(12, std::string(), false, savedPath.toStdString());
        const Theater t = Theater::of(game());
        // The start-up day's business moves the money a little: wages and rent for a day.
        QVERIFY2(qAbs(t.funds - saved.funds) < 1000,
                 qPrintable(QString::number(t.funds - saved.funds)));
        QCOMPARE(t.staff, saved.staff);
        QCOMPARE(t.movies, saved.movies);
        QVERIFY(t.cabinets == saved.cabinets);
        QCOMPARE(t.day, (saved.day + 1) % 7);
        QCOMPARE(t.month, saved.month);
        QCOMPARE(t.year, saved.year);
        p.reset();
    }

    // A funds goal brought near by a generous bank: the loan reaches it, the next day shows
    // the picture, its double click closes it and Yes plays on.
    void goalPicture() {
        p = std::make_unique<PlayingWindow>(13, std::string(), false);
        playGoal(1);
        game().math.loanmlv = 1e6;
        takeLoan(int(game().goals.getGoal(1).getValue()));
        p->dialogs.answers = {Answer::Yes};
        doubleClickWhenShown(&p->w->around().goal());
        game().clockTick();
        flush();
        QCOMPARE(game().goalShown, 1);
        QVERIFY(game().goals.getGoal(1).getAchieved());
        QVERIFY(!p->w->around().goal().isVisible());
        QCOMPARE(p->dialogs.asked.back(), std::string("Would you like to continue playing?"));
        p.reset();
    }

    // In debt and under the funds floor the theater is lost: the picture's double click asks
    // to quit, and Cancel plays on.
    void lostPicture() {
        p = std::make_unique<PlayingWindow>(14, std::string(), false);
        playGoal(0);
        takeLoan(1000);
        game().math.fundsmin = 1e12;
        p->dialogs.answers = {Answer::Cancel};
        doubleClickWhenShown(&p->w->around().lose());
        game().clockTick();
        flush();
        QCOMPARE(game().loseShown, 1);
        QVERIFY(!p->w->around().lose().isVisible());
        QCOMPARE(p->dialogs.asked.back(), std::string("Save your theater before quitting?"));
        p.reset();
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    WalkthroughTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "WalkthroughTest.moc"
