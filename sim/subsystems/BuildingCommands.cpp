#include "Subsystems.h"

namespace zorvane::sim {

// The building screen's four buttons.
void addBuildingCommands(CommandTable& t) {
    t["repair"] = {0, 0, [](CommandContext& c, const Args&) { c.game.building.repairBuilding(); }};
    t["renovate"] = {0, 0,
                     [](CommandContext& c, const Args&) { c.game.building.renovateBuilding(); }};
    t["remodel"] = {0, 0, [](CommandContext& c, const Args&) { c.game.building.remodel(); }};
    t["buybuilding"] = {0, 0,
                        [](CommandContext& c, const Args&) { c.game.building.purchaseBuilding(); }};
}

// The building as the saved game holds it.
void addBuildingState(Game& game, nlohmann::json& state) {
    const buildingManager& b = game.building;
    state["building"] = {{"condition", static_cast<int>(b.condition)},
                         {"repairCost", static_cast<int>(b.repairCost)},
                         {"renovateCost", b.renovateCost},
                         {"rent", b.rent},
                         {"totalRentPaid", b.totalRentPaid},
                         {"monthsWithoutPayingRent", static_cast<int>(b.monthsWithoutPayingRent)},
                         {"seating", static_cast<int>(b.seating)},
                         {"remodelcost", b.remodelcost},
                         {"IamBroken", b.IamBroken}};
}

} // namespace zorvane::sim
