#include "money/loanManager.h"

namespace zorvane {

void loanManager::loansSetDefaults() { }
void loanManager::loansNextMonth() { }
void loanManager::saveLoans(LineWriter&) const { }
void loanManager::loadLoans(LineReader&) { }

} // namespace zorvane
