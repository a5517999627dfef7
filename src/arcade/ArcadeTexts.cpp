#include "arcade/ArcadeTexts.h"

#include "arcade/arcadeManager.h"
#include "core/Text.h"

#include <cmath>

namespace zorvane {

std::vector<std::array<std::string, 3>> arcadeBuyGrid(const arcadeManager& arcades) {
    std::vector<std::array<std::string, 3>> rows;
    if (arcades.buyGames.empty())
        return rows;
    rows.push_back({"Game Title", "Popularity", "Price"});
    for (const auto& title : arcades.buyGames)
        rows.push_back({title->getName(), digitsOnly(std::to_string(title->getPop())),
                        formatMoney(title->getCost())});
    return rows;
}

ArcadeDetails arcadeDetails(const arcadeManager& arcades) {
    const arcade& m = arcades.myGameAt(arcades.detailsNum);
    const ArcadeRoom& room = arcades.room;
    ArcadeDetails d;
    d.num = m.getNum();
    d.name = m.getName();
    d.pop = digitsOnly(std::to_string(m.Pop));
    d.age = digitsOnly(std::to_string(m.Age)) + " months";
    d.broken = m.IamBroke;
    d.condition = m.IamBroke ? "Broken" : "Working";
    d.conditionBack = m.IamBroke ? arcadeConditionBroken : arcadeConditionWorking;
    d.paid = formatMoney(m.OriginalPrice);
    d.repairs = formatMoney(m.RepairBillsTotal);
    d.plays = numberText(m.TotalPlays);
    d.income = formatMoney(m.Income);
    d.profit = formatMoney(m.totalProfit());
    d.value = formatMoney(m.getPrice());
    d.priceIndex = m.PricePerPlay;
    d.style = m.CabinetImageFileNumber;
    d.picture = room.exists(m.getNum()) ? room.cabinet(m.getNum()).picture : std::string();
    return d;
}

int arcadeSliderX(double trackLeft, double trackWidth, int style, int images) {
    if (images < 1)
        return static_cast<int>(std::floor(trackLeft));
    return static_cast<int>(std::floor((trackWidth + trackLeft) * style / images));
}

int arcadeSliderStyle(double x, double trackRight, int images) {
    if (images < 1)
        return 0;
    // A track of no width (or a handle at its very start) stands for the first style.
    const double raw = trackRight > 0 ? std::floor(x * images / trackRight) : 1.0;
    if (!(raw >= 1)) // NaN too
        return 1;
    return raw > images ? images : static_cast<int>(raw);
}

} // namespace zorvane
