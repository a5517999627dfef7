#pragma once
#include "core/Numbers.h"

#include <array>
#include <cstdint>
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// One month's bar of the rating history on the main screen, in twips.
struct HistoryBar {
    int top = 0;
    int height = 0;
    std::uint32_t colour = 0x80FFFF; // blue-green-red order
    std::string tip;                 // lblHistMonth's tip: the value and "%"
};

// The theater's rating, 1 to 100, computed afresh at the end of each day from what the
// theater is doing. It feeds tomorrow's demand, and demand is its first term, so good days
// breed good days.
class ratingManager {
  public:
    static constexpr std::uint32_t neutralColour = 0x80FFFF;
    static constexpr std::uint32_t drawnColour = 0x00C000;
    static constexpr double unitsPerPercent = 7.2; // a bar of 100 percent is 720 twips high
    static constexpr int barOffset = 2100;         // top of a bar of 100 percent
    // Where the bars stand: the bottom of the month labels (lblHistory 0's top plus its
    // height), so that a bar of 0 percent has no height and one of 100 percent 720.
    static constexpr int barBottom = barOffset + 720;

    explicit ratingManager(Game& game) : game_(game) {}

    Int16 currentRating;  // whole percent; 0 before the first day has ended
    Int16 currentAverage; // running average within a month; shown nowhere, affects nothing
    std::array<Int16, 12> history{}; // the rating on the last day of each month

    void ratingSetDefaults();
    void ratingNextDay();
    void ratingNextMonth();
    void ratingNextYear();
    int getRating() const { return currentRating; }

    void saveRatings(LineWriter& out) const;
    void loadRatings(LineReader& in);

    // The eleven terms of today's rating, in their order (which the random roll relies on).
    std::array<int, 11> dayTerms();
    // The rating of the day: the terms summed and clamped to 1 to 100.
    int ratingOfTheDay();

    // What the main screen's rating display shows since its last refresh, if it was ever
    // refreshed.
    int displayedRating() const { return displayedRating_; }
    bool ratingDisplayed() const { return displayed_; }
    const std::array<HistoryBar, 12>& bars() const { return bars_; }
    // Top of a month's bar for a value: Int((100 - value) * 7.2 + 2100).
    static int barTop(int value);

  private:
    void drawBar(int month, int value);
    void drawBar(int month) { drawBar(month, currentRating); }
    void paintNeutral();
    void refreshRatingDisplay();
    std::size_t monthIndex(int month) const;

    Game& game_;
    std::array<HistoryBar, 12> bars_{};
    Int16 displayedRating_; // what the rating display shows since its last refresh
    bool displayed_ = false;
};

} // namespace zorvane
