#pragma once
#include "core/Numbers.h"

#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The clock of the simulation and the one place that fixes in which order the managers act.
// A month is always 4 weeks of 7 days, a year 12 such months: 336 days, no real dates.
class Calendar {
  public:
    explicit Calendar(Game& game) : game_(game) {}

    Int16 currentday;   // 0 "Sun" to 6 "Sat"
    Int16 currentweek;  // 0 to 3
    Int16 currentmonth; // 0 "Jan" to 11 "Dec"
    Int16 currentyear;  // the theater's age in years
    bool onedayclose = false;

    void startCalendar();
    void nextDay();
    // Whether a day is running now: a modal box opened inside the day waits for the player,
    // and the clock must not start another day meanwhile.
    bool dayRunning() const { return dayRunning_; }
    bool canDoBusiness();
    int getCurrentMonth() const { return currentmonth; }
    int getCurrentYear() const { return currentyear; }
    // Days left in the month, the day about to be played included (1 on its last day).
    int daysLeftInMonth() const;
    // Hands a show's audience to the arcade room, then to the concession stand.
    void customersVisit(int count);

    void saveCalendar(LineWriter& out) const;
    void loadCalendar(LineReader& in);
    void refreshCalendar();

    static const char* dayName(int day);
    static const char* monthName(int month);

  private:
    void nextWeek();
    void nextMonth();
    void nextYear();
    void fundsTest();

    Game& game_;
    bool dayRunning_ = false;
};

} // namespace zorvane
