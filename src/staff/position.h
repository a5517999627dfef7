#pragma once
#include "core/Numbers.h"

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// One of the seven job posts: who holds it and what it pays. The wage belongs to the post,
// not to the person. Post 0 stands for "no post": it has neither number nor wage, but a
// person assigned to "0-None" is written into it.
class position {
  public:
    explicit position(Game& game) : game_(&game) {}

    void setMyEmployee(int number) { myEmployee = number; }
    // Readers take a value below 1, or above the staff count, as vacant.
    int getMyEmployee() const { return myEmployee; }
    void setMyNum(int number) { myNum = number; }
    int getMyNum() const { return myNum; }
    void setWage(double newWage);
    double getWage() const { return wage; }
    void setWageInput();
    void saveSelf(LineWriter& out) const;
    void loadSelf(LineReader& in);

    // One day's pay of the post: the literal 16 hours (`emphours` has no effect).
    double dayPay() const { return wage * 16; }

    Int16 myEmployee; // number of the holder in the staff, 0 for vacant
    Int16 myNum;      // 1 to 7, fixed at start-up, not saved
    double wage = 0;  // dollars per hour

  private:
    Game* game_;
};

} // namespace zorvane
