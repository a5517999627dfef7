#include "PlayerView.h"

#include <algorithm>
#include <cmath>

namespace zorvane::lab::playerView {

bool monthEndsToday(const Game& game) {
    return game.calendar.currentday == 6 && game.calendar.currentweek >= 3;
}

bool weekStartsToday(const Game& game) {
    return game.calendar.currentday == 0;
}

int daysLeftInMonth(const Game& game) {
    return game.calendar.daysLeftInMonth();
}

double dailyWages(const Game& game) {
    double sum = 0;
    for (int p = 1; p <= 7; ++p)
        sum += game.employees.getPosition(p).dayPay();
    return sum;
}

std::vector<int> vacantPositions(const Game& game) {
    return game.employees.vacantPositions();
}

std::vector<int> idleStaff(const Game& game) {
    std::vector<int> idle;
    for (int n = 1; n <= game.employees.employeeCount(); ++n)
        if (game.employees.getEmployee(n).getMyJob() < 1)
            idle.push_back(n);
    return idle;
}

bool onStaff(const Game& game, const std::string& name) {
    for (int n = 1; n <= game.employees.employeeCount(); ++n)
        if (game.employees.getEmployee(n).getMyName() == name)
            return true;
    return false;
}

double snackOrderCost(const Game& game) {
    return game.concessions.monthlyOrderCost();
}

bool ownsTitle(const Game& game, const std::string& title) {
    for (int m = 1; m <= game.movies.myMoviesCount(); ++m)
        if (game.movies.myMovieAt(m).getMyTitle() == title)
            return true;
    return false;
}

std::vector<int> showtimesByAppeal(const Game& game) {
    const int shows = std::clamp(static_cast<int>(game.math.showtimes), 0, 8);
    std::vector<int> order;
    for (int s = 1; s <= shows; ++s)
        order.push_back(s);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return game.math.demandshowtime[static_cast<std::size_t>(a)] >
               game.math.demandshowtime[static_cast<std::size_t>(b)];
    });
    return order;
}

void typeIntoNextInputBox(Game& game, const std::string& text) {
    if (auto* scripted = dynamic_cast<ScriptedDialogs*>(&game.dialogs()))
        scripted->inputs.push_back(text);
}

void takeLoan(Game& game, double amount, int payments) {
    game.loans.takeLoan(std::to_string(static_cast<long long>(std::floor(amount))),
                        std::to_string(payments));
}

} // namespace zorvane::lab::playerView
