#pragma once
#include <string>

namespace zorvane {

class Game;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class goalManager {
public:
    explicit goalManager(Game& game) : game_(game) {}

    void loadGoals();
    void goalsNextDay();
    void selectGoal(int index);
    void startGoal(int index);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
