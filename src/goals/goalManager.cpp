#include "goals/goalManager.h"

namespace zorvane {

void goalManager::loadGoals() { }
void goalManager::goalsNextDay() { }
void goalManager::selectGoal(int) { }
void goalManager::startGoal(int) { }

} // namespace zorvane
