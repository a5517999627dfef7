#pragma once
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class loanManager {
public:
    explicit loanManager(Game& game) : game_(game) {}

    void loansSetDefaults();
    void loansNextMonth();
    double getBalance() const { return 0; }
    double getCreditScore() const { return 0; }

    void saveLoans(LineWriter& out) const;
    void loadLoans(LineReader& in);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
