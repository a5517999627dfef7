#include "reputation/promoManager.h"

namespace zorvane {

void promoManager::promosSetup() { }
void promoManager::promosNextDay() { }
void promoManager::promosNextYear() { }

} // namespace zorvane
