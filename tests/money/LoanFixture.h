#pragma once
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace zorvane::test {

// A game with no files: the bank's keys are set here, as the shipped math file has them.
struct LoanFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};

    LoanFixture() {
        MathVars& m = game->math;
        m.loanmlv = 1000;
        m.loanpaymentsmin = Int16{6};
        m.loanpaymentsmax = Int16{48};
        m.loangrace = Int16{2};
        m.loanir = 0.04;
        m.loancs = 50;
        m.loancsmax = 100;
        m.loancsdec = 0.0002;
        m.loancsinc = 0.00005;
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
};

} // namespace zorvane::test
