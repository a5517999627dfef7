#include "building/buildingTexts.h"

#include "building/buildingManager.h"
#include "core/Toolbox.h"

namespace zorvane {

BuildingTexts buildingTexts(const buildingManager& b, int yearsOld) {
    const auto digits = [](double value) { return digitsOnly(numberText(value)); };
    BuildingTexts t;
    t.values = {digits(yearsOld) + " Years",
                digits(b.condition) + " %",
                formatMoneyShort(b.repairCost),
                formatMoneyShort(b.renovateCost),
                formatMoneyShort(b.rent),
                formatMoneyShort(b.totalRentPaid),
                formatMoneyShort(b.getPurchasePrice()),
                digits(b.seating),
                formatMoneyShort(b.remodelcost)};
    t.outOfOrder = b.IamBroken;
    return t;
}

} // namespace zorvane
