#pragma once
#include <array>
#include <cstdint>
#include <string>

namespace zorvane {

class buildingManager;

// What the building screen shows, built from the game state and nothing else: the window
// only puts these into its controls and calls the manager's operation of a pressed button.

// lblBuildingDesc: the fixed descriptions beside the nine values.
inline constexpr std::array<const char*, 9> buildingDescriptions{"Building Age:",
                                                                 "Current Building Condition:",
                                                                 "Repair Cost:",
                                                                 "Renovation Cost:",
                                                                 "Monthly Rent:",
                                                                 "Total rent paid so far:",
                                                                 "Building purchase price:",
                                                                 "Seating Capacity:",
                                                                 "Remodel Cost:"};

// lblBuildingValue as showBuilding fills it, and whether the out-of-order sign (imgOOO)
// stands over the house.
struct BuildingTexts {
    std::array<std::string, 9> values;
    bool outOfOrder = false;
};
BuildingTexts buildingTexts(const buildingManager& building, int yearsOld);

// The four buttons, in the order the screen lays them out. Each presses one operation:
// remodel, renovateBuilding, repairBuilding, purchaseBuilding. The remodel tip is a fixed
// text: it says 50 seats whatever buildingremodelseats adds.
struct BuildingButton {
    const char* control;
    const char* caption;
    const char* tip;
};
inline constexpr std::array<BuildingButton, 4> buildingButtons{{
    {"lbcRemodel", "Remodel", "Will increase your seating capacity by 50 seats"},
    {"lbcRenovate", "Renovate", "Will repair your building as well as set your condition to 100%"},
    {"lbcRepair", "Repair", "Will repair your building and get you back up and running"},
    {"lbcPurchase", "Buy building", "Buy your building and stop paying rent on it!"},
}};
inline constexpr std::uint32_t buildingButtonColour = 0x80FF80; // blue, green, red
inline constexpr const char* buildingHeader = "Building";

} // namespace zorvane
