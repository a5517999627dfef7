#include "Subsystems.h"

namespace zorvane::sim {

void addPromoCommands(CommandTable&) {}
void addReputationState(Game&, nlohmann::json&) {}

} // namespace zorvane::sim
