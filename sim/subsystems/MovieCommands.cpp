#include "Subsystems.h"

namespace zorvane::sim {

void addMovieCommands(CommandTable&) {}
void addMovieState(Game&, nlohmann::json&) {}

} // namespace zorvane::sim
