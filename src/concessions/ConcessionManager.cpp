#include "concessions/ConcessionManager.h"

namespace zorvane {

void ConcessionManager::initConcessions() { }
void ConcessionManager::concessionsNextDay() { }
void ConcessionManager::concessionsNextMonth() { }
void ConcessionManager::concessionsNextYear() { }
void ConcessionManager::doConcessionBusiness(int) { }
void ConcessionManager::saveConcessions(LineWriter&) const { }
void ConcessionManager::loadConcessions(LineReader&) { }

} // namespace zorvane
