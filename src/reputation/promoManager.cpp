#include "reputation/promoManager.h"

namespace zorvane {

void promoManager::promosSetup() { }
void promoManager::promosNextDay() { }
void promoManager::promosNextYear() { }
void promoManager::savePromotions(LineWriter&) const { }
void promoManager::loadPromotions(LineReader&) { }

} // namespace zorvane
