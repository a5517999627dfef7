#pragma once
#include "frame/ChildFrame.h"

#include <array>

class QLabel;
class QTableWidget;

namespace zorvane::screens {

class ButtonLabel;

// The screen of mode 0: "Promotions". The five media side by side, each with its picture,
// its points, the daily price of one ad and the Buy and Drop buttons; beside them the
// current promotions with their points and the two totals, and "Drop All Promos", which
// asks first.
class frmPromo : public ChildFrame {
    Q_OBJECT
  public:
    frmPromo(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);

    // Puts showPromotions on screen: prices, points, the table and the totals.
    void paintPromotions();

    void attach(QtScreen& screen) override;
    void addScreenshots(Screenshots& shots) override;

  private:
    void dropAll();

    std::array<QLabel*, 5> lblPromoLevelLabel_{};
    std::array<QLabel*, 5> lblPromoPriceLabel_{};
    QTableWidget* grdPromos_;
    QLabel* lblCurrentPromoLevel_;
    QLabel* lblTotalMonthlyPayments_;
};

} // namespace zorvane::screens
