#include "reputation/ratingManager.h"

namespace zorvane {

void ratingManager::ratingSetDefaults() { }
void ratingManager::ratingNextDay() { }
void ratingManager::ratingNextMonth() { }
void ratingManager::ratingNextYear() { }
void ratingManager::saveRatings(LineWriter&) const { }
void ratingManager::loadRatings(LineReader&) { }

} // namespace zorvane
