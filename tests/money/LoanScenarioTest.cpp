#include "Simulator.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

using namespace zorvane;
using namespace zorvane::test;
using nlohmann::json;

namespace {

struct LoanScenario : SimScenario {
    void start() { SimScenario::start(11); }
};

} // namespace

TEST_F(LoanScenario, TakeALoanPayAMonthAndPayItOff) {
    data.setMath({{"loancs", "50"},
                  {"loanir", "0.04"},
                  {"loanmlv", "1000"},
                  {"loancsinc", "0.00005"},
                  {"loanpaymentsmin", "6"},
                  {"loanpaymentsmax", "48"}});
    start();
    const json before = state();
    EXPECT_EQ(before["loan"]["creditScore"], 50);
    EXPECT_EQ(before["loan"]["loanAmount"], 0);

    run("loan $20,000 10");
    json s = state();
    EXPECT_EQ(s["loan"]["loanAmount"], 20000);
    EXPECT_EQ(s["loan"]["balance"], 20000);
    EXPECT_EQ(s["loan"]["interestRate"], 2);
    EXPECT_EQ(s["loan"]["payPlan"], 10);
    EXPECT_EQ(s["loan"]["paymentsRemaining"], 10);
    EXPECT_EQ(s["loan"]["monthlyPayment"], 2400);
    EXPECT_EQ(s["loan"]["missedPayments"], 0);
    EXPECT_EQ(s["funds"].get<double>(), before["funds"].get<double>() + 20000);
    EXPECT_EQ(count(log(), "Congrats, you're now in debt!"), 1);

    run("day 28"); // one month's turn
    s = state();
    EXPECT_EQ(s["loan"]["balance"], 18000);
    EXPECT_EQ(s["loan"]["paymentsRemaining"], 9);
    EXPECT_EQ(s["loan"]["creditScore"], 51);
    EXPECT_EQ(s["deploan"], 2400);

    run("payoff"); // 18000 plus one more payment's interest
    s = state();
    EXPECT_EQ(s["deploan"], 2400 + 18400);
    EXPECT_DOUBLE_EQ(s["loan"]["creditScore"].get<double>(), 51.12);
    EXPECT_EQ(s["loan"]["balance"], 0);
    EXPECT_EQ(s["loan"]["loanAmount"], 20000);
    run("payoff");
    EXPECT_EQ(state()["loan"]["loanAmount"], 0);

    run("loan 900000 12"); // cut to the maximum of score 51.12
    s = state();
    EXPECT_EQ(s["loan"]["loanAmount"], 51120);
    EXPECT_EQ(simulator->game().loans.amountText, "$51,120");
    EXPECT_THROW(run("loan 5000"), sim::ScriptError);
}

TEST_F(LoanScenario, MissedPaymentsThroughTheMonthsLoseTheGame) {
    // No funds floor and a long rent grace: only the bank can end this game.
    data.setMath({{"fundsmin", "0"}, {"buildingrentgrace", "20"}, {"loangrace", "2"}});
    start();
    run("loan 10000 10");
    simulator->game().finances.setFunds(300);
    run("day 28");
    run("day 28");
    std::string text = log();
    EXPECT_EQ(
        count(text, "You couldn't come up with the money to pay this month's loan payment!!!"), 2);
    EXPECT_EQ(state()["loseShown"], 0);
    run("day 28");
    text = log();
    EXPECT_EQ(count(text, "You have missed too many loan payments!"), 1);
    const json s = state();
    EXPECT_EQ(s["loseShown"], 1);
    EXPECT_EQ(s["loan"]["missedPayments"], 3);
    EXPECT_EQ(s["loan"]["balance"], 10000);
}
