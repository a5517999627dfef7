#include "Subsystems.h"

namespace zorvane::sim {

void addStaffCommands(CommandTable&) {}
void addStaffState(Game&, nlohmann::json&) {}

} // namespace zorvane::sim
