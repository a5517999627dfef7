#include "Subsystems.h"

namespace zorvane::sim {

void addGoalCommands(CommandTable&) {}
void addGoalState(Game&, nlohmann::json&) {}

} // namespace zorvane::sim
