#pragma once
#include "session/Game.h"

#include <nlohmann/json.hpp>

namespace zorvane::sim {

// The whole game state as one JSON object, keys named as the game's own fields.
nlohmann::json gameState(Game& game);

} // namespace zorvane::sim
