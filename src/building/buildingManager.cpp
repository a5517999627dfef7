#include "building/buildingManager.h"

namespace zorvane {

void buildingManager::initBuilding() { }
void buildingManager::buildingNextDay() { }
void buildingManager::buildingNextMonth() { }
void buildingManager::buildingNextYear() { }
void buildingManager::saveBuilding(LineWriter&) const { }
void buildingManager::loadBuilding(LineReader&) { }

} // namespace zorvane
