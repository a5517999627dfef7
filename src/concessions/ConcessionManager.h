#pragma once
#include "concessions/Concession.h"

#include <array>
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The theater's concession stand: owns the five items, sends each show's crowd past them,
// steps them through the days, months and years, and gives the rating its quality score.
class ConcessionManager {
  public:
    static constexpr int itemCount = 5;

    explicit ConcessionManager(Game& game);

    void initConcessions();
    void concessionsNextDay();
    void concessionsNextMonth();
    void concessionsNextYear();
    void doConcessionBusiness(int crowd);
    int getQualityScore() const;

    void setItemQuality(int item, int quality);
    void setItemPrice(int item, double price);
    void setItemBuyQuant(int item, int units);
    // The month's order of the five items together, at their base costs.
    double monthlyOrderCost() const;
    void rebuildAllTables();
    void showTotalMonthlyCost();
    void showSalesTotals();
    void showLastMonthIncome();

    void saveConcessions(LineWriter& out) const;
    void loadConcessions(LineReader& in);

    // Item 0 to 4; any other number is a bounds error.
    Concession& item(int index);
    const Concession& item(int index) const;

    // What the totals' labels hold since the stand last showed them.
    double shownTotalMyCost() const { return shownTotalMyCost_; }
    int shownTotalSold() const { return shownTotalSold_; }
    double shownTotalProfit() const { return shownTotalProfit_; }
    double shownIncomeLastMonth() const { return shownIncomeLastMonth_; }

  private:
    Game& game_;
    std::array<Concession, itemCount> items_;

    // What the labels hold since the stand last showed them.
    double shownTotalMyCost_ = 0;
    int shownTotalSold_ = 0;
    double shownTotalProfit_ = 0;
    double shownIncomeLastMonth_ = 0;
};

} // namespace zorvane
