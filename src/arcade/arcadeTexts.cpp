#include "arcade/arcadeTexts.h"

#include "arcade/arcadeManager.h"
#include "core/Toolbox.h"

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
    const arcadeRoom& room = arcades.room;
    ArcadeDetails d;
    d.num = m.getNum();
    d.name = m.getName();
    d.pop = digitsOnly(std::to_string(m.Pop));
    d.age = digitsOnly(std::to_string(m.Age)) + " months";
    d.broken = m.IamBroke;
    d.condition = m.IamBroke ? "Broken" : "Working";
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

} // namespace zorvane
