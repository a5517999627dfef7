#include "Subsystems.h"

namespace zorvane::sim {

void addArcadeCommands(CommandTable&) {}
void addArcadeState(Game&, nlohmann::json&) {}

} // namespace zorvane::sim
