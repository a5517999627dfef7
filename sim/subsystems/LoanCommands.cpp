#include "Subsystems.h"

namespace zorvane::sim {

void addLoanCommands(CommandTable&) {}
void addLoanState(Game&, nlohmann::json&) {}

} // namespace zorvane::sim
