#pragma once
#include <string>

namespace zorvane {

class Game;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class SavedGame {
public:
    explicit SavedGame(Game& game) : game_(game) {}

    bool saveGame();
    void loadGame(const std::string&);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
