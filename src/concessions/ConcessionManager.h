#pragma once
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class ConcessionManager {
public:
    explicit ConcessionManager(Game& game) : game_(game) {}

    void initConcessions();
    void concessionsNextDay();
    void concessionsNextMonth();
    void concessionsNextYear();
    void doConcessionBusiness(int);
    int getQualityScore() const { return 0; }

    void saveConcessions(LineWriter& out) const;
    void loadConcessions(LineReader& in);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
