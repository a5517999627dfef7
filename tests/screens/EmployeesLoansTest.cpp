// The staff screen (hire table, details panel, position chart) and the bank, offscreen.
#include "PlayingWindow.h"
#include "core/Text.h"
#include "frame/ButtonLabel.h"
#include "frmEmployees.h"
#include "ports/QtScreen.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

class EmployeesLoansTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PlayingWindow> p;

    QWidget* staffTab(int tab) {
        ChildFrame* f = p->show(1);
        PlayingWindow::control<QTabWidget>(f, QStringLiteral("SSTab1"))->setCurrentIndex(tab);
        p->w->screen().flush();
        return f;
    }
    template <class T = QLabel> T* get(QWidget* in, const QString& name) {
        return PlayingWindow::control<T>(in, name);
    }
    void flush() { p->w->screen().flush(); }
    employeeManager& staff() { return p->game().employees; }
    // Hires today's applicants of the first `n` rows (row 1 each time: the table closes up).
    void hire(int n) {
        p->game().finances.earn(50000, "");
        for (int i = 0; i < n; ++i)
            staff().hireEmployee(1);
        flush();
    }
    void clickRow(QWidget* f, int row) {
        auto* grid = get<QTableView>(f, QStringLiteral("grdEmps"));
        const QRect r = grid->visualRect(grid->model()->index(row - 1, 0));
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                          row >= 1 ? r.center() : QPoint(5, 5));
        flush();
    }

  private slots:
    void init() { p = std::make_unique<PlayingWindow>(); }
    void cleanup() { p.reset(); }

    // Hiring from row 3 closes up the table and the last row goes blank; the experience cell
    // is light red exactly while its post is open.
    void hireTableClosesUpAndRedFollowsOpenPosts() {
        QWidget* f = staffTab(2);
        int white = 0;
        const auto checkRed = [&] {
            white = 0;
            for (int r = 1; r <= staff().candidateCount(); ++r) {
                const bool open =
                    staff().getPosition(staff().getCandidate(r).getMyExp()).getMyEmployee() < 1;
                const QColor c = get(f, QStringLiteral("lblHireExp_%1").arg(r))
                                     ->palette()
                                     .color(QPalette::Window);
                QCOMPARE(c, open ? QColor(255, 192, 192) : QColor(Qt::white));
                white += open ? 0 : 1;
            }
        };
        checkRed();
        QCOMPARE(white, 0); // nobody on the staff: every post is open
        QStringList before;
        for (int r = 1; r <= 10; ++r)
            before << get(f, QStringLiteral("lblHireName_%1").arg(r))->text();
        const int hiredPost = staff().getCandidate(3).getMyExp();
        p->game().finances.earn(5000, "");
        get<ButtonLabel>(f, QStringLiteral("lbcHireEmp_3"))->trigger();
        flush();
        QCOMPARE(staff().employeeCount(), 1);
        QCOMPARE(staff().getEmployee(1).getMyName(), before[2].toStdString());
        for (int r = 3; r <= 9; ++r)
            QCOMPARE(get(f, QStringLiteral("lblHireName_%1").arg(r))->text(), before[r]);
        QCOMPARE(get(f, QStringLiteral("lblHireName_10"))->text(), QString());
        QVERIFY(get<ButtonLabel>(f, QStringLiteral("lbcHireEmp_10"))->isHidden());
        QVERIFY(!get<ButtonLabel>(f, QStringLiteral("lbcHireEmp_9"))->isHidden());
        QCOMPARE(staff().getPosition(hiredPost).getMyEmployee(), 1);
        checkRed();
    }

    // With nobody on the staff a click on the grid opens the panel on place 0: an empty
    // person with a face.
    void detailsOfAnEmptyStaff() {
        QWidget* f = staffTab(1);
        QVERIFY(get<QWidget>(f, QStringLiteral("frmEmpDetails"))->isHidden());
        clickRow(f, 0);
        QVERIFY(get<QWidget>(f, QStringLiteral("frmEmpDetails"))->isVisible());
        QCOMPARE(get(f, QStringLiteral("lblEmpNum"))->text(), QStringLiteral("0"));
        QCOMPARE(get(f, QStringLiteral("lblDetlName"))->text(), QString());
        QVERIFY(get(f, QStringLiteral("imgPicHead"))
                    ->property("picture")
                    .toString()
                    .contains(QStringLiteral("head")));
        QCOMPARE(get<QListWidget>(f, QStringLiteral("lstPosition"))->count(), 8);
    }

    // The face's nine layers show the files of a person's skin, glasses and hair; glasses 3
    // and hair other than 3 leave their layers empty.
    void faceLayersByPicturePath() {
        hire(1);
        QWidget* f = staffTab(1);
        struct Case {
            int skin, glasses, hair;
            const char* files[9];
        } cases[] = {
            {3,
             3,
             3,
             {"backhair", "torsoD", "headD", "eyesocketsD", "eyes", "noseD", "mouthD", "",
              "hair3"}},
            {1,
             2,
             5,
             {"", "torsoL", "headL", "eyesocketsL", "eyes", "noseL", "mouthL", "glasses2",
              "hair5"}},
        };
        const char* layers[9] = {"imgPicBackhair",   "imgPicTorso",   "imgPicHead",
                                 "imgPicEyeSockets", "imgPicEyes",    "imgPicNose",
                                 "imgPicMouth",      "imgPicGlasses", "imgPicHair"};
        for (const Case& c : cases) {
            employee& e = staff().getEmployee(1);
            e.myPicSkin = c.skin;
            e.myPicGlasses = c.glasses;
            e.myPicHair = c.hair;
            clickRow(f, 1);
            for (int i = 0; i < 9; ++i) {
                QLabel* layer = get(f, QString::fromLatin1(layers[i]));
                const QString shown = layer->property("picture").toString();
                const QString want = QString::fromLatin1(c.files[i]);
                if (want.isEmpty()) {
                    QVERIFY2(shown.isEmpty() && layer->pixmap().isNull(), layers[i]);
                } else {
                    QVERIFY2(shown.endsWith(QStringLiteral("face_elements/") + want +
                                            QStringLiteral(".gif")),
                             qPrintable(shown));
                    QVERIFY2(!layer->pixmap().isNull(), layers[i]);
                }
            }
        }
    }

    // The fire button asks about the panel's person; No changes nothing, Yes fires and
    // closes the panel. The position list picks, and only the assign button moves.
    void fireQuestionAndAssignButton() {
        hire(3);
        QWidget* f = staffTab(1);
        clickRow(f, 2);
        const std::string name = staff().getEmployee(2).getMyName();
        QCOMPARE(get(f, QStringLiteral("lblDetlName"))->text().toStdString(), name);

        auto* list = get<QListWidget>(f, QStringLiteral("lstPosition"));
        const int job = staff().getEmployee(2).getMyJob();
        const int wanted = job == 7 ? 0 : 7;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(wanted)).center());
        flush();
        QCOMPARE(staff().getEmployee(2).getMyJob(), job);
        get<ButtonLabel>(f, QStringLiteral("lbcAssignPosition"))->trigger();
        flush();
        QCOMPARE(staff().getEmployee(2).getMyJob(), wanted);
        QCOMPARE(list->currentRow(), wanted);

        p->dialogs.answers.push_back(Answer::No);
        get<ButtonLabel>(f, QStringLiteral("lbcFireEmp"))->trigger();
        flush();
        QCOMPARE(p->dialogs.asked.back(), "Are you sure you want to fire " + name + "?");
        QCOMPARE(staff().employeeCount(), 3);
        QVERIFY(get<QWidget>(f, QStringLiteral("frmEmpDetails"))->isVisible());

        p->dialogs.answers.push_back(Answer::Yes);
        get<ButtonLabel>(f, QStringLiteral("lbcFireEmp"))->trigger();
        flush();
        QCOMPARE(staff().employeeCount(), 2);
        QVERIFY(get<QWidget>(f, QStringLiteral("frmEmpDetails"))->isHidden());
    }

    // A person who quits closes his or her own panel. When someone before the grid's row
    // quits, the row keeps its number: the panel still shows the old person, and the fire
    // button asks about that person and fires the row's new one.
    void quittingClosesThePanelAndRowsRenumber() {
        hire(4);
        QWidget* f = staffTab(1);
        const auto quit = [&](int n) {
            staff().getEmployee(n).anger = p->game().math.empangryquit * 2;
            staff().getEmployee(n).nextDay();
            flush();
        };
        clickRow(f, 4);
        quit(4);
        QVERIFY(get<QWidget>(f, QStringLiteral("frmEmpDetails"))->isHidden());

        clickRow(f, 2);
        const std::string shown = staff().getEmployee(2).getMyName();
        quit(1);
        auto* panel = get<QWidget>(f, QStringLiteral("frmEmpDetails"));
        QVERIFY(panel->isVisible());
        QCOMPARE(static_cast<frmEmployees*>(p->mode(1))->gridRow(), 2);
        auto* grid = get<QTableView>(f, QStringLiteral("grdEmps"));
        QCOMPARE(grid->model()->rowCount(), 2);
        QCOMPARE(grid->model()->index(0, 0).data().toString().toStdString(), shown);
        QCOMPARE(get(f, QStringLiteral("lblDetlName"))->text().toStdString(), shown);
        p->dialogs.answers.push_back(Answer::Yes);
        get<ButtonLabel>(f, QStringLiteral("lbcFireEmp"))->trigger();
        flush();
        QCOMPARE(p->dialogs.asked.back(), "Are you sure you want to fire " + shown + "?");
        QCOMPARE(staff().employeeCount(), 1);
        QCOMPARE(staff().getEmployee(1).getMyName(), shown);
    }

    // A click on a pay rate asks for the wage; a text without digits sets the minimum with
    // the clamp line, an empty answer changes nothing.
    void payRateAsksForTheWage() {
        QWidget* f = staffTab(0);
        auto* rate = get<ButtonLabel>(f, QStringLiteral("lblPayRate_2"));
        const double min = staff().getMinWage();
        struct Case {
            const char* typed;
            double wage;
        } cases[] = {{"9.5", 9.5},
                     {"", 9.5},
                     {"lots", min},
                     {"-3", min},
                     {"12345678901234567890", 12345678901234567890.0}};
        for (const Case& c : cases) {
            p->dialogs.inputs.push_back(c.typed);
            QTest::mouseClick(rate, Qt::LeftButton);
            flush();
            QCOMPARE(staff().getPosition(2).getWage(), c.wage);
            QCOMPARE(rate->text().toStdString(), formatMoney(c.wage) + "/hr");
        }
    }

    // The amount box is rewritten with the bank's maximum while the player types; a loan
    // taken right after typing in the payments box keeps the last refreshed offer.
    void loanBoxes() {
        ChildFrame* f = p->show(5);
        loanManager& bank = p->game().loans;
        auto* amount = get<QLineEdit>(f, QStringLiteral("txtProposedAmount"));
        auto* payments = get<QLineEdit>(f, QStringLiteral("txtProposedPayPlan"));
        const std::string maximum = formatMoney(bank.creditScore * p->game().math.loanmlv);
        QTest::keyClicks(amount, QStringLiteral("99999999"));
        QCOMPARE(amount->text().toStdString(), maximum);
        flush();
        QCOMPARE(get(f, QStringLiteral("lblProposedData_3"))->text().toStdString(), maximum);

        amount->clear();
        QTest::keyClicks(amount, QStringLiteral("abc10000"));
        payments->clear(); // the offer has put the least number of payments there
        QTest::keyClicks(payments, QStringLiteral("none"));
        QTest::keyClick(payments, Qt::Key_Return);
        QCOMPARE(payments->text(), QString::number(p->game().math.loanpaymentsmin));
        payments->clear();
        QTest::keyClicks(payments, QStringLiteral("12"));
        QTest::keyClick(payments, Qt::Key_Return);
        const double monthly = bank.offerMonthly;
        QCOMPARE(bank.offerPayments, 12);
        payments->clear();
        QTest::keyClicks(payments, QStringLiteral("36"));
        QCOMPARE(bank.offerMonthly, monthly); // nothing until Enter or leaving the box
        QTest::mouseClick(get<ButtonLabel>(f, QStringLiteral("lbcStartLoan")), Qt::LeftButton);
        flush();
        QCOMPARE(bank.payPlan, 12);
        QCOMPARE(bank.monthlyPayment, monthly);
        QCOMPARE(bank.loanAmount, 10000.0);
        QCOMPARE(get(f, QStringLiteral("lblCurrentData_0"))->text(), QStringLiteral("$10,000"));

        QTest::mouseClick(get<ButtonLabel>(f, QStringLiteral("lbcPayOff")), Qt::LeftButton);
        flush();
        QCOMPARE(bank.balance, 0.0);
        QCOMPARE(get(f, QStringLiteral("lblCurrentData_3"))->text(), QStringLiteral("$0"));
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    EmployeesLoansTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "EmployeesLoansTest.moc"
