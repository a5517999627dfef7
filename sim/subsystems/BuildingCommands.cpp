#include "Subsystems.h"

namespace zorvane::sim {

void addBuildingCommands(CommandTable&) {}
void addBuildingState(Game&, nlohmann::json&) {}

} // namespace zorvane::sim
