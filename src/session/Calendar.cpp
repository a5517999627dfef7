#include "session/Calendar.h"

#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

#include <algorithm>

namespace zorvane {

void Calendar::startCalendar() {
    game_.screen().refresh(View::WeekArrows);
    nextDay();
}

// One game day, run to its end in one go. Everything that happens in the game happens here
// or in a roll-over it calls, in exactly this order.
void Calendar::nextDay() {
    // Set for the whole day, and cleared however the day ends (a fatal error included).
    struct Running {
        bool& flag;
        explicit Running(bool& f) : flag(f) { flag = true; }
        ~Running() { flag = false; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;
    } running(dayRunning_);
    game_.gameLog(" -- Another day has arrived --", 0);
    onedayclose = false;
    game_.markUnsaved();
    Int16 newDay{currentday + 1}; // currentday keeps the old value until the bars have moved
    game_.employees.employeesNextDay();
    game_.concessions.concessionsNextDay();
    game_.movies.nextDayMovies();
    game_.building.buildingNextDay();
    game_.promos.promosNextDay();
    if (newDay > 6) {
        newDay = 0;
        nextWeek();
    }
    game_.rating.ratingNextDay();
    if (game_.screen().graphVisible())
        game_.graph.drawGraph();
    game_.screen().refresh(View::DayBars);
    currentday = newDay;
    game_.resetLogSlots();
    game_.goals.goalsNextDay();
    fundsTest();
}

void Calendar::fundsTest() {
    if (!(game_.finances.getFunds() < game_.math.fundsmin))
        return;
    if (game_.loans.getBalance() > 0) {
        game_.gameLog("It's hopeless!!!", 0);
        game_.showLose(LoseReason::Funds);
    } else {
        game_.gameLog("You're not going to make it, take out a loan now!!!", 0);
        game_.setSpeed(-1);
    }
}

void Calendar::nextWeek() {
    currentweek += 1;
    if (currentweek > 3) {
        currentweek = 0;
        nextMonth();
    }
    game_.screen().refresh(View::WeekArrows);
    // After the month and year steps of the same night.
    game_.movies.releaseMovies();
}

void Calendar::nextMonth() {
    game_.rating.ratingNextMonth(); // still sees the month that is ending
    currentmonth += 1;
    game_.finances.financesNextMonth(currentmonth); // 1 to 12 here: the wrap comes later
    game_.building.buildingNextMonth();
    game_.employees.employeesNextMonth();
    game_.concessions.concessionsNextMonth();
    game_.arcades.arcadesNextMonth();
    game_.loans.loansNextMonth();
    if (currentmonth > 11) {
        currentmonth = 0;
        nextYear();
    }
    game_.screen().refresh(View::MonthLabels);
}

void Calendar::nextYear() {
    currentyear += 1;
    game_.screen().refresh(View::YearLabel);
    game_.building.buildingNextYear();
    game_.movies.nextYearMovies();
    game_.arcades.arcadesNextYear();
    game_.concessions.concessionsNextYear();
    game_.promos.promosNextYear();
    game_.rating.ratingNextYear();
}

// Open for business only with all seven positions filled and the building in order. The
// empty-position message is kept to once a day by its log slot, though the test runs twice.
bool Calendar::canDoBusiness() {
    for (int i = 1; i <= 7; ++i) {
        if (game_.employees.getPosition(i).getMyEmployee() < 1) {
            game_.gameLog("Cannot do business today: Not all employee positions are filled", 7);
            game_.setSpeed(-1);
            return false;
        }
    }
    if (onedayclose)
        return false;
    return game_.building.isInOrder();
}

int Calendar::daysLeftInMonth() const {
    // A loaded game may carry any day or week number; count as from the nearest real one.
    const int week = std::clamp(static_cast<int>(currentweek), 0, 3);
    const int day = std::clamp(static_cast<int>(currentday), 0, 6);
    return (3 - week) * 7 + (7 - day);
}

void Calendar::customersVisit(int count) {
    game_.arcades.doArcadeBusiness(count);
    game_.concessions.doConcessionBusiness(count);
}

void Calendar::saveCalendar(LineWriter& out) const {
    out << "<calendar>";
    out << "currentday=" + std::to_string(currentday);
    out << "currentweek=" + std::to_string(currentweek);
    out << "currentmonth=" + std::to_string(currentmonth);
    out << "currentyear=" + std::to_string(currentyear);
    out << (onedayclose ? "onedayclose=1" : "onedayclose=0");
    out << "</calendar>";
}

void Calendar::loadCalendar(LineReader& in) {
    readSection(in, [this](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        const auto n = [&value] { return toInt16(leadingNumber(value)); };
        if (key == "currentday")
            currentday = n();
        else if (key == "currentweek")
            currentweek = n();
        else if (key == "currentmonth")
            currentmonth = n();
        else if (key == "currentyear")
            currentyear = n();
        else if (key == "onedayclose")
            onedayclose = (n() == 1);
    });
    refreshCalendar();
}

void Calendar::refreshCalendar() {
    game_.screen().refresh(View::DayBars);
    game_.screen().refresh(View::MonthLabels);
    game_.screen().refresh(View::YearLabel);
}

const char* Calendar::dayName(int day) {
    static const char* names[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    return day >= 0 && day < 7 ? names[day] : "";
}

const char* Calendar::monthName(int month) {
    static const char* names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return month >= 0 && month < 12 ? names[month] : "";
}

} // namespace zorvane
