#include "concessions/Concession.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

#include <algorithm>

namespace zorvane {

// Each year the base cost of a unit grows by the inflation percent; the price stays.
void Concession::inflate() {
    cost = game_.math.inflation * 0.01 * cost + cost;
}

// A new day: today's sales and profit start from nothing.
void Concession::nextDay() {
    todaysprofit = 0;
    todayssold = 0;
    updateMyListing();
}

// Sets the item up from its math keys; stock and the counters start at 0.
void Concession::init(int number, const std::string& itemName, int itemQuality, double itemPrice,
                      double itemCost, int unitsPerMonth) {
    num = number;
    name = itemName;
    quality = itemQuality;
    price = itemPrice;
    cost = itemCost;
    buypermonth = unitsPerMonth;
    const auto n = static_cast<std::size_t>(num);
    const auto& texts = game_.math.concessqual.at(n);
    qualityList.assign(texts.begin(), texts.begin() + 3);
    picture = game_.math.imgconcession.at(n);
    updateMyListing();
}

// The month's turn: this month's sales become last month's; the month's profit is cleared
// (the stand has read it just before).
void Concession::nextMonth() {
    lastmonthsales = thismonthsales;
    thismonthsales = 0;
    lastmonthincome = 0;
}

// One sale. The ledger receives the margin, not the price, although the stock was paid for
// at the month's turn: kept on purpose, the unit cost is thus charged twice.
void Concession::sell() {
    if (stock <= 0) {
        // All five items share this once-a-day slot: only the first one short is told.
        if (!game_.logSlotUsed(5))
            game_.gameLog("I was unable to sell any " + name + " today, out of stock!!!", 5);
        return;
    }
    stock -= 1;
    const double profit = price - getUnitCost();
    todaysprofit += profit;
    todayssold += 1;
    lastmonthincome += profit;
    thismonthsales += 1;
    game_.finances.earn(profit, "concessions");
    updateMyListing();
}

// One customer's decision: the chance falls by concessconsidercost percent for each cent of
// price and moves by the quality's bonus; a percent roll at or below it buys, stock or not.
void Concession::sell_consider() {
    sell_consider(considerChance());
}

double Concession::considerChance() const {
    if (quality < 0 || quality > 3)
        throw GameError(GameError::Kind::Bounds, "subscript out of range: quality " +
                                                     std::to_string(quality) + " of " + name);
    return 100 - price * 100 * game_.math.concessconsidercost +
           game_.math.concessconsiderqual[static_cast<std::size_t>(quality)];
}

void Concession::sell_consider(double chance) {
    const int roll = game_.rng.percentRoll();
    if (roll <= chance)
        sell();
}

// The item's "Prices" row has changed; the "Stock" row and the stand's total follow.
void Concession::updateMyListing() {
    game_.screen().refresh(View::ConcessionListing);
    buildTables();
}

// The player picks a quality: clamped to 0 to 2.
void Concession::setQuality(int value) {
    quality = std::clamp(value, 0, 2);
    updateMyListing();
}

// A price is taken only above 0; the row is shown again either way, so a refused entry
// reappears as the old price.
void Concession::setPrice(double value) {
    if (value > 0)
        price = value;
    updateMyListing();
}

void Concession::buildTables() {
    game_.screen().refresh(View::ConcessionTables);
    game_.concessions.showTotalMonthlyCost();
}

// The monthly order, stored with no range test: a negative order is accepted and makes
// the stock fall at the month's turn.
void Concession::setBuyQuant(int units) {
    buypermonth = units;
    game_.concessions.rebuildAllTables();
}

// The month's purchase: all of the order or nothing.
void Concession::buyConcessions() {
    const double bill = getMyMonthlyCost();
    if (game_.finances.spend(bill, "concessions"))
        stock = stock + buypermonth;
    else
        // Shared once-a-day slot: when money runs out, only the first refusal is told.
        game_.gameLog("Unable to buy " + name + " this month, not enough money!!", 6);
    buildTables();
}

void Concession::saveSelf(LineWriter& out) const {
    out << "<concession num=" + std::to_string(num) + ">";
    out << "name=" + name;
    out << "quality=" + std::to_string(quality);
    out << "price=" + numberText(price);
    out << "cost=" + numberText(cost);
    out << "stock=" + std::to_string(stock);
    out << "lastmonthsales=" + std::to_string(lastmonthsales);
    out << "thismonthsales=" + std::to_string(thismonthsales);
    out << "buypermonth=" + std::to_string(buypermonth);
    out << "lastmonthincome=" + numberText(lastmonthincome);
    out << "todaysprofit=" + numberText(todaysprofit);
    out << "todayssold=" + std::to_string(todayssold);
    out << "</concession>";
}

// Reads the item's block behind its opening line, up to the line that begins "</". The
// quality is taken as written, not clamped.
void Concession::loadSelf(LineReader& in) {
    readSection(in, [&](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        if (key == "name") {
            name = value;
            return;
        }
        const auto v = [&value] { return leadingNumber(value); };
        if (key == "quality")
            quality = toInt16(v());
        else if (key == "price")
            price = v();
        else if (key == "cost")
            cost = v();
        else if (key == "stock")
            stock = toInt16(v());
        else if (key == "lastmonthsales")
            lastmonthsales = toInt16(v());
        else if (key == "thismonthsales")
            thismonthsales = toInt16(v());
        else if (key == "buypermonth")
            buypermonth = toInt16(v());
        else if (key == "lastmonthincome")
            lastmonthincome = v();
        else if (key == "todaysprofit")
            todaysprofit = v();
        else if (key == "todayssold")
            todayssold = toInt16(v());
    });
    updateMyListing();
}

// Even the lowest quality carries one step of the quality surcharge.
double Concession::getUnitCost() const {
    return cost + add16(quality, 1) * game_.math.concessqualcost;
}

} // namespace zorvane
