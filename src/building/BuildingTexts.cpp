#include "building/BuildingTexts.h"

#include "building/buildingManager.h"
#include "core/Text.h"

namespace zorvane {

namespace {

// A whole number as the labels print it: digits only, so a negative loses its sign.
std::string digits(double value) {
    return digitsOnly(numberText(value));
}

} // namespace

BuildingTexts buildingTexts(const buildingManager& b, int yearsOld) {
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
