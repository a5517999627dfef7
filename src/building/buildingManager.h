#pragma once
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class buildingManager {
public:
    explicit buildingManager(Game& game) : game_(game) {}

    void initBuilding();
    void buildingNextDay();
    void buildingNextMonth();
    void buildingNextYear();
    bool isInOrder() const { return true; }
    int getSeating() const { return 0; }
    int getCondition() const { return 0; }
    double getRent() const { return 0; }

    void saveBuilding(LineWriter& out) const;
    void loadBuilding(LineReader& in);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
