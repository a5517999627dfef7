#pragma once
#include "core/Numbers.h"

#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// One title of the catalogue: its popularity, the classic level below which its popularity
// never stays for long, its price, and what it has earned since the theater bought it. The
// same object is shared by the catalogue, the week's offer and the own list.
class Movie {
  public:
    explicit Movie(Game& game) : game_(&game) {}

    void setRunning(bool running) { Running = running; }
    bool getRunning() const { return Running; }
    void setFirstPrice(double price) { firstPrice = price; }
    double getMySold() const { return sold; }
    double getMyIncome() const { return Income; }
    double getMyProfit() const { return Profit; }
    double getMyDays() const { return Days; }
    void nextDay();
    void setMyListPos(int line) { listPos = line; }
    int getMyListPos() const { return listPos; }
    void setMyNum(int num) { Num = num; }
    void initalize(int num, const std::string& title);
    const std::string& getMyTitle() const { return Title; }
    void setMyPopularity(int popularity);
    int getMyPopularity() const { return Pop; }
    double getMyPrice() const { return Price; }
    void inflate();
    void sellTickets(double income, int tickets);
    void saveSelf(LineWriter& out, const std::string& kind) const;
    void loadSelf(LineReader& in);

    // Read-only views of the saved fields, for the screens and the simulator's state.
    int getMyNum() const { return Num; }
    int getClassic() const { return Classic; }
    double getFirstPrice() const { return firstPrice; }
    double getTodaysIncome() const { return todaysIncome; }
    int getTodaysTickets() const { return todaysTickets; }

  private:
    void setPriceFromPopularity();
    void dropPopularity();
    bool isDropDay() const;
    void setResalePrice();

    Game* game_;
    std::string Title;
    double sold = 0; // not saved: counts again from 0 after a load
    double Income = 0;
    double todaysIncome = 0;
    Int16 todaysTickets;
    double Profit = 0;
    double Days = 0;
    Int16 Num;
    Int16 Pop;
    Int16 Classic;
    double Price = 0;
    double firstPrice = 0;
    Int16 listPos; // line of the own-movies list; rebuilt by every showing of the list
    bool Running = false;
};

} // namespace zorvane
