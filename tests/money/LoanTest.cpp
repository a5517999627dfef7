#include "core/LineFile.h"
#include "money/LoanFixture.h"
#include "money/MoneyTexts.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const std::string missWarning = "You couldn't come up with the money to pay this month's loan "
                                "payment!!!  This has seriously affected your credit score";
const std::string missLoss = "You have missed too many loan payments!";

// Reads a section body, as the container hands it over behind the open tag.
void loadLoans(loanManager& loans, const std::string& body) {
    std::istringstream in(body);
    LineReader r(in, "test.zvn");
    loans.loadLoans(r);
}

} // namespace

TEST_F(LoanFixture, ALoanPaysOutAsIncomeOfNoDepartmentAndIsChargedMonthlyUntilPaidBack) {
    money().setFunds(100000);
    take("10000", "10");
    EXPECT_EQ(money().funds, 110000);
    EXPECT_EQ(money().totalincome, 10000);
    EXPECT_EQ(money().incdepmovie + money().incdeparcade + money().incdepconcessions, 0);
    EXPECT_EQ(game.screen.lines.back(), "Congrats, you're now in debt!");
    EXPECT_EQ(loans().getBalance(), 10000);
    EXPECT_EQ(currentLoanTexts(loans()),
              (std::array<std::string, 5>{"$10,000", "2 %", "10", "$10,000", "$1,200"}));
    for (int month = 0; month <= 9; ++month) { // the balance is the principal only
        EXPECT_EQ(loan(), Figures({10000, 10000 - 1000.0 * month, 2, 10, 10.0 - month, 1200}));
        EXPECT_EQ(money().funds, 110000 - 1200.0 * month);
        EXPECT_EQ(money().deploan, 1200.0 * month);
        EXPECT_DOUBLE_EQ(loans().getCreditScore(), 50 + 0.5 * month); // 10000 * 0.00005
        loans().loansNextMonth();
    }
    EXPECT_EQ(money().deploan, 12000);
    EXPECT_EQ(loans().getCreditScore(), 55);
    EXPECT_EQ(loan(), Figures({0, 0, 2, 10, 0, 0})); // the rate and the plan stay behind
    loans().loansNextMonth();
    EXPECT_EQ(money().deploan, 12000);
}

TEST_F(LoanFixture, OneLoanAtATimeAndANewOneRightAfterPayingOff) {
    money().setFunds(100);
    take("10000", "10");
    take("5000", "10");
    EXPECT_EQ(game.screen.lines.back(),
              "You cannot start a new loan until the existing debt is paid off!");
    EXPECT_EQ(loan(), Figures({10000, 10000, 2, 10, 10, 1200}));
    EXPECT_EQ(money().funds, 10100);
    money().setFunds(100000);
    loans().payOffLoan(); // the panel still shows the old loan: the balance is what counts
    take("20000", "20");
    EXPECT_EQ(loan(), Figures({20000, 20000, 2, 20, 20, 1400}));
}

TEST_F(LoanFixture, AThousandInThreeTakesAFourthFullPayment) {
    game->math.loanpaymentsmin = Int16{1};
    money().setFunds(100000);
    take("1000", "3");
    const double monthly = (1000 + 3 * 20) / 3.0;
    EXPECT_DOUBLE_EQ(loans().monthlyPayment, monthly);
    for (int month = 1; month <= 3; ++month)
        loans().loansNextMonth();
    // Three thirds of 1000 as doubles leave a hair of principal.
    EXPECT_EQ(loans().loanAmount, 1000);
    EXPECT_GT(loans().balance, 0);
    EXPECT_LT(loans().balance, 1e-9);
    EXPECT_EQ(loans().paymentsRemaining, 0);
    loans().loansNextMonth();
    EXPECT_EQ(loans().loanAmount, 0);
    EXPECT_DOUBLE_EQ(money().deploan, 4 * monthly);
    EXPECT_DOUBLE_EQ(loans().getCreditScore(), 50 + 4 * 0.05);
}

TEST_F(LoanFixture, TooManyMissesInARowLoseTheGame) {
    take("10000", "10");
    money().setFunds(100);
    game->setSpeed(2);
    loans().loansNextMonth();
    EXPECT_EQ(game->speed, 0); // the clock stops, remembering its speed
    EXPECT_EQ(game->lastSpeed, 2);
    EXPECT_EQ(loans().missedPayments, 1);
    EXPECT_EQ(loans().getCreditScore(), 48); // 10000 * 0.0002
    EXPECT_EQ(game.screen.lines.back(), missWarning);
    loans().loansNextMonth();
    EXPECT_EQ(game.screen.count(missWarning), 2);
    EXPECT_EQ(game->loseShown, 0);
    EXPECT_EQ(loan(), Figures({10000, 10000, 2, 10, 10, 1200})); // a miss moves nothing
    loadLoans(loans(), "balance=10000\r\n</loans>\r\n");
    EXPECT_EQ(loans().missedPayments, 2); // a load leaves the misses in a row as they were
    loans().loansNextMonth();             // loangrace 2: the third miss in a row loses
    EXPECT_EQ(game.screen.lines.back(), missLoss);
    EXPECT_EQ(game->loseShown, 1);
    EXPECT_EQ(game.screen.loseShown, 1);
    EXPECT_EQ(loans().getCreditScore(), 44);
    EXPECT_EQ(money().deploan, 0);
}

