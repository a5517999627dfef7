#pragma once
#include "core/Numbers.h"

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The theater's house: its seats, its wear, whether it is out of order, and what the player
// pays for it. A worn house breaks down at random and no business is done while it is
// broken. Rent is due monthly until the house is bought; rent unpaid too long loses the game.
class buildingManager {
  public:
    explicit buildingManager(Game& game) : game_(game) {}

    Int16 condition;         // percent, 100 is perfect; no lower limit
    Int16 repairCost;        // 0 unless broken
    double renovateCost = 0; // what bringing the condition to 100 costs
    double rent = 0;         // due at the next month's turn; below 1 once the house is bought
    double totalRentPaid = 0;
    Int16 monthsWithoutPayingRent;
    Int16 seating;          // the cap on a showtime's crowd
    double remodelcost = 0; // the next extension's cost
    bool IamBroken = false; // out of order

    void initBuilding();
    void computeCosts();
    void computeRemodelCost();
    double getPurchasePrice() const;
    void showBuilding();
    void breakDown();
    void rollBuildingBreakdown();
    void payRent();
    void backInOrder();

    // The building screen's four buttons.
    void remodel();
    void repairBuilding();
    void renovateBuilding();
    void purchaseBuilding();

    void buildingNextDay();
    void buildingNextMonth();
    void buildingNextYear();

    bool isInOrder() const { return !IamBroken; }
    int getSeating() const { return seating; }
    int getCondition() const { return condition; }
    double getRent() const { return rent; }

    void saveBuilding(LineWriter& out) const;
    void loadBuilding(LineReader& in);

  private:
    Game& game_;
};

} // namespace zorvane
