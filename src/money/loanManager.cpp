#include "money/loanManager.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

namespace zorvane {

namespace {

constexpr int enterKey = 13;

// Two decimals, ties to even: how the score and the rates are kept.
double round2(double value) {
    return roundHalfEven(value * 100.0) / 100.0;
}

} // namespace

// A new game: the opening score, and the rate that goes with it.
void loanManager::loansSetDefaults() {
    creditScore = game_.math.loancs;
    calcInterestRate();
    refreshCredit();
}

// A goal's starting loan: the amount and payments are put into the boxes as if typed, and
// the score replaces the bank's. Each figure is used only when above 0.
void loanManager::setupLoan(double amount, double score, int payments) {
    if (amount > 0)
        rewriteAmountText(formatMoney(amount));
    if (score > 0) {
        creditScore = score;
        refreshCredit();
    }
    if (payments > 0)
        payPlanText = digitsOnly(numberText(payments));
    refreshLoanOffer();
}

// The rate for the present score: each missing point of score costs `loanir` percent.
double loanManager::calcInterestRate() {
    interestRate = (100 - creditScore) * game_.math.loanir;
    return interestRate;
}

double loanManager::getOfferRate() const {
    return round2((100 - creditScore) * game_.math.loanir);
}

// Each payment made moves the score up in proportion to the dollars, up to the maximum.
void loanManager::raiseCreditScore(double amount) {
    creditScore = round2(creditScore + amount * game_.math.loancsinc);
    if (creditScore > game_.math.loancsmax)
        creditScore = game_.math.loancsmax;
    game_.screen().refresh(View::Credit);
}

// Each payment missed moves the score down in proportion to the dollars, down to 0.
void loanManager::lowerCreditScore(double amount) {
    creditScore = round2(creditScore - amount * game_.math.loancsdec);
    if (creditScore < 0)
        creditScore = 0;
    game_.screen().refresh(View::Credit);
}

// A loan paid off with the record left standing (balance 0) is not touched at the month.
void loanManager::loansNextMonth() {
    if (balance != 0)
        makeLoanPayment();
}

// The month's payment: the whole monthly payment is charged but only the principal share
// leaves the balance. The loan ends when the balance reaches 0, not by counting payments, so
// a plan whose shares fall short of the amount by a hair costs one more full payment.
void loanManager::makeLoanPayment() {
    if (loanAmount == 0)
        return;
    if (balance == 0) {
        clearLoan();
        return;
    }
    if (balance < 0) {
        reimburseOverpayment(balance * -1);
        clearLoan();
        return;
    }
    if (payPlan == 0)
        throw GameError(GameError::Kind::DivisionByZero,
                        "division by zero: the loan's principal share with a payPlan of 0");
    const double share = loanAmount / payPlan;
    if (game_.finances.spend(monthlyPayment, "loan")) {
        paymentsRemaining -= 1;
        missedPayments = 0;
        raiseCreditScore(loanAmount);
        balance -= share;
        if (balance <= 0) {
            clearLoan();
            return;
        }
    } else {
        missLoanPayment(loanAmount);
    }
    refreshCurrentLoan();
}

// No loan any more. The rate and the plan stay behind.
void loanManager::clearLoan() {
    loanAmount = 0;
    balance = 0;
    monthlyPayment = 0;
    missedPayments = 0;
    paymentsRemaining = 0;
    refreshCurrentLoan();
}

// "Pay off full amount now": the principal left plus one more payment's interest. Kept on
// purpose: this raises the score by the monthly payment only, where a monthly payment raises
// it by the whole loan amount. The old loan stays on the panel until a new loan or a second
// press clears it.
void loanManager::payOffLoan() {
    if (loanAmount == 0)
        return;
    if (balance == 0) {
        clearLoan();
        return;
    }
    double price = balance + interestOf(loanAmount, interestRate);
    if (price == 0) {
        game_.gameLog("You have no debts with this bank!", 0);
        return;
    }
    if (price < 0)
        price = 0;
    if (!game_.finances.spend(price, "loan")) {
        game_.gameLog("You could not afford the final loan payment of " + formatMoney(price) +
                          ", this includes the remaining balance plus interest for one more "
                          "payment.",
                      0);
        return;
    }
    balance = 0;
    raiseCreditScore(monthlyPayment);
    paymentsRemaining = 0;
    refreshCurrentLoan();
    game_.gameLog("You have cleared your debt with the bank!", 0);
}

// A balance below 0 is paid back by the bank. Only a saved game can bring one about, since
// a payment that takes the balance to 0 or below ends the loan at once.
void loanManager::reimburseOverpayment(double amount) {
    game_.finances.earn(amount, "loan");
    game_.gameLog("You were overcharged on your final loan payment, " + formatMoney(amount) +
                      " has been reimbursed to you.",
                  0);
}

// A payment the funds cannot bear: the clock stops and the score drops. The miss that makes
// `loangrace` plus 1 in a row loses the game.
void loanManager::missLoanPayment(double amount) {
    game_.setSpeed(-1);
    lowerCreditScore(amount);
    ++missedPayments;
    if (missedPayments <= game_.math.loangrace) {
        game_.gameLog("You couldn't come up with the money to pay this month's loan payment!!!  "
                      "This has seriously affected your credit score",
                      0);
        return;
    }
    game_.gameLog("You have missed too many loan payments!", 0);
    game_.showLose(LoseReason::Loan);
}

void loanManager::refreshCredit() {
    game_.screen().refresh(View::Credit);
    refreshLoanOffer();
    refreshCurrentLoan();
}

// Works the offer out from the two boxes. Kept on purpose: the total is made before the
// number of payments is limited, so after a limit the total and the monthly payment stand on
// the number typed until the next refresh, and a loan taken in that moment keeps them.
void loanManager::refreshLoanOffer() {
    const MathVars& m = game_.math;
    offerRate = getOfferRate();
    offerAmount = digitsValue(amountText);
    offerPayments = toInt16(leadingNumber(payPlanText));
    offerTotal = offerAmount + offerPayments * interestOf(offerAmount, offerRate);
    if (offerPayments > m.loanpaymentsmax) {
        offerPayments = m.loanpaymentsmax;
        payPlanText = std::to_string(offerPayments);
    } else if (offerPayments < m.loanpaymentsmin) {
        offerPayments = m.loanpaymentsmin;
        payPlanText = std::to_string(offerPayments);
    }
    if (offerPayments == 0)
        throw GameError(GameError::Kind::DivisionByZero,
                        "division by zero: the loan offer's monthly payment over 0 payments");
    offerMonthly = offerTotal / offerPayments;
    const double maxLoan = creditScore * m.loanmlv;
    if (offerAmount > maxLoan) {
        offerAmount = maxLoan;
        rewriteAmountText(formatMoney(maxLoan)); // a change of the offer: it is worked out again
    }
    game_.screen().refresh(View::LoanOffer);
}

void loanManager::refreshCurrentLoan() {
    game_.screen().refresh(View::CurrentLoan);
}

// "Take out this loan.": the offer as it was last worked out becomes the loan, and the money
// arrives as income of no department.
void loanManager::startLoan() {
    if (balance > 0) {
        game_.gameLog("You cannot start a new loan until the existing debt is paid off!", 0);
        return;
    }
    if (!(offerAmount > 0))
        return;
    interestRate = offerRate;
    balance = offerAmount;
    payPlan = offerPayments;
    paymentsRemaining = payPlan;
    monthlyPayment = offerMonthly;
    loanAmount = balance;
    game_.finances.earn(offerAmount, "");
    refreshCurrentLoan();
    game_.gameLog("Congrats, you're now in debt!", 0);
}

void loanManager::typeAmount(const std::string& text) {
    amountText = text;
    refreshLoanOffer();
}

void loanManager::typePayPlan(const std::string& text) {
    payPlanText = text;
}

void loanManager::payPlanKeyPress(int key) {
    if (key == enterKey)
        refreshLoanOffer();
}

void loanManager::payPlanLostFocus() {
    refreshLoanOffer();
}

// The logic writes into the amount box; a text that differs is a change, and every change
// works the offer out again.
void loanManager::rewriteAmountText(const std::string& text) {
    if (text == amountText)
        return;
    amountText = text;
    refreshLoanOffer();
}

void loanManager::saveLoans(LineWriter& out) const {
    out << "<loans>";
    out << "interestRate=" + numberText(interestRate);
    out << "creditScore=" + numberText(creditScore);
    out << "balance=" + numberText(balance);
    out << "payPlan=" + numberText(payPlan);
    out << "paymentsRemaining=" + numberText(paymentsRemaining);
    out << "monthlyPayment=" + numberText(monthlyPayment);
    out << "loanAmount=" + numberText(loanAmount);
    out << "</loans>";
}

// The missed payments in a row are not in the file: a load leaves them as they were.
void loanManager::loadLoans(LineReader& in) {
    readSection(in, [this](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        const auto v = [&value] { return leadingNumber(value); };
        if (key == "interestrate")
            interestRate = round2(v());
        else if (key == "creditscore")
            creditScore = round2(v());
        else if (key == "balance")
            balance = v();
        else if (key == "payplan")
            payPlan = toInt16(v());
        else if (key == "paymentsremaining")
            paymentsRemaining = v();
        else if (key == "monthlypayment")
            monthlyPayment = v();
        else if (key == "loanamount")
            loanAmount = v();
    });
    refreshCredit();
}

void loanManager::takeLoan(const std::string& amount, const std::string& payments) {
    typeAmount(amount);
    typePayPlan(payments);
    payPlanKeyPress(enterKey);
    startLoan();
}

} // namespace zorvane
