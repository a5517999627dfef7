#pragma once
#include <array>
#include <cstdint>
#include <string>

namespace zorvane {

class Calendar;

class Game;

// What the main screen shows, built from the game state and nothing else: the window only
// puts these into its controls. Sizes and places are twips (15 to a pixel); colours are
// blue, green, red in the usual integer form (0xBBGGRR).

// --- the money summary ---
struct MoneySummary {
    std::string income, spent, profit, funds;              // formatMoney
    std::string ticketSales, arcadeSales, concessionSales; // formatMoneyShort
    std::string depPromo, depLabor, depMovie, depArcades, depConcessions, depLoan;
};
MoneySummary moneySummary(const Game& game);

// --- the week: seven day labels and the next-day button below the current one ---
namespace mainLayout {
inline constexpr int dayTop = 780; // the day labels hang from here
inline constexpr int dayFirstLeft = 180;
inline constexpr int dayPitch = 510; // left of one day label to the next
inline constexpr int dayWidth = 465;
inline constexpr int currentDayHeight = 375;
inline constexpr int otherDayHeight = 255;
inline constexpr std::uint32_t currentDayColour = 0x80C0FF;
inline constexpr std::uint32_t otherDayColour = 0xC0E0FF;
inline constexpr std::uint32_t currentMonthColour = 0x00FFFF;
inline constexpr std::uint32_t otherMonthColour = 0xC0FFFF;
// The money summary and the mode selector below it.
inline constexpr int summaryTop = 3450;
inline constexpr int summaryCollapsedHeight = 1275;
inline constexpr int summaryExpandedHeight = 2955;
inline constexpr int modesHeight = 1050;
} // namespace mainLayout

struct DayBar {
    std::string caption; // "Sun" to "Sat"
    int left = 0, height = 0;
    std::uint32_t colour = 0;
};
struct DayBars {
    std::array<DayBar, 7> days;
    int currentDay = 0;         // the day drawn tall
    int nextDayLeft = 0;        // lbcNextDay stands under the current day
    std::string nextDayCaption; // ">" once per week of the month so far
};
DayBars dayBars(const Game& game);

// The next-day button's caption: ">" once per week of the month so far.
std::string weekArrows(const Calendar& calendar);

// --- the twelve month labels under the rating history, the current month lit ---
struct MonthLabel {
    std::string caption; // "Jan" to "Dec"
    std::uint32_t colour = 0;
};
std::array<MonthLabel, 12> monthLabels(const Game& game);

// lblYears: the theater's age in years.
std::string yearText(const Game& game);

// --- the details panel: what expand() sets ---
struct SummaryLayout {
    int summaryHeight = 0;
    bool lineVisible = false;  // lneExpand
    std::string expandCaption; // ">>>" closed, "<<<" open
    int modesTop = 0;          // frameModes just below the summary
    int mainHeight = 0;        // the main screen ends below the modes
};
SummaryLayout summaryLayout(const Game& game);

// The speed images' tips and the index drawn raised.
inline constexpr std::array<const char*, 4> speedTips{"Pause", "Slow", "Medium", "Fast"};

// The eight modes' button captions, by mode number.
inline constexpr std::array<const char*, 8> modeCaptions{
    "Promos", "Employees", "Movies", "Arcade", "Concessions", "Loans", "Graph", "Building"};
// The child screens, by mode number.
inline constexpr std::array<const char*, 8> modeScreens{"frmPromo",  "frmEmployees",   "frmMovies",
                                                        "frmArcade", "frmConcessions", "frmLoans",
                                                        "frmGraphs", "frmBuilding"};

} // namespace zorvane
