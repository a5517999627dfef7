#pragma once
#include "core/Numbers.h"

#include <array>
#include <string>
#include <string_view>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The theater's money. Every payment goes through `spend` and every income through `earn`:
// they are the only two operations that move money, and `spend` refuses rather than
// overdraws. None of the totals is ever reset: they run from the start of the game.
class Finances {
  public:
    explicit Finances(Game& game) : game_(game) {}

    double funds = 0;
    double totalspent = 0;
    double totalincome = 0;
    std::array<double, 13> histfunds{}; // funds at each month's end of the running year
    double deppromo = 0;
    double deplabor = 0;
    double depmovie = 0;
    double deparcade = 0; // the spending word is "arcades", with an s
    double depconcessions = 0;
    double deploan = 0;
    double incdepmovie = 0;
    double incdeparcade = 0; // the income word is "arcade", without one
    double incdepconcessions = 0;

    void setFunds(double amount);
    double getFunds() const { return funds; }
    // Pays, or refuses (false, nothing changes) when less than 1 would remain.
    bool spend(double amount, std::string_view department);
    void earn(double amount, std::string_view department);
    void financesNextMonth(int month);
    double getHistFunds(int index) const;
    std::string getProfit() const;

    void saveFinances(LineWriter& out) const;
    void loadFinances(LineReader& in);

  private:
    Game& game_;
};

} // namespace zorvane
