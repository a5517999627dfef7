#pragma once
#include <array>
#include <string>

namespace zorvane {

class Finances;
class loanManager;

// What the money views show (the main screen's summary, the loans screen, the funds graph),
// built from the money's state. The screens only draw these.

// The main screen's "Monthly Summary" (refreshFinances): the four big figures in formatMoney,
// the department totals in formatMoneyShort.
struct FinanceSummary {
    std::string income, spent, profit, funds; // lblIncome, lblSpent, lblProfit, lblMyFunds
    std::array<std::string, 6> spending;      // lblDepPromo, Labor, Movie, Arcades,
                                              // Concessions, Loan
    std::array<std::string, 3> sales;         // lblTicketSales, lblArcadeSales, lblConcessionSales
};
FinanceSummary financeSummary(const Finances& finances);

// The funds graph's points: the funds at each month's end of the running year (histfunds).
const std::array<double, 13>& graphFunds(const Finances& finances);

// The loans screen: the offer (lblProposedData 0 to 3: rate, monthly payment, total, amount),
// the current loan (lblCurrentData 0 to 4: amount, rate, payments left, balance, payment)
// and the credit score (lblCreditScore).
std::array<std::string, 4> loanOfferTexts(const loanManager& loans);
std::array<std::string, 5> currentLoanTexts(const loanManager& loans);
std::string creditText(const loanManager& loans);

} // namespace zorvane
