#pragma once
#include "session/Game.h"

#include <string>
#include <vector>

// What a player reads off the screens before deciding, and the few screen gestures that
// take more than one call. The strategies share these; none of them changes the game on
// its own account.
namespace zorvane::lab::playerView {

// The day about to be played ends the game month (the fourth week's last day).
bool monthEndsToday(const Game& game);
// The day about to be played is the first of a week: this week's movie offer is new.
bool weekStartsToday(const Game& game);
// Days left in the month, today included (1 on its last day).
int daysLeftInMonth(const Game& game);

// The pay of the seven posts for one day, as the position chart shows their wages.
double dailyWages(const Game& game);
// Posts 1 to 7 with nobody valid in them.
std::vector<int> vacantPositions(const Game& game);
// Staff members with no post ("0-None"): the on-call people.
std::vector<int> idleStaff(const Game& game);
// Whether somebody of that name is on the staff (the hire table may show a staff member).
bool onStaff(const Game& game, const std::string& name);

// What the stand's "Stock" tab shows as the month's order in total.
double snackOrderCost(const Game& game);

// Own-movie numbers (1 to the count) whose title matches `title`.
bool ownsTitle(const Game& game, const std::string& title);
// The showtimes 1 to `showtimes` ordered from the best-attended to the worst, as the math
// file's showtime terms rank them (ties keep the earlier show first).
std::vector<int> showtimesByAppeal(const Game& game);

// Types a text into the next input box the game opens (the lab answers from a queue).
void typeIntoNextInputBox(Game& game, const std::string& text);

// The loans screen: type the amount, type the payments and press Enter, then "Take out
// this loan.".
void takeLoan(Game& game, double amount, int payments);

} // namespace zorvane::lab::playerView
