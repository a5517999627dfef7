#include "persistence/SavedGame.h"

namespace zorvane {

bool SavedGame::saveGame() { return false; }
void SavedGame::loadGame(const std::string&) { }

} // namespace zorvane
