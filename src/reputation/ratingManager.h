#pragma once
#include <string>

namespace zorvane {

class Game;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class ratingManager {
public:
    explicit ratingManager(Game& game) : game_(game) {}

    void ratingSetDefaults();
    void ratingNextDay();
    void ratingNextMonth();
    void ratingNextYear();
    int getRating() const { return 0; }

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
