#pragma once
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zorvane::test {

using Figures = std::vector<double>;

// A game with no files: the bank's keys are set here, as the shipped math file has them.
struct LoanFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};

    LoanFixture() {
        game.math("loanmlv=1000; loanpaymentsmin=6; loanpaymentsmax=48; loangrace=2; loanir=0.04;"
                  "loancs=50; loancsmax=100; loancsdec=0.0002; loancsinc=0.00005");
        loans().loansSetDefaults();
    }

    loanManager& loans() { return game->loans; }
    Finances& money() { return game->finances; }

    // The player fills in the two boxes and presses Enter in the second.
    void offer(const std::string& amount, const std::string& payments) {
        loans().typeAmount(amount);
        loans().typePayPlan(payments);
        loans().payPlanKeyPress(13);
    }
    void take(const std::string& amount, const std::string& payments) {
        offer(amount, payments);
        loans().startLoan();
    }

    // The loan on the panel: amount, balance, rate, plan, payments remaining, monthly payment.
    Figures loan() {
        const loanManager& l = loans();
        return {l.loanAmount,        l.balance,
                l.interestRate,      static_cast<double>(l.payPlan),
                l.paymentsRemaining, l.monthlyPayment};
    }
    // The offer: rate, amount, payments, total, monthly payment.
    Figures offered() {
        const loanManager& l = loans();
        return {l.offerRate, l.offerAmount, static_cast<double>(l.offerPayments), l.offerTotal,
                l.offerMonthly};
    }
};

} // namespace zorvane::test
