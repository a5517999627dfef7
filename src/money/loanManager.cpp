#include "money/loanManager.h"

namespace zorvane {

void loanManager::loansSetDefaults() { }
void loanManager::loansNextMonth() { }

} // namespace zorvane
