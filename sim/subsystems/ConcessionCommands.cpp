#include "Subsystems.h"

namespace zorvane::sim {

void addConcessionCommands(CommandTable&) {}
void addConcessionState(Game&, nlohmann::json&) {}

} // namespace zorvane::sim
