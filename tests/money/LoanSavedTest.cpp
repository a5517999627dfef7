#include "core/LineReader.h"
#include "money/LoanFixture.h"
#include "money/moneyTexts.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct LoanSavedFixture : LoanFixture {
    std::string save() {
        std::ostringstream out;
        LineWriter w(out);
        loans().saveLoans(w);
        return out.str();
    }
    // Reads a section body, as the container hands it over behind the open tag.
    void load(loanManager& into, const std::string& body) {
        std::istringstream in(body);
        LineReader r(in, "test.zvn");
        into.loadLoans(r);
    }
};

} // namespace

TEST_F(LoanSavedFixture, TheSectionAsWritten) {
    money().setFunds(100000);
    take("10000", "8");
    loans().loansNextMonth();
    EXPECT_EQ(save(), "<loans>\r\n"
                      "interestRate=2\r\n"
                      "creditScore=50.5\r\n"
                      "balance=8750\r\n"
                      "payPlan=8\r\n"
                      "paymentsRemaining=7\r\n"
                      "monthlyPayment=1450\r\n"
                      "loanAmount=10000\r\n"
                      "</loans>\r\n");
}

TEST_F(LoanSavedFixture, SaveThenLoadGivesTheSameLoan) {
    game->math.loanpaymentsmin = Int16{1};
    money().setFunds(100000);
    take("1000", "3");
    loans().loansNextMonth();
    const std::string text = save();

    TempDir otherDir;
    TestGame other{otherDir.path().string()};
    other->math = game->math;
    other->loans.loansSetDefaults();
    std::string body = text.substr(std::string("<loans>\r\n").size());
    load(other->loans, body + "<next>\r\n");
    const loanManager& o = other->loans;
    EXPECT_EQ(o.interestRate, loans().interestRate);
    EXPECT_EQ(o.creditScore, loans().creditScore);
    // Doubles are written with 15 significant digits: 666.666666666667 comes back.
    EXPECT_NEAR(o.balance, loans().balance, 1e-9);
    EXPECT_EQ(o.payPlan, 3);
    EXPECT_EQ(o.paymentsRemaining, 2);
    EXPECT_NEAR(o.monthlyPayment, loans().monthlyPayment, 1e-9);
    EXPECT_EQ(o.loanAmount, 1000);

    std::ostringstream again;
    LineWriter w(again);
    o.saveLoans(w);
    EXPECT_EQ(again.str(), text);
}

TEST_F(LoanSavedFixture, ReadingRoundsTheRatesAndThePlan) {
    load(loans(), "INTERESTRATE=2.346\r\n"
                  "creditscore=61.125 points\r\n"
                  "=5\r\n"
                  "balance 99\r\n"
                  "PayPlan=12.5\r\n"
                  "paymentsRemaining=2.5\r\n"
                  "monthlyPayment=$12\r\n"
                  "loanAmount=3000.125\r\n"
                  "</loans>\r\n"
                  "balance=5\r\n");
    EXPECT_DOUBLE_EQ(loans().interestRate, 2.35);
    EXPECT_EQ(loans().creditScore, 61.12); // ties to even
    EXPECT_EQ(loans().balance, 0);         // the line without "=" is skipped
    EXPECT_EQ(loans().payPlan, 12);
    EXPECT_EQ(loans().paymentsRemaining, 2.5); // kept as read
    EXPECT_EQ(loans().monthlyPayment, 0);      // no leading number
    EXPECT_EQ(loans().loanAmount, 3000.125);
    EXPECT_EQ(creditText(loans()), "61.12 %");
    EXPECT_EQ(currentLoanTexts(loans())[2], "2.5");
}

TEST_F(LoanSavedFixture, ALoadLeavesTheMissesInARowAsTheyWere) {
    take("10000", "10");
    money().setFunds(100);
    loans().loansNextMonth();
    loans().loansNextMonth();
    EXPECT_EQ(loans().missedPayments, 2);
    load(loans(), save().substr(9));
    EXPECT_EQ(loans().missedPayments, 2);
    loans().loansNextMonth(); // so the next miss still loses
    EXPECT_EQ(game->loseShown, 1);
}

TEST_F(LoanSavedFixture, ANegativeBalanceIsReimbursedAtTheMonth) {
    money().setFunds(1000);
    load(loans(), "balance=-50.5\r\nloanAmount=1000\r\npayPlan=10\r\nmonthlyPayment=120\r\n"
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
