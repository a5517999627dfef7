#include "money/MoneyTexts.h"

#include "core/Text.h"
#include "money/Finances.h"
#include "money/loanManager.h"

namespace zorvane {

FinanceSummary financeSummary(const Finances& f) {
    FinanceSummary s;
    s.income = formatMoney(f.totalincome);
    s.spent = formatMoney(f.totalspent);
    s.profit = f.getProfit();
    s.funds = formatMoney(f.funds);
    s.spending = {formatMoneyShort(f.deppromo),       formatMoneyShort(f.deplabor),
                  formatMoneyShort(f.depmovie),       formatMoneyShort(f.deparcade),
                  formatMoneyShort(f.depconcessions), formatMoneyShort(f.deploan)};
    s.sales = {formatMoneyShort(f.incdepmovie), formatMoneyShort(f.incdeparcade),
               formatMoneyShort(f.incdepconcessions)};
    return s;
}

const std::array<double, 13>& graphFunds(const Finances& finances) {
    return finances.histfunds;
}

std::array<std::string, 4> loanOfferTexts(const loanManager& loans) {
    return {numberText(loans.offerRate) + " %", formatMoney(loans.offerMonthly),
            formatMoney(loans.offerTotal), formatMoney(loans.offerAmount)};
}

std::array<std::string, 5> currentLoanTexts(const loanManager& loans) {
    return {formatMoney(loans.loanAmount), numberText(loans.interestRate) + " %",
            digitsOnly(numberText(loans.paymentsRemaining)), formatMoney(loans.balance),
            formatMoney(loans.monthlyPayment)};
}

std::string creditText(const loanManager& loans) {
    return digitsOnly(numberText(loans.creditScore)) + " %";
}

} // namespace zorvane
