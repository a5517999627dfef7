#pragma once
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class arcadeManager {
public:
    explicit arcadeManager(Game& game) : game_(game) {}

    void initArcades();
    void arcadesNextMonth();
    void arcadesNextYear();
    void doArcadeBusiness(int);
    int getMachineCount() const { return 0; }
    int getAveragePop() const { return 0; }

    void saveArcades(LineWriter& out) const;
    void loadArcades(LineReader& in);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
