#include "core/GameError.h"
#include "money/LoanFixture.h"
#include "money/MoneyTexts.h"

#include <gtest/gtest.h>

#include <array>

using namespace zorvane;
using namespace zorvane::test;

TEST_F(LoanFixture, DefaultsFillTheOfferThenFlatInterestOnTheWholeAmount) {
    EXPECT_EQ(loans().getCreditScore(), 50);
    EXPECT_EQ(loans().interestRate, 2);
    EXPECT_EQ(loans().payPlanText, "6"); // an empty box is below the minimum
    EXPECT_EQ(offered(), Figures({2, 0, 6, 0, 0}));
    EXPECT_EQ(creditText(loans()), "50 %");
    offer("$10,000", "10");
    EXPECT_EQ(offered(), Figures({2, 10000, 10, 12000, 1200})); // each bears 2% of 10000
    EXPECT_EQ(loanOfferTexts(loans()),
              (std::array<std::string, 4>{"2 %", "$1,200", "$12,000", "$10,000"}));
    offer("12abc3", "6.5"); // letters are skipped; 6.5 rounds to the even 6
    EXPECT_EQ(loans().offerAmount, 123);
    EXPECT_EQ(loans().offerPayments, 6);
}

TEST_F(LoanFixture, TheTotalIsMadeBeforeThePaymentsAreLimited) {
    take("10000", "60"); // a loan taken right away keeps the uncorrected figures
    EXPECT_EQ(loan(), Figures({10000, 10000, 2, 48, 48, 22000.0 / 48}));
    EXPECT_EQ(loans().payPlanText, "48");
    EXPECT_EQ(offered(), Figures({2, 10000, 48, 10000 + 60 * 200, 22000.0 / 48})); // as typed
    loans().payPlanKeyPress(13); // a second Enter puts them right
    EXPECT_EQ(offered(), Figures({2, 10000, 48, 10000 + 48 * 200, 19600.0 / 48}));
    offer("10000", "2");
    EXPECT_EQ(loans().payPlanText, "6");
    EXPECT_EQ(offered(), Figures({2, 10000, 6, 10400, 10400.0 / 6}));
    game->math.loanpaymentsmin = Int16{0};
    EXPECT_THROW(offer("1000", "0"), GameError); // no payments at all: a division by zero
}

TEST_F(LoanFixture, ThePaymentsBoxIsReadOnlyOnEnterOrLeavingTheAmountCutAtTheMaximum) {
    offer("10000", "10");
    loans().typePayPlan("20");
    loans().payPlanKeyPress('2'); // other keys do nothing
    EXPECT_EQ(offered(), Figures({2, 10000, 10, 12000, 1200}));
    loans().payPlanLostFocus();
    EXPECT_EQ(offered(), Figures({2, 10000, 20, 14000, 700}));
    // An amount above the maximum is cut, and the offer worked out again.
    loans().typePayPlan("10");
    loans().typeAmount("70000"); // the maximum at score 50 is 50000
    EXPECT_EQ(loans().amountText, "$50,000");
    EXPECT_EQ(offered(), Figures({2, 50000, 10, 60000, 6000})); // on the cut amount
    offer("50000", "10"); // exactly the maximum stands as typed
    EXPECT_EQ(loans().amountText, "50000");
    EXPECT_EQ(loans().offerAmount, 50000);
}

TEST_F(LoanFixture, TheOfferRateIsRoundedHalfToEvenTheLoanRateIsNotNoCreditNoLoan) {
    game->math.loanir = 0.005;
    loans().creditScore = 75; // 0.125
    EXPECT_EQ(loans().getOfferRate(), 0.12);
    loans().creditScore = 25; // 0.375
    EXPECT_EQ(loans().getOfferRate(), 0.38);
    game->math.loanir = 0.04;
    loans().creditScore = 33.335;
    EXPECT_DOUBLE_EQ(loans().getOfferRate(), 2.67);
    EXPECT_DOUBLE_EQ(loans().calcInterestRate(), 66.665 * 0.04);
    EXPECT_DOUBLE_EQ(loans().interestRate, 66.665 * 0.04);
    // With no credit there is no loan.
    loans().creditScore = 0;
    money().setFunds(500);
    const auto linesBefore = game.screen.lines.size();
    take("5000", "10");
    EXPECT_EQ(loans().amountText, "$0");
    EXPECT_EQ(loans().offerAmount, 0);
    EXPECT_EQ(loans().loanAmount, 0);
    EXPECT_EQ(money().funds, 500);
    EXPECT_EQ(game.screen.lines.size(), linesBefore); // ends silently
}

TEST_F(LoanFixture, AGoalsLoanIsCutByTheOfferAsIfTyped) {
    // The amount is written into the box first, and that change works the offer out at once,
    // under the score the bank has at that moment (50: at most 50000).
    loans().setupLoan(80000, 60, 12);
    EXPECT_EQ(loans().getCreditScore(), 60);
    EXPECT_EQ(loans().amountText, "$50,000");
    EXPECT_EQ(loans().payPlanText, "12");
    EXPECT_DOUBLE_EQ(loans().offerRate, 1.6);
    EXPECT_EQ(loans().offerAmount, 50000);
    EXPECT_DOUBLE_EQ(loans().offerTotal, 50000 + 12 * 800);
    EXPECT_EQ(creditText(loans()), "60 %");

    loans().setupLoan(90000, 0, 0); // at score 60 the maximum is 60000
    EXPECT_EQ(loans().amountText, "$60,000");
    EXPECT_EQ(loans().offerAmount, 60000);
    EXPECT_EQ(loans().payPlanText, "12");

    loans().setupLoan(0, -1, 0); // nothing above 0: only a refresh
    EXPECT_EQ(loans().getCreditScore(), 60);
    EXPECT_EQ(loans().amountText, "$60,000");
    EXPECT_EQ(loans().payPlanText, "12");
}
