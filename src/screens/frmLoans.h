#pragma once
#include "frame/ChildFrame.h"

#include <array>

class QLabel;
class QLineEdit;

namespace zorvane::screens {

// The screen of mode 5: "Loans", the bank. Above, the loan that is running (or was last paid
// off) with the pay-off button and the credit score; below, a new loan as a sentence with two
// boxes in its gaps: "Borrow [amount] and pay it off in [n] payments.", the offer's figures
// and the button that takes it.
//
// The amount box works the offer out again on every keystroke (a sum above the bank's maximum
// is rewritten at once); the payments box only on Enter or when it loses the focus, and a
// button label takes no focus, so a loan taken right after typing a number of payments keeps
// the figures of the last refresh.
class frmLoans : public ChildFrame {
    Q_OBJECT
  public:
    frmLoans(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);

    void paintOffer();
    void paintCurrentLoan();
    void paintCredit();

    void attach(QtScreen& screen) override;
    void addScreenshots(Screenshots& shots) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QtScreen* screen_ = nullptr;
    std::array<QLabel*, 5> lblCurrentData_{};
    std::array<QLabel*, 4> lblProposedData_{};
    QLabel* lblCreditScore_;
    QLineEdit* txtProposedAmount_;
    QLineEdit* txtProposedPayPlan_;
};

} // namespace zorvane::screens
