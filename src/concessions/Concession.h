#pragma once
#include "core/Numbers.h"

#include <string>
#include <vector>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// One of the five goods of the theater's stand: the player's price, quality, stock and
// monthly order for it. It decides whether one customer buys, and books the sale.
class Concession {
  public:
    explicit Concession(Game& game) : game_(game) {}

    Int16 num;        // item number 0 to 4, also its row of controls
    std::string name; // display name
    Int16 quality;    // 0, 1 or 2
    double price = 0; // what the customer pays
    double cost = 0;  // base cost of one unit; what inflation raises
    Int16 stock;      // units in stock
    Int16 lastmonthsales;
    Int16 thismonthsales;
    Int16 buypermonth;          // units ordered at each month's turn
    double lastmonthincome = 0; // despite its name: the profit of the running month
    double todaysprofit = 0;
    Int16 todayssold;

    std::vector<std::string> qualityList; // filled at set-up from the item's quality texts
    std::string picture;                  // the item's picture, a file of the program's folder

    void inflate();
    void nextDay();
    void init(int number, const std::string& itemName, int itemQuality, double itemPrice,
              double itemCost, int unitsPerMonth);
    void nextMonth();
    void sell();
    void sell_consider();
    // The same decision with the chance already worked out by `considerChance`: a crowd's
    // price and quality stay put, so the stand works each item's chance out once a crowd.
    void sell_consider(double chance);
    double considerChance() const;
    void updateMyListing();
    void setQuality(int value);
    int getQuality() const { return quality; }
    void setPrice(double value);
    void buildTables();
    double getMyMonthlyCost() const { return buypermonth * cost; }
    double getMyCost() const { return cost; }
    int getTodaysSold() const { return todayssold; }
    double getTodaysProfit() const { return todaysprofit; }
    double getLastMonthIncome() const { return lastmonthincome; }
    void setBuyQuant(int units);
    void buyConcessions();
    void saveSelf(LineWriter& out) const;
    void loadSelf(LineReader& in);

    // What one unit costs the theater: the base cost with its quality surcharge.
    double getUnitCost() const;

  private:
    Game& game_;
};

} // namespace zorvane
