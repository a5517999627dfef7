#include "concessions/ConcessionManager.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

namespace zorvane {

ConcessionManager::ConcessionManager(Game& game)
    : game_(game), items_{Concession(game), Concession(game), Concession(game), Concession(game),
                          Concession(game)} {}

Concession& ConcessionManager::item(int index) {
    if (index < 0 || index >= itemCount)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: concession item " + std::to_string(index));
    return items_[static_cast<std::size_t>(index)];
}

const Concession& ConcessionManager::item(int index) const {
    return const_cast<ConcessionManager*>(this)->item(index);
}

// Sets the five items up from the math file, then runs the whole month step once: the game
// starts with the first month's stock ordered and paid for out of the starting funds.
void ConcessionManager::initConcessions() {
    const MathVars& m = game_.math;
    for (int i = 0; i < itemCount; ++i) {
        const auto n = static_cast<std::size_t>(i);
        items_[n].init(i, m.concessname[n], m.concessqualinit[n], m.concessprice[n],
                       m.concesscost[n], m.concessbuy[n]);
    }
    concessionsNextMonth();
}

// Kept on purpose: the arguments of getPercent are swapped (key * 100 / crowd), so the
// count falls as the crowd grows: 100 people send percentconcessions visitors, 200 half as
// many. The count is rounded half to even; a crowd of 0 is a division by zero.
// A show's crowd passes the stand: each visitor considers every item once, in item order,
// so a visitor buys at most one of each.
void ConcessionManager::doConcessionBusiness(int crowd) {
    const int visitors = visitorsOf(crowd, game_.math.percentconcessions);
    if (visitors < 1)
        return;
    // The first customer meets every item as it stands; the rest of the crowd meets the
    // same chances, so they are kept rather than worked out again for every customer.
    std::array<double, itemCount> chances{};
    for (std::size_t i = 0; i < items_.size(); ++i) {
        chances[i] = items_[i].considerChance();
        items_[i].sell_consider(chances[i]);
    }
    for (int v = 1; v < visitors; ++v)
        for (std::size_t i = 0; i < items_.size(); ++i)
            items_[i].sell_consider(chances[i]);
    for (Concession& c : items_)
        c.updateMyListing();
    showSalesTotals();
}

void ConcessionManager::concessionsNextDay() {
    for (Concession& c : items_)
        c.nextDay();
}

// The month's turn: the month's income is shown before the items clear it; then each item
// buys its order in item order, so when money runs out the later items go without.
void ConcessionManager::concessionsNextMonth() {
    showLastMonthIncome();
    for (Concession& c : items_)
        c.buyConcessions();
    for (Concession& c : items_)
        c.nextMonth();
}

void ConcessionManager::concessionsNextYear() {
    for (Concession& c : items_)
        c.inflate();
}

// The stand's share of the rating: 50 for each item of quality 1, 100 for each of quality
// 2, divided by 4 and floored. Kept as it is: the divisor is 4 for five items, so the
// score runs from 0 to 125.
int ConcessionManager::getQualityScore() const {
    int score = 0;
    for (const Concession& c : items_) {
        if (c.quality == 1)
            score = add16(score, 50);
        else if (c.quality == 2)
            score = add16(score, 100);
    }
    return floorInt16(score / 4.0);
}

void ConcessionManager::setItemQuality(int index, int quality) {
    item(index).setQuality(checkedInt16(quality));
}

void ConcessionManager::setItemPrice(int index, double price) {
    item(index).setPrice(price);
}

void ConcessionManager::setItemBuyQuant(int index, int units) {
    item(index).setBuyQuant(checkedInt16(units));
}

void ConcessionManager::rebuildAllTables() {
    for (Concession& c : items_)
        c.buildTables();
    showTotalMonthlyCost();
}

void ConcessionManager::showTotalMonthlyCost() {
    game_.screen().refresh(View::ConcessionTotals);
}

// The totals row after a crowd. Its cost figure sums the base costs, without the quality
// surcharge that each row's "Your Cost" shows; the difference stays.
void ConcessionManager::showSalesTotals() {
    double myCost = 0, profit = 0;
    int sold = 0;
    for (const Concession& c : items_) {
        myCost += c.getMyCost();
        sold = add16(sold, c.getTodaysSold());
        profit += c.getTodaysProfit();
    }
    shownTotalMyCost_ = myCost;
    shownTotalSold_ = sold;
    shownTotalProfit_ = profit;
    game_.screen().refresh(View::ConcessionTotals);
}

void ConcessionManager::showLastMonthIncome() {
    double income = 0;
    for (const Concession& c : items_)
        income += c.getLastMonthIncome();
    shownIncomeLastMonth_ = income;
    game_.screen().refresh(View::ConcessionTotals);
}

void ConcessionManager::saveConcessions(LineWriter& out) const {
    out << "<concessions>";
    for (const Concession& c : items_)
        c.saveSelf(out);
    out << "</concessions>";
}

// Reads the section up to "</concessions>": each "<concession num=N>" line hands its block
// to item N. A number outside 0 to 4 is a bounds error.
void ConcessionManager::loadConcessions(LineReader& in) {
    static const std::string blockStart = "<concession num=";
    std::string line;
    while (in.readLine(line)) {
        const std::string lower = toLower(line);
        if (lower == "</concessions>")
            break;
        if (lower.rfind(blockStart, 0) != 0)
            continue;
        const int n = toInt16(leadingNumber(lower.substr(blockStart.size())));
        if (n < 0 || n >= itemCount)
            throw GameError(GameError::Kind::Bounds,
                            in.where() + "concession item " + std::to_string(n) + " out of range");
        item(n).loadSelf(in);
    }
}

double ConcessionManager::monthlyOrderCost() const {
    double monthly = 0;
    for (const Concession& c : items_)
        monthly += c.getMyMonthlyCost();
    return monthly;
}

} // namespace zorvane
