#pragma once
#include "core/Numbers.h"

#include <array>
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The bank. One loan at a time, repaid in equal monthly payments with flat interest. The
// credit score sets the terms: a better score gives a lower rate and a bigger maximum. Each
// payment made raises the score, each one missed lowers it, and too many misses in a row
// lose the game.
class loanManager {
  public:
    explicit loanManager(Game& game) : game_(game) {}

    // The current loan and the score (the saved-game keys).
    double interestRate = 0;      // percent per payment
    double creditScore = 0;       // 0 to loancsmax, two decimals
    double balance = 0;           // principal left; interest is not in it
    Int16 payPlan;                // payments agreed
    double paymentsRemaining = 0; // may go below 0
    double monthlyPayment = 0;
    double loanAmount = 0; // non-zero: a loan exists
    Int16 missedPayments;  // in a row; not saved

    // The offer as the player fills it in; none of it is saved.
    double offerAmount = 0;
    Int16 offerPayments;
    double offerRate = 0;
    double offerMonthly = 0;
    double offerTotal = 0;

    // The loans screen's two text boxes, from which the offer is read.
    std::string amountText;  // txtProposedAmount
    std::string payPlanText; // txtProposedPayPlan

    void loansSetDefaults();
    void setupLoan(double amount, double score, int payments);
    double calcInterestRate();
    double getOfferRate() const;
    double getCreditScore() const { return creditScore; }
    void raiseCreditScore(double amount);
    void lowerCreditScore(double amount);
    double getBalance() const { return balance; }
    void loansNextMonth();
    void makeLoanPayment();
    void clearLoan();
    void payOffLoan();
    static double interestOf(double amount, double rate) { return rate * 0.01 * amount; }
    void reimburseOverpayment(double amount);
    void missLoanPayment(double amount);
    void refreshCredit();
    void refreshLoanOffer();
    void refreshCurrentLoan();
    void startLoan();

    // What the player does to the two text boxes. Every change of the amount box refreshes
    // the offer; the payments box is read only on Enter or when it loses the focus.
    void typeAmount(const std::string& text);
    void typePayPlan(const std::string& text);
    void payPlanKeyPress(int key);
    void payPlanLostFocus();
    // A loan taken as the player takes it: the amount typed into its box (the offer is
    // worked out), the payments typed into theirs and Enter pressed, then "Take out this
    // loan.".
    void takeLoan(const std::string& amount, const std::string& payments);

    void saveLoans(LineWriter& out) const;
    void loadLoans(LineReader& in);

  private:
    void rewriteAmountText(const std::string& text);

    Game& game_;
};

} // namespace zorvane
