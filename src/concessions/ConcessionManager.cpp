#include "concessions/ConcessionManager.h"

namespace zorvane {

void ConcessionManager::initConcessions() { }
void ConcessionManager::concessionsNextDay() { }
void ConcessionManager::concessionsNextMonth() { }
void ConcessionManager::concessionsNextYear() { }
void ConcessionManager::doConcessionBusiness(int) { }

} // namespace zorvane
