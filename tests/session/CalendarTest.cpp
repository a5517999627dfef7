#include "core/GameError.h"
#include "core/LineFile.h"
#include "session/Game.h"
#include "session/MainTexts.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct CalendarFixture : ::testing::Test {
    DataFolder data;
    std::unique_ptr<TestGame> game;

    void start() {
        game = std::make_unique<TestGame>(data.path().string());
        (*game)->startup();
    }
    Calendar& cal() { return (*game)->calendar; }
    void days(int n) {
        for (int i = 0; i < n; ++i)
            cal().nextDay();
    }
};

} // namespace

TEST_F(CalendarFixture, StartUpRunsTheFirstDay) {
    start();
    EXPECT_EQ(cal().currentday, 1);
    EXPECT_EQ(cal().currentweek, 0);
    EXPECT_EQ(game->screen.count(" -- Another day has arrived --"), 1);
    // The first day meets empty positions: the theater refuses business.
    EXPECT_EQ(game->screen.count("Cannot do business today: Not all employee positions are filled"),
              1);
    EXPECT_EQ((*game)->speed, 0);
}

TEST_F(CalendarFixture, WeeksMonthsAndYearsRollOver) {
    start();
    days(6); // start-up's day plus six: a whole week
    EXPECT_EQ(cal().currentday, 0);
    EXPECT_EQ(cal().currentweek, 1);
    EXPECT_EQ(cal().currentmonth, 0);
    days(21);
    EXPECT_EQ(cal().currentmonth, 1);
    EXPECT_EQ(cal().currentweek, 0);
    EXPECT_EQ(cal().currentday, 0);
    // The first month's end is filed under index 0 (nextMonth hands over 1), before the
    // month's rent and purchases are paid.
    const auto& hist = (*game)->finances.histfunds;
    EXPECT_GT(hist[0], 0);
    EXPECT_EQ(hist[1], 0);
    days(336 - 28);
    EXPECT_EQ(cal().currentyear, 1);
    EXPECT_EQ(cal().currentmonth, 0);
    EXPECT_NE(hist[11], 0); // the twelfth month hands over 12
    EXPECT_EQ(hist[12], 0);
}

TEST_F(CalendarFixture, EmptyPositionsRefuseBusinessOnceADayAndPause) {
    start();
    (*game)->setSpeed(2);
    days(3);
    EXPECT_EQ(game->screen.count("Cannot do business today: Not all employee positions are filled"),
              4);
    EXPECT_EQ((*game)->speed, 0);
    EXPECT_EQ((*game)->lastSpeed, 2);
    EXPECT_EQ(cal().currentday, 4); // days still pass on clicks
}

TEST_F(CalendarFixture, FundsTestWarnsWithoutDebt) {
    data.setMath({{"fundsmin", "100"}});
    start();
    (*game)->finances.funds = 100; // equal passes
    (*game)->setSpeed(3);
    days(1);
    EXPECT_EQ(game->screen.count("You're not going to make it, take out a loan now!!!"), 0);
    (*game)->finances.funds = 99.99;
    (*game)->setSpeed(3);
    days(2);
    EXPECT_EQ(game->screen.count("You're not going to make it, take out a loan now!!!"), 2);
    EXPECT_EQ((*game)->loseShown, 0); // with no debt the game cannot be lost by low funds
    EXPECT_EQ((*game)->speed, 0);
    EXPECT_EQ((*game)->lastSpeed, 3);
}

TEST_F(CalendarFixture, ALoadedWeekOutOfRangeShowsNoArrowAndDoesNotCrash) {
    start();
    cal().currentweek = -9; // as a saved game may say
    EXPECT_EQ(weekArrows(cal()), "");
}

// A tick that arrives while a day is running (here: from inside the day's log, as a timer
// would fire under a modal box of that day) is dropped; a tick between days runs one.
TEST_F(CalendarFixture, TheClockDropsATickWhileADayIsRunning) {
    struct TickingScreen : RecordingScreen {
        Game* game = nullptr;
        std::vector<bool> ticks;
        void logLine(const std::string& line, bool cleared) override {
            RecordingScreen::logLine(line, cleared);
            if (game && ticks.empty() && line == " -- Another day has arrived --")
                ticks.push_back(game->clockTick());
        }
    } screen;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    auto played = makeGame(data.path().string(), 1, "", screen, dialogs, settings);
    played->startup();
    screen.game = played.get();
    EXPECT_TRUE(played->clockTick());
    EXPECT_EQ(screen.ticks, std::vector<bool>{false});
    EXPECT_EQ(played->calendar.currentday, 2);
    EXPECT_FALSE(played->calendar.dayRunning());
}
