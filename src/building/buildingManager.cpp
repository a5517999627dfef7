#include "building/buildingManager.h"

#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

namespace zorvane {

namespace {

constexpr int buildingMode = 7; // the building screen's mode number

// A whole number as the game prints it in labels and messages: digits only, no blank.
std::string digits(double value) {
    return digitsOnly(numberText(value));
}

} // namespace

// A new theater: the house as the math file describes it, rented, in order.
void buildingManager::initBuilding() {
    condition = game_.math.buildingconditioninit;
    IamBroken = false;
    rent = game_.math.buildingrent;
    seating = game_.math.buildingseating;
    computeRemodelCost();
    showBuilding();
}

// A repair costs the wear times the repair key, and only while the house is broken; a
// renovation costs the wear times the renovation key, broken or not.
void buildingManager::computeCosts() {
    const int wear = sub16(100, condition);
    repairCost = IamBroken ? mul16(wear, game_.math.buildingrepaircost) : 0;
    renovateCost = (100.0 - condition) * static_cast<double>(game_.math.buildingrenovationcost);
}

// Every extension costs more than the last: the cost follows the seats already there.
void buildingManager::computeRemodelCost() {
    remodelcost = seating * game_.math.buildingremodelcost;
}

// The house gets dearer with every year of the theater.
double buildingManager::getPurchasePrice() const {
    return game_.math.buildingpurchasebase +
           game_.calendar.getCurrentYear() * game_.math.buildingpurchaseinc;
}

void buildingManager::showBuilding() {
    computeCosts();
    game_.screen().refresh(View::Building);
}

// The house breaks down: no business until it is repaired or renovated. The building
// screen comes to the front and the clock stops, remembering its speed.
void buildingManager::breakDown() {
    computeCosts();
    IamBroken = true;
    showBuilding();
    game_.gameLog(" !!!  YOUR THEATER HAS BROKE DOWN !!! ", 0);
    game_.switchMode(buildingMode);
    game_.setSpeed(-1);
}

// One percent roll a month against the wear times the breakdown key. A house at 100 cannot
// break; a broken house is rolled for too, and breaks down again.
void buildingManager::rollBuildingBreakdown() {
    const int roll = game_.rng.percentRoll();
    const double threshold = (100.0 - condition) * game_.math.buildingbreakdownchance;
    if (roll <= threshold)
        breakDown();
}

// Rent is paid at the month's turn. A payment clears all gathered rent and brings it back to
// the plain key; a refusal adds the key to the debt and warns, and a refusal after more than
// `buildingrentgrace` warnings in a row loses the game.
void buildingManager::payRent() {
    if (rent < 1.0)
        return; // bought: no rent
    if (game_.finances.spend(rent, "")) {
        totalRentPaid += rent;
        monthsWithoutPayingRent = 0;
        rent = game_.math.buildingrent;
        return;
    }
    if (monthsWithoutPayingRent <= game_.math.buildingrentgrace) {
        rent += game_.math.buildingrent;
        ++monthsWithoutPayingRent;
        game_.gameLog("You have not paid your rent this month, if you go " +
                          digits(game_.math.buildingrentgrace) +
                          " month(s) without paying rent you will lose this game!",
                      0);
        return;
    }
    game_.showLose(LoseReason::Rent);
}

// Back in business: the sign goes and the clock returns to its remembered speed. Runs after
// any paid renovation, broken or not.
void buildingManager::backInOrder() {
    IamBroken = false;
    showBuilding();
    game_.setSpeed(-2);
}

// "Remodel": fifty more seats (by the key), up to the maximum, and some fresh paint.
void buildingManager::remodel() {
    const int seats = add16(game_.math.buildingremodelseats, seating);
    if (seats > game_.math.buildingseatingmax) {
        game_.gameLog("You cannot add on to your building any more, sorry!", 0);
        return;
    }
    if (!game_.finances.spend(remodelcost, "")) {
        game_.gameLog("You can't afford to remodel!  Perhaps you could take out a loan?", 0);
    } else {
        seating = seats;
        computeRemodelCost();
        condition = toInt16(condition + game_.math.buildingremodelcondition);
        if (condition > 100)
            condition = 100;
        game_.gameLog("Theater remodelled, you now have a seating capacity of " + digits(seating) +
                          " and your building condition has been increased to " +
                          digits(condition) + "%",
                      0);
    }
    showBuilding();
}

// "Repair": only a broken house can be repaired. It works again but stays as worn as it was.
void buildingManager::repairBuilding() {
    if (!IamBroken) {
        game_.gameLog("Your theater is not out of order, no repairs are needed.", 0);
        return;
    }
    if (!game_.finances.spend(repairCost, "")) {
        game_.gameLog("You cannot afford to repair your theater, consider taking out a loan.", 0);
        return;
    }
    backInOrder();
}

// "Renovate": the condition goes to 100 and the house works again.
void buildingManager::renovateBuilding() {
    if (condition >= 100) {
        game_.gameLog("Your theater is already in good condition.", 0);
        return;
    }
    if (!game_.finances.spend(renovateCost, "")) {
        game_.gameLog(
            "You cannot afford to renovate, consider taking out a loan or just repairing.", 0);
        return;
    }
    condition = 100;
    backInOrder();
}

// "Buy building": no more rent. Gathered unpaid rent disappears with the purchase.
// Kept on purpose: the screen is not refreshed, so it shows the old rent until the next one.
void buildingManager::purchaseBuilding() {
    if (rent < 1.0) {
        game_.gameLog("You have already purchased your building, you are no longer paying rent!",
                      0);
        return;
    }
    if (game_.finances.spend(getPurchasePrice(), "")) {
        rent = 0;
        game_.gameLog("You have purchased your theater!  No more rent for you!", 0);
    } else {
        game_.gameLog("You cannot yet afford to buy your theater, either continue paying rent or "
                      "take out a loan.",
                      0);
    }
}

void buildingManager::buildingNextDay() {
    if (game_.screen().buildingVisible())
        showBuilding();
}

// The month's turn: the rent rises by inflation (every month, unlike other prices), the house
// wears, it may break down, and then the rent is due.
void buildingManager::buildingNextMonth() {
    rent = game_.math.inflation * 0.01 * rent + rent;
    condition = toInt16(condition - game_.math.buildingconditiondrop);
    rollBuildingBreakdown();
    payRent();
    showBuilding();
}

void buildingManager::buildingNextYear() {
    showBuilding();
}

void buildingManager::saveBuilding(LineWriter& out) const {
    out << "<building>";
    out << "condition=" + numberText(condition);
    out << "repairCost=" + numberText(repairCost);
    out << "renovateCost=" + numberText(renovateCost);
    out << "rent=" + numberText(rent);
    out << "totalRentPaid=" + numberText(totalRentPaid);
    out << "monthsWithoutPayingRent=" + numberText(monthsWithoutPayingRent);
    out << "seating=" + numberText(seating);
    // Kept on purpose: no "=" here, so the reader skips the line (see loadBuilding).
    out << "remodelcost" + numberText(remodelcost);
    out << (IamBroken ? "IamBroken=1" : "IamBroken=0");
    out << "</building>";
}

// Reads the section as saved games have always been read. Two lines are never taken: the
// remodel cost (written without "=") and the broken flag (a lower-cased key is compared with
// "IamBroken"), so both keep the running game's values. A house broken at that point breaks
// down again on the load.
void buildingManager::loadBuilding(LineReader& in) {
    readSection(in, [this](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        const auto v = [&value] { return leadingNumber(value); };
        if (key == "condition")
            condition = toInt16(v());
        else if (key == "repaircost")
            repairCost = toInt16(v());
        else if (key == "renovatecost")
            renovateCost = v();
        else if (key == "rent")
            rent = v();
        else if (key == "totalrentpaid")
            totalRentPaid = v();
        else if (key == "monthswithoutpayingrent")
            monthsWithoutPayingRent = toInt16(v());
        else if (key == "seating")
            seating = toInt16(v());
        else if (key == "IamBroken") // never matches: the key is lower case
            IamBroken = (v() == 1);
    });
    showBuilding();
    if (IamBroken) {
        breakDown();
        showBuilding();
    }
}

} // namespace zorvane
