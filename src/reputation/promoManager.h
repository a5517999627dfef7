#pragma once
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class promoManager {
public:
    explicit promoManager(Game& game) : game_(game) {}

    void promosSetup();
    void promosNextDay();
    void promosNextYear();
    int getPromoPoints() const { return 0; }
    double getPromoCost() const { return 0; }

    void savePromotions(LineWriter& out) const;
    void loadPromotions(LineReader& in);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
