#include "Subsystems.h"

namespace zorvane::sim {

void addFileCommands(CommandTable&) {}

} // namespace zorvane::sim
