#include "Subsystems.h"

namespace zorvane::sim {

// The loans screen: the two boxes and the two buttons.
void addLoanCommands(CommandTable& t) {
    // Typing the amount is a change, so the offer is worked out; the payments box is read
    // when Enter is pressed in it. Then "Take out this loan.".
    t["loan"] = {2, 2, [](CommandContext& c, const Args& a) { c.game.loans.takeLoan(a[0], a[1]); }};
    t["payoff"] = {0, 0, [](CommandContext& c, const Args&) { c.game.loans.payOffLoan(); }};
}

// The loan as the saved game holds it, and the misses in a row, which it does not.
void addLoanState(Game& game, nlohmann::json& state) {
    const loanManager& l = game.loans;
    state["loan"] = {{"interestRate", l.interestRate},
                     {"creditScore", l.creditScore},
                     {"balance", l.balance},
                     {"payPlan", static_cast<int>(l.payPlan)},
                     {"paymentsRemaining", l.paymentsRemaining},
                     {"monthlyPayment", l.monthlyPayment},
                     {"loanAmount", l.loanAmount},
                     {"missedPayments", static_cast<int>(l.missedPayments)}};
}

} // namespace zorvane::sim
