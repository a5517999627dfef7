#pragma once
#include "frame/ChildFrame.h"

#include <array>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QTabWidget;

namespace zorvane::screens {

// The screen of mode 4: "Concessions", the stand. Two tabs with a row for each of the five
// items: "Prices" (picture, quality, price, what a unit costs, sold today, today's profit and
// their totals) and "Stock" (in stock, the monthly order, last month's sales, the costs and
// last month's income). The screen keeps no figures of its own: it shows the stand's texts,
// and each box or list calls one operation of the stand.
//
// - Quality list: a click plays the click sound and sets the item's quality.
// - Price box: Enter or leaving the box sets the price from its digits and points only
//   ("$1,250" is 1250, a minus is dropped); a refused price is written back as the old one.
// - Order box: focus selects the whole text; Enter or leaving the box orders the leading
//   number of the text, rounded half to even, a minus kept.
// - While the player is typing into a box, the running days leave that box alone.
class frmConcessions : public ChildFrame {
    Q_OBJECT
  public:
    static constexpr int itemCount = 5;

    frmConcessions(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);

    // The "Prices" rows, the "Stock" rows and the totals, as the stand last asked.
    void paintListing();
    void paintTables();
    void paintTotals();

    void attach(QtScreen& screen) override;
    void addScreenshots(Screenshots& shots) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Row {
        QLabel* imgConcession = nullptr;
        QComboBox* cmbQuality = nullptr;
        QLineEdit* txtPrice = nullptr;
        QLabel* lblMyCost = nullptr;
        QLabel* lblSold = nullptr;
        QLabel* lblProfit = nullptr;
        QLabel* imgStock = nullptr; // the item's picture again, small, on the "Stock" tab
        QLabel* lblStockItem = nullptr;
        QLabel* lblInStock = nullptr;
        QLineEdit* txtBuyPerMonth = nullptr;
        QLabel* lblLastMonthSales = nullptr;
        QLabel* lblCostPerItem = nullptr;
        QLabel* lblTotalCost = nullptr;
        std::string picture;                  // the file the pictures show
        std::vector<std::string> qualityList; // what the quality list holds
    };

    QWidget* buildPricesTab();
    QWidget* buildStockTab();
    void applyPrice(int item);
    void applyOrder(int item);
    int boxItem(QObject* box) const;

    QTabWidget* SSTab1_;
    std::array<Row, itemCount> rows_{};
    QLabel* lblTotalMyCost_;
    QLabel* lblTotalSold_;
    QLabel* lblTotalProfit_;
    QLabel* lblTotalTotalCost_;
    QLabel* lblTotalIncomeLastMonth_;
};

} // namespace zorvane::screens
