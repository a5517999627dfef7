#pragma once
#include <string>

namespace zorvane {

class Game;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class promoManager {
public:
    explicit promoManager(Game& game) : game_(game) {}

    void promosSetup();
    void promosNextDay();
    void promosNextYear();

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
