#pragma once
#include "core/Numbers.h"

#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// One show slot of the day: its movie, its matinee state, its ads and the sales of the
// current day. It turns the player's choices into the day's audience and money.
class showtime {
  public:
    // `slot` (1 to 8) picks the caption the showtime label carries before any `init`.
    showtime(Game& game, int slot);

    int getMoviePopularity() const;
    void init(int number, bool matineeFlag);
    void setName(const std::string& text) { name = text; }
    const std::string& getName() const { return name; }
    void setAds(int& count);
    int getAds() const { return ads; }
    // What the ads take off the movie's popularity at this showtime, and what they pay a day.
    int adsPopularityLoss() const;
    double adsIncome() const;
    void saveSelf(LineWriter& out) const;
    void loadSelf(LineReader& in, int number);
    void setMyMovie(int number);
    int getMyMovie() const { return movie; }
    void setMatinee(int flag);
    void toggleMatinee();
    double getMyPrice();
    // Today's show in a house of `seating` seats.
    void doBusiness(int seating);
    int getTodaysTicketSales() const { return todaysticketsales; }
    double getTodaysIncome() const { return todaysincome; }

    int getNum() const { return num; }
    bool isMatinee() const { return matinee != 0; }
    // The showtime label as the screen shows it: its caption and whether it is painted
    // matinee grey.
    const std::string& labelCaption() const { return caption; }
    bool labelGrey() const { return grey; }

  private:
    void showMatineeColor();
    void sellTickets(int tickets);

    Game* game_;
    Int16 num;
    Int16 matinee; // -1 true, 0 false
    Int16 movie;
    Int16 todaysticketsales;
    double todaysincome = 0;
    Int16 ads;
    std::string name;
    std::string caption; // the label's text, kept by the game since setMatinee logs it
    bool grey = false;
};

} // namespace zorvane
