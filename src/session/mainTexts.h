#pragma once
#include <array>
#include <cstdint>
#include <string>

namespace zorvane {

class Calendar;
class Game;

// What the main screen shows of the calendar, the clock and the details panel, built from
// the game state. The main screen's other views come from the subsystems' texts:
// financeSummary (money), ratingCaption and the rating bars (reputation), graphFunds.
// Colours are blue, green, red in the usual integer form.

// The week's day labels (refreshDayBars): the current day's label is tall and darker, and
// the next-day button stands under it.
struct DayBars {
    std::array<int, 7> heights{};           // twips: 375 the current day, 255 the others
    std::array<std::uint32_t, 7> colours{}; // 0x80C0FF the current day, 0xC0E0FF the others
    int buttonUnder = 0;                    // lbcNextDay's left is this day label's left
};
DayBars dayBars(const Calendar& calendar);

// The next-day button's caption: ">" once per week of the month so far.
std::string weekArrows(const Calendar& calendar);

// The month cells of the rating history: 0x00FFFF the current month, 0xC0FFFF the others.
std::array<std::uint32_t, 12> monthLabelColours(const Calendar& calendar);

// lblYears: the theater's age in years, digits only.
std::string yearLabel(const Calendar& calendar);

// The speed images and the clock (setSpeed): the image of the running speed has the raised
// look; the timer runs at `interval` milliseconds, or not at all when paused (0).
struct SpeedView {
    int raised = 0;
    int interval = 0;
};
SpeedView speedView(const Game& game);

// The details panel (expand): the button's caption, the summary frame's height and the
// divider.
struct ExpandView {
    std::string caption;   // "<<<" open, ">>>" closed
    int summaryHeight = 0; // twips: 2955 open, 1275 closed
    bool divider = false;  // lneExpand, visible when open
};
ExpandView expandView(const Game& game);

} // namespace zorvane
