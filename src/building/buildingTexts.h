#pragma once
#include <array>
#include <string>

namespace zorvane {

class buildingManager;

// What the building screen shows: the nine values beside their fixed descriptions, and
// whether the out-of-order sign stands over the house.
struct BuildingTexts {
    std::array<std::string, 9> values;
    bool outOfOrder = false;
};
// The texts the building screen shows, as `showBuilding` fills them; the first is the
// theater's age, `yearsOld` (the calendar's year).
BuildingTexts buildingTexts(const buildingManager& building, int yearsOld);

} // namespace zorvane
