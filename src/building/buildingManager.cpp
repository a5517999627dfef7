#include "building/buildingManager.h"

namespace zorvane {

void buildingManager::initBuilding() { }
void buildingManager::buildingNextDay() { }
void buildingManager::buildingNextMonth() { }
void buildingManager::buildingNextYear() { }

} // namespace zorvane
