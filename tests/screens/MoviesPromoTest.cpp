// The movies and promotions screens, offscreen: what a player clicks and what follows.
#include "PlayingWindow.h"
#include "frame/ButtonLabel.h"
#include "frame/Twips.h"
#include "movies/MovieTexts.h"
#include "ports/QtScreen.h"
#include "reputation/ReputationTexts.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

class MoviesPromoTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PlayingWindow> p;
    QWidget* movies = nullptr;

    template <class T> T* ctl(const QString& name) {
        return PlayingWindow::control<T>(movies, name);
    }
    QCheckBox* box(int s) { return ctl<QCheckBox>(QStringLiteral("chkShowtimeAssign_%1").arg(s)); }
    MovieManager& mm() { return p->game().movies; }
    void tab(int i) {
        ctl<QTabWidget>(QStringLiteral("SSTab1"))->setCurrentIndex(i);
        QApplication::processEvents();
    }
    // A double click on a grid row, as the player makes it.
    static void doubleClickRow(QTableWidget* grid, int row) {
        const QPointF at = grid->visualItemRect(grid->item(row, 0)).center();
        QWidget* v = grid->viewport();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                        QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            const bool down = type != QEvent::MouseButtonRelease;
            QMouseEvent e(type, at, v->mapToGlobal(at), Qt::LeftButton,
                          down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(v, &e);
        }
        QApplication::processEvents();
    }
    void buyFirstRows(int n) {
        tab(1);
        for (int i = 0; i < n; ++i)
            doubleClickRow(ctl<QTableWidget>(QStringLiteral("grdBuyMovies")), 0);
        tab(0);
    }

  private slots:
    void init() {
        p = std::make_unique<PlayingWindow>();
        p->game().finances.setFunds(1e6);
        movies = p->show(2);
    }
    void cleanup() { p.reset(); }

    // A double click on an offer row buys that movie: it leaves the offer and ends the list.
    void buyingFromTheGridRow() {
        tab(1);
        auto* grid = ctl<QTableWidget>(QStringLiteral("grdBuyMovies"));
        const int offered = grid->rowCount();
        QVERIFY(offered >= 2);
        const QString title = grid->item(1, 0)->text();
        doubleClickRow(grid, 1);
        QCOMPARE(grid->rowCount(), offered - 1);
        QCOMPARE(mm().myMoviesCount(), 1);
        QCOMPARE(QString::fromStdString(mm().myMovieAt(1).getMyTitle()), title);
        auto* list = ctl<QListWidget>(QStringLiteral("lstMyMovies"));
        QCOMPARE(list->count(), 1);
        QVERIFY(list->item(0)->text().startsWith(title.left(25)));
    }

    // Boxes and Assign book the selected movie; a right click books it on that showtime
    // alone; with no movie selected a right click only clears the boxes.
    void bookingByBoxesAndRightClick() {
        buyFirstRows(3);
        auto* list = ctl<QListWidget>(QStringLiteral("lstMyMovies"));
        QCOMPARE(list->count(), 3);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(0)).center());
        QCOMPARE(mm().selectedMyMovie(), 0);
        QTest::mouseClick(box(2), Qt::LeftButton);
        QTest::mouseClick(box(5), Qt::LeftButton);
        QVERIFY(mm().isShowtimeChecked(2) && mm().isShowtimeChecked(5));
        QTest::mouseClick(ctl<ButtonLabel>(QStringLiteral("lbcAssign")), Qt::LeftButton);
        QApplication::processEvents();
        for (int s = 1; s <= 8; ++s) {
            QCOMPARE(mm().showtimeAt(s).getMyMovie(), s == 2 || s == 5 ? 1 : 0);
            QVERIFY(!box(s)->isChecked());
        }
        QCOMPARE(ctl<QLabel>(QStringLiteral("lblMovieTitle_5"))->text(),
                 QString::fromStdString(mm().myMovieAt(1).getMyTitle()));

        list->setCurrentRow(2);
        QTest::mouseClick(box(1), Qt::LeftButton);
        QTest::mousePress(box(7), Qt::RightButton);
        QApplication::processEvents();
        QCOMPARE(mm().showtimeAt(7).getMyMovie(), 3);
        QCOMPARE(mm().showtimeAt(1).getMyMovie(), 0);
        QVERIFY(!box(1)->isChecked() && !box(7)->isChecked());

        list->setCurrentRow(-1);
        QCOMPARE(mm().selectedMyMovie(), -1);
        QTest::mouseClick(box(3), Qt::LeftButton);
        QTest::mousePress(box(7), Qt::RightButton);
        QApplication::processEvents();
        QCOMPARE(mm().showtimeAt(7).getMyMovie(), 3);
        QCOMPARE(mm().showtimeAt(3).getMyMovie(), 0);
        QVERIFY(!mm().isShowtimeChecked(3) && !box(3)->isChecked());
    }

    // A click on a showtime label switches its matinee prices and paints it grey or not.
    void matineeToggleAndGrey() {
        auto* time = ctl<ButtonLabel>(QStringLiteral("lblShowtime_4"));
        const QColor grey = fromBgr(movieCaptions::matineeColour);
        QVERIFY(!mm().showtimeAt(4).isMatinee());
        QVERIFY(time->palette().color(QPalette::Window) != grey);
        for (const bool matinee : {true, false}) {
            QTest::mouseClick(time, Qt::LeftButton);
            QApplication::processEvents();
            QCOMPARE(mm().showtimeAt(4).isMatinee(), matinee);
            QCOMPARE(time->palette().color(QPalette::Window) == grey, matinee);
        }
    }

    // The clock stops while the own list has the focus and the speed returns after.
    void clockStopsWhileTheListHasTheFocus() {
        Game& game = p->game();
        game.setSpeed(2);
        auto* list = ctl<QListWidget>(QStringLiteral("lstMyMovies"));
        QFocusEvent in(QEvent::FocusIn, Qt::MouseFocusReason);
        QApplication::sendEvent(list, &in);
        QCOMPARE(int(game.speed), 0);
        QCOMPARE(game.timerInterval(), 0);
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(list, &out);
        QCOMPARE(int(game.speed), 2);
    }

    // Prices through digitsValue on Enter or on leaving the box; ads from the input box's
    // leading number, Cancel keeping them.
    void pricesAndAdsFromOddText() {
        tab(2);
        auto* standard = ctl<QLineEdit>(QStringLiteral("txtTicketPrice_0"));
        standard->setText(QStringLiteral("$1,234x"));
        QTest::keyClick(standard, Qt::Key_Return);
        QApplication::processEvents();
        QCOMPARE(mm().getTicketPrice(0), 1234.0);
        QCOMPARE(standard->text(), QStringLiteral("$1234.00"));
        auto* senior = ctl<QLineEdit>(QStringLiteral("txtTicketPrice_2"));
        senior->setText(QStringLiteral("free"));
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(senior, &out);
        QApplication::processEvents();
        QCOMPARE(mm().getTicketPrice(2), 0.0);
        QCOMPARE(senior->text(), QStringLiteral("$.00"));

        tab(3);
        auto* grid = ctl<QTableWidget>(QStringLiteral("gridAds"));
        const struct {
            const char* typed; // nullptr: Cancel
            int ads;
        } answers[] = {{"3 ads", 3}, {nullptr, 3}, {"lots", 0}};
        for (const auto& a : answers) {
            if (a.typed)
                p->dialogs.inputs.push_back(a.typed);
            doubleClickRow(grid, 2); // showtime 3
            QCOMPARE(mm().showtimeAt(3).getAds(), a.ads);
            QCOMPARE(grid->item(2, 1)->text(), QString::number(a.ads));
            QCOMPARE(ctl<QLabel>(QStringLiteral("lblAds_3"))->text(), QString::number(a.ads));
        }
    }

    // Buy and Drop by medium; Drop All asks, and No keeps every promotion.
    void promotionsBuyDropAndDropAll() {
        QWidget* promo = p->show(0);
        auto click = [promo](const QString& name) {
            QTest::mouseClick(PlayingWindow::control<ButtonLabel>(promo, name), Qt::LeftButton);
            QApplication::processEvents();
        };
        promoManager& promos = p->game().promos;
        auto running = [&promos] {
            std::array<int, 5> n{};
            for (std::size_t i = 0; i < n.size(); ++i)
                n[i] = promos.promoRunning[i];
            return n;
        };
        for (const char* b :
             {"lbcAddAd_1", "lbcAddAd_1", "lbcAddAd_3", "lbcAddAd_4", "lbcDropAd_4"})
            click(QString::fromLatin1(b));
        QCOMPARE(running(), (std::array<int, 5>{0, 2, 0, 1, 0}));
        auto* table = PlayingWindow::control<QTableWidget>(promo, QStringLiteral("grdPromos"));
        QCOMPARE(table->rowCount(), 2);
        const PromotionsView v = promotionsView(promos);
        QCOMPARE(
            PlayingWindow::control<QLabel>(promo, QStringLiteral("lblCurrentPromoLevel"))->text(),
            QString::fromStdString(v.currentPromoLevel));

        p->dialogs.answers.push_back(Answer::No);
        click(QStringLiteral("lbcDropAll"));
        QCOMPARE(p->dialogs.asked.back(), std::string(promoCaptions::dropAllQuestion));
        QCOMPARE(running(), (std::array<int, 5>{0, 2, 0, 1, 0}));
        p->dialogs.answers.push_back(Answer::Yes);
        click(QStringLiteral("lbcDropAll"));
        QCOMPARE(running(), (std::array<int, 5>{}));
        QCOMPARE(table->rowCount(), 0);
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    MoviesPromoTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MoviesPromoTest.moc"
