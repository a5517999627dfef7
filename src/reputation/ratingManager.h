#pragma once
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class ratingManager {
public:
    explicit ratingManager(Game& game) : game_(game) {}

    void ratingSetDefaults();
    void ratingNextDay();
    void ratingNextMonth();
    void ratingNextYear();
    int getRating() const { return 0; }

    void saveRatings(LineWriter& out) const;
    void loadRatings(LineReader& in);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