TEST_F(LoanFixture, APaymentBetweenMissesStartsTheCountAgainAndNoGraceLosesOnTheFirstMiss) {
    take("10000", "10");
    for (int round = 0; round < 3; ++round) {
        money().setFunds(100);
        loans().loansNextMonth();
        loans().loansNextMonth();
        EXPECT_EQ(loans().missedPayments, 2);
        money().setFunds(1201);
        loans().loansNextMonth();
        EXPECT_EQ(loans().missedPayments, 0);
    }
    EXPECT_EQ(game->loseShown, 0);
    EXPECT_EQ(loans().paymentsRemaining, 7);
    EXPECT_EQ(game.screen.count(missWarning), 6);
    game->math.loangrace = Int16{0};
    money().setFunds(100);
    loans().loansNextMonth();
    EXPECT_EQ(game.screen.count(missWarning), 6);
    EXPECT_EQ(game.screen.lines.back(), missLoss);
    EXPECT_EQ(game->loseShown, 1);
}

TEST_F(LoanFixture, PayingOffRaisesTheScoreByTheMonthlyPaymentOnly) {
    money().setFunds(100000);
    const auto lines = game.screen.lines.size();
    loans().payOffLoan(); // no loan: nothing, not even a line
    EXPECT_EQ(game.screen.lines.size(), lines);
    EXPECT_EQ(money().funds, 100000);
    take("10000", "10");
    loans().loansNextMonth();
    EXPECT_DOUBLE_EQ(loans().getCreditScore(), 50.5); // a payment: the whole amount counts
    money().setFunds(9200); // 9000 left plus one more payment's interest: less than 1 remains
    loans().payOffLoan();
    EXPECT_EQ(game.screen.lines.back(),
              "You could not afford the final loan payment of $9,200, this includes the "
              "remaining balance plus interest for one more payment.");
    EXPECT_EQ(money().funds, 9200);
    EXPECT_EQ(loan(), Figures({10000, 9000, 2, 10, 9, 1200}));
    EXPECT_DOUBLE_EQ(loans().getCreditScore(), 50.5);
    money().setFunds(9201);
    loans().payOffLoan();
    EXPECT_EQ(money().funds, 1);
    EXPECT_EQ(money().deploan, 1200 + 9200);
    EXPECT_DOUBLE_EQ(loans().getCreditScore(), 50.56); // pay-off: only the monthly payment
    EXPECT_EQ(game.screen.lines.back(), "You have cleared your debt with the bank!");
    EXPECT_EQ(loan(), Figures({10000, 0, 2, 10, 0, 1200})); // the panel shows the old loan
    loans().loansNextMonth();                               // a paid-off loan is not touched
    EXPECT_EQ(loan(), Figures({10000, 0, 2, 10, 0, 1200}));
    loans().payOffLoan(); // the second press clears it
    EXPECT_EQ(loan(), Figures({0, 0, 2, 10, 0, 0}));
    EXPECT_EQ(money().deploan, 10400);
}

TEST_F(LoanFixture, TheScoreStaysBetweenZeroAndTheMaximum) {
    loans().raiseCreditScore(10000000);
    EXPECT_EQ(loans().getCreditScore(), 100);
    loans().lowerCreditScore(10000000);
    EXPECT_EQ(loans().getCreditScore(), 0);
    loans().raiseCreditScore(1234.5); // 0.061725 to two decimals
    EXPECT_DOUBLE_EQ(loans().getCreditScore(), 0.06);
    EXPECT_EQ(creditText(loans()), "0.06 %");
}

// ---------------------------------------------------------------- saved games

TEST_F(LoanFixture, ALoadedNegativeBalanceIsReimbursedAtTheMonth) {
    money().setFunds(1000);
    loadLoans(loans(), "balance=-50.5\r\nloanAmount=1000\r\npayPlan=10\r\nmonthlyPayment=120\r\n"
                       "</loans>\r\n");
    loans().loansNextMonth();
    EXPECT_EQ(money().funds, 1050.5);
    EXPECT_EQ(money().totalincome, 50.5); // "loan" counts for no income department
    EXPECT_EQ(money().deploan, 0);
    EXPECT_EQ(game.screen.lines.back(), "You were overcharged on your final loan payment, $50.50 "
                                        "has been reimbursed to you.");
    EXPECT_EQ(loans().loanAmount, 0);
    EXPECT_EQ(loans().balance, 0);
}
