// The concession stand's screen, offscreen: what the price and order boxes make of what a
// player types, the quality list and the tabs, and the rows kept current as days pass.
#include "PlayingWindow.h"
#include "concessions/ConcessionTexts.h"
#include "core/Text.h"
#include "frame/ButtonLabel.h"
#include "frmConcessions.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

class ConcessionsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PlayingWindow> p;
    ChildFrame* screen = nullptr;

    QLineEdit* box(const char* name, int item) {
        return PlayingWindow::control<QLineEdit>(
            screen, QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(item));
    }
    QString shown(const QString& name) {
        return PlayingWindow::control<QLabel>(screen, name)->text();
    }
    Concession& item(int i) { return p->game().concessions.item(i); }

    // Every row and total on both tabs says what the stand's texts say.
    void checkShowsTheStand() {
        const ConcessionManager& stand = p->game().concessions;
        for (int i = 0; i < 5; ++i) {
            const ConcessionListing l = concessionListing(stand.item(i), p->game().folder());
            const ConcessionStockRow s = concessionStockRow(stand.item(i));
            const std::pair<QString, std::string> labels[] = {
                {QStringLiteral("lblMyCost_%1"), l.yourCost},
                {QStringLiteral("lblSold_%1"), l.soldToday},
                {QStringLiteral("lblProfit_%1"), l.profit},
                {QStringLiteral("lblInStock_%1"), s.inStock},
                {QStringLiteral("lblLastMonthSales_%1"), s.lastMonthSales},
                {QStringLiteral("lblCostPerItem_%1"), s.costPerItem},
                {QStringLiteral("lblTotalCost_%1"), s.totalCost}};
            for (const auto& [name, text] : labels)
                QCOMPARE(shown(name.arg(i)), QString::fromStdString(text));
            auto* picture =
                PlayingWindow::control<QLabel>(screen, QStringLiteral("imgConcession_%1").arg(i));
            QCOMPARE(picture->toolTip(), QString::fromStdString(l.tip));
            QVERIFY(!picture->pixmap().isNull());
            QCOMPARE(box("txtPrice", i)->text(), QString::fromStdString(l.price));
            QCOMPARE(box("txtBuyPerMonth", i)->text(), QString::fromStdString(s.buyPerMonth));
            QCOMPARE(
                PlayingWindow::control<QComboBox>(screen, QStringLiteral("cmbQuality_%1").arg(i))
                    ->currentIndex(),
                l.qualityIndex);
        }
        const ConcessionTotals t = concessionTotals(stand);
        const std::pair<const char*, std::string> totals[] = {
            {"lblTotalMyCost", t.totalMyCost},
            {"lblTotalSold", t.totalSold},
            {"lblTotalProfit", t.totalProfit},
            {"lblTotalTotalCost", t.totalTotalCost},
            {"lblTotalIncomeLastMonth", t.incomeLastMonth}};
        for (const auto& [name, text] : totals)
            QCOMPARE(shown(QLatin1String(name)), QString::fromStdString(text));
    }

  private slots:
    void init() {
        p = std::make_unique<PlayingWindow>();
        p->game().tutor.endTutor(); // the advisor's panel would take the focus offscreen
        screen = p->show(4);
        screen->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(screen));
    }
    void cleanup() { p.reset(); }

    // Enter hands the price box's digits and points to the stand: "$" and "," are read past,
    // a minus is dropped; no digits is 0, refused, and the box shows the old price again.
    void priceTexts_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("price"); // 0: the old price stays
        QTest::newRow("dollar") << "$4.75" << 4.75;
        QTest::newRow("comma") << "1,250" << 1250.0;
        QTest::newRow("minus") << "-3.5" << 3.5;
        QTest::newRow("no digits") << "free!" << 0.0;
        QTest::newRow("zero") << "$0.00" << 0.0;
    }
    void priceTexts() {
        QFETCH(QString, typed);
        QFETCH(double, price);
        const double old = item(2).price;
        QLineEdit* txt = box("txtPrice", 2);
        txt->setFocus();
        txt->selectAll();
        QTest::keyClicks(txt, typed);
        QTest::keyClick(txt, Qt::Key_Return);
        const double now = price > 0 ? price : old;
        QCOMPARE(item(2).price, now);
        QApplication::processEvents();
        QCOMPARE(txt->text(),
                 QString::fromStdString(concessionListing(item(2), p->game().folder()).price));
        QCOMPARE(txt->text(), QString::fromStdString(formatMoney(now)));
    }

    // Enter orders the leading number, ties to even, a minus kept; no number up front is 0.
    void orderTexts_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("units");
        QTest::newRow("plain") << "120" << 120;
        QTest::newRow("tie down") << "2.5" << 2;
        QTest::newRow("tie up") << "3.5" << 4;
        QTest::newRow("minus") << "-7" << -7;
        QTest::newRow("comma") << "1,000" << 1;
        QTest::newRow("dollar") << "$40" << 0;
    }
    void orderTexts() {
        QFETCH(QString, typed);
        QFETCH(int, units);
        QLineEdit* txt = box("txtBuyPerMonth", 1);
        txt->setFocus();
        txt->selectAll();
        QTest::keyClicks(txt, typed);
        QTest::keyClick(txt, Qt::Key_Return);
        QCOMPARE(int(item(1).buypermonth), units);
        QApplication::processEvents();
        QCOMPARE(txt->text(), QString::number(units));
        QCOMPARE(shown(QStringLiteral("lblTotalCost_1")),
                 QString::fromStdString(formatMoney(units * item(1).cost)));
    }

    // A click into an order box selects its whole text (after the click placed the cursor); a
    // click into a price box does not. Leaving either box applies what it holds, and while
    // the player types, the days that pass leave the box alone.
    void focusSelectsAndLeavingApplies() {
        QLineEdit* order = box("txtBuyPerMonth", 3);
        QLineEdit* price = box("txtPrice", 3);
        auto* tabs = PlayingWindow::control<QTabWidget>(screen, QStringLiteral("SSTab1"));
        tabs->setCurrentIndex(1);
        QTest::mouseClick(order, Qt::LeftButton, {}, order->rect().center());
        QApplication::processEvents();
        QVERIFY(order->hasFocus());
        QCOMPARE(order->selectedText(), order->text());
        QTest::keyClicks(order, QStringLiteral("77"));
        p->game().clockTick();
        QApplication::processEvents();
        QCOMPARE(order->text(), QStringLiteral("77"));

        tabs->setCurrentIndex(0); // leaving the Stock tab takes the focus from its box
        QCOMPARE(int(item(3).buypermonth), 77);
        QTest::mouseClick(price, Qt::LeftButton, {}, price->rect().center());
        QApplication::processEvents();
        QVERIFY(price->hasFocus());
        QVERIFY(price->selectedText().isEmpty());
        price->selectAll();
        QTest::keyClicks(price, QStringLiteral("6.5"));
        order->setFocus();
        QCOMPARE(item(3).price, 6.5);
    }

    // A pick in the quality list clicks and sets the quality; so does a click on a tab.
    void qualityAndTabsClick() {
        const long clicks = p->clicks();
        auto* quality = PlayingWindow::control<QComboBox>(screen, QStringLiteral("cmbQuality_4"));
        emit quality->activated(2);
        QCOMPARE(int(item(4).quality), 2);
        QCOMPARE(p->clicks(), clicks + 1);
        QApplication::processEvents();
        QCOMPARE(quality->currentIndex(), 2);
        QCOMPARE(shown(QStringLiteral("lblMyCost_4")),
                 QString::fromStdString(formatMoney(item(4).getUnitCost())));

        QTabBar* bar =
            PlayingWindow::control<QTabWidget>(screen, QStringLiteral("SSTab1"))->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
        QCOMPARE(bar->currentIndex(), 1);
        QCOMPARE(p->clicks(), clicks + 2);
    }

    // Crowds at the stand and days going by, over a month's turn: both tabs and the totals
    // follow every step.
    void keptCurrentAsDaysPass() {
        ConcessionManager& stand = p->game().concessions;
        int sold = 0;
        for (int day = 0; day < 30; ++day) {
            stand.doConcessionBusiness(60 + day);
            sold += stand.shownTotalSold();
            QApplication::processEvents();
            checkShowsTheStand();
            p->game().clockTick();
            QApplication::processEvents();
            checkShowsTheStand();
        }
        QVERIFY(sold > 0);
        QVERIFY(stand.shownIncomeLastMonth() != 0); // the month's turn was shown
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    ConcessionsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ConcessionsTest.moc"
