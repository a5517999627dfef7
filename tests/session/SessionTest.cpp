// The session: the log, the questions around quitting and new games, the speed, the
// command-line argument, the main screen's layout, the title screen and the calendar's day.
#include "core/GameError.h"
#include "session/Game.h"
#include "session/MainTexts.h"
#include "session/TitleScreen.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct SessionFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};
};

// A game after start-up, with the title screen's file-menu transcript.
struct TitleFixture : ::testing::Test {
    DataFolder data;
    TestGame game{data.path().string(), 7};
    std::vector<std::string> transcript;

    void SetUp() override {
        game->startup();
        game.dialogs.onTranscript = [this](const std::string& line) { transcript.push_back(line); };
    }
    long statusCount(const std::string& line) const {
        return std::count(game.screen.status.begin(), game.screen.status.end(), line);
    }
};

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

TEST_F(SessionFixture, LogSlotsKeepAMessageToOnceADayAndTheBoxIsClearedWhenFull) {
    game->gameLog("a", 7);
    game->gameLog("a", 7);
    game->gameLog("b", 0);
    game->gameLog("b", 0);
    EXPECT_EQ(game.screen.lines, (std::vector<std::string>{"a", "b", "b"}));
    game->resetLogSlots();
    game->gameLog("a", 7);
    EXPECT_EQ(game.screen.count("a"), 2);
    EXPECT_THROW(game->gameLog("x", 21), GameError);
    EXPECT_THROW(game->gameLog("x", -1), GameError);
    EXPECT_EQ(game->logBox, "\r\na\r\nb\r\nb\r\na");
    // The log box is cleared past 65000 characters.
    const std::string line(999, 'x');
    while (game->logBox.size() <= 65000)
        game->gameLog(line, 0);
    game->gameLog("the last straw", 0);
    EXPECT_EQ(game->logBox, "\r\nthe last straw");
    EXPECT_EQ(game.screen.lines.back(), "the last straw");
    EXPECT_EQ(game.screen.lines.size(), 1u);
}

TEST_F(SessionFixture, QuitAsksOnlyWhenUnsavedANewGameOnlyWithoutAPath) {
    game->saved = true;
    EXPECT_THROW(game->quitGame(), ProcessEnded);
    EXPECT_TRUE(game.dialogs.asked.empty());

    game->saved = false;
    game.dialogs.answers = {Answer::Cancel};
    EXPECT_NO_THROW(game->quitGame());
    EXPECT_EQ(game.dialogs.asked.back(), "Save your theater before quitting?");
    game.dialogs.answers = {Answer::No};
    EXPECT_THROW(game->quitGame(), ProcessEnded);
    // Yes, then the save dialog is cancelled: the game goes on.
    game.dialogs.answers = {Answer::Yes};
    EXPECT_NO_THROW(game->quitGame());

    // A new game asks by whether a path is known, not by the saved flag.
    game.dialogs.answers = {Answer::No};
    EXPECT_NO_THROW(game->newGame());
    EXPECT_EQ(game.dialogs.asked.back(), "Unsaved game, proceed?");
    EXPECT_TRUE(game.dialogs.started.empty());

    game.dialogs.answers = {Answer::Yes};
    EXPECT_THROW(game->newGame(), ProcessEnded);
    ASSERT_EQ(game.dialogs.started.size(), 1u);
    EXPECT_EQ(game.dialogs.started[0], "\"" + dir.path().string() + "/zorvane\"");

    game->savedPath = dir.file("x.zvn");
    game->saved = true; // plays no part
    game.dialogs.answers = {Answer::Cancel};
    EXPECT_NO_THROW(game->newGame());
    EXPECT_EQ(game.dialogs.asked.back(), "Save first?");
    game.dialogs.answers = {Answer::No};
    EXPECT_THROW(game->newGame(), ProcessEnded);
}

TEST_F(SessionFixture, SpeedRemembersThroughAStop) {
    game->setSpeed(2);
    game->setSpeed(-1);
    EXPECT_EQ(game->speed, 0);
    game->setSpeed(-2);
    EXPECT_EQ(game->speed, 2);
    // The player's own pause overwrites the remembered speed.
    game->setSpeed(0);
    game->setSpeed(-2);
    EXPECT_EQ(game->speed, 0);
    EXPECT_THROW(game->setSpeed(4), GameError);
}

TEST(SessionArgument, OneArgumentIsAMathFileOrASavedGameNeverBoth) {
    TempDir dir;
    TestGame mth(dir.path().string(), 1, "\"/x/my \"games\"/Custom.MTH\"");
    EXPECT_EQ(mth->getMathFile(), "/x/my games/Custom.MTH");
    TestGame zvn(dir.path().string(), 1, "/x/a.ZVN");
    EXPECT_EQ(zvn->getMathFile(), dir.file("math.txt"));
    TestGame other(dir.path().string(), 1, "/x/a.txt");
    EXPECT_EQ(other->getMathFile(), dir.file("math.txt"));
}

TEST_F(TitleFixture, ExpandTogglesOrSetsTheDetailsAndTheHeightsFollow) {
    struct Step {
        const char* text;
        bool expanded;
    };
    // Starting closed: each text in turn, and the state it leaves.
    const Step steps[] = {{"", true},     {"", false},      {"TRUE", true}, {"maybe", true},
                          {"true", true}, {"False", false}, {"yes", false}};
    for (const Step& step : steps) {
        game->expand(step.text);
        EXPECT_EQ(game->expanded, step.expanded) << step.text;
        const SummaryLayout l = summaryLayout(*game);
        EXPECT_EQ(l.summaryHeight, step.expanded ? 2955 : 1275) << step.text;
        EXPECT_EQ(l.lineVisible, step.expanded);
        EXPECT_EQ(l.expandCaption, step.expanded ? "<<<" : ">>>");
        EXPECT_EQ(l.modesTop, mainLayout::summaryTop + l.summaryHeight + 45);
        EXPECT_EQ(l.mainHeight, l.modesTop + mainLayout::modesHeight + 75);
    }
    EXPECT_EQ(game.screen.refreshed.back(), View::Expand);
}

// The refusal is the game's error report: the question, then a No ends the process.
TEST_F(TitleFixture, SwitchModeRefusesANumberOutsideTheEightModes) {
    game->switchMode(5);
    EXPECT_EQ(game->currentMode, 5);
    game.dialogs.answers = {Answer::Yes};
    game->switchMode(8);
    EXPECT_EQ(game->currentMode, 5);
    ASSERT_EQ(game.dialogs.asked.size(), 1u);
    EXPECT_EQ(game.dialogs.asked[0],
              "Called switchMode with invalid mode number: 8\r\nContinue program?");
    game.dialogs.answers = {Answer::No};
    EXPECT_THROW(game->switchMode(-1), ProcessEnded);
}

TEST(MainScreenStartup, FormColoursComeFromTheMathFileAndMustFitIn32Bits) {
    DataFolder data;
    data.setMath({{"formcolor3", "12648384.5"}, {"formcolor6", "255 blue"}});
    TestGame game{data.path().string()};
    game->startup();
    EXPECT_EQ(game->formColours[3], 12648384); // ties to even
    EXPECT_EQ(game->formColours[6], 255);
    EXPECT_FALSE(game->expanded);

    DataFolder bad;
    bad.setMath({{"formcolor7", "4294967296"}});
    TestGame headless{bad.path().string()};
    EXPECT_THROW(headless->startup(), GameError);
}

TEST_F(TitleFixture, VersionButtonAndExitBeforeAndAfterTheFirstPlay) {
    EXPECT_EQ(versionCaption(), "Zorvane v2.0.1");
    EXPECT_EQ(game.screen.status.front(), "Zorvane v2.0.1");
    showChanges(*game);
    EXPECT_EQ(game.screen.status.back(),
              "Changes from previous version: The primary change in this version is that there "
              "is now a good reason to choose employees with high ambition, hiring a more "
              "ambitious staff will result in a higher rating!");

    EXPECT_THROW(exitTitle(*game), ProcessEnded); // before the first play: no question
    EXPECT_TRUE(game.dialogs.asked.empty());
    game->startPlay(-1);
    EXPECT_NO_THROW(exitTitle(*game)); // after it the title screen only hides
    EXPECT_TRUE(game.dialogs.asked.empty());
}

// "Play !" applies the goal on the list's line without selecting it; only the first press
// brings up the main screen.
TEST_F(TitleFixture, PlayAppliesTheListLineAndBringsUpTheMainScreenOnce) {
    ASSERT_EQ(game->goals.getGoal(2).getFunds(), "45000");
    game->finances.setFunds(5);
    game->startPlay(2);
    EXPECT_EQ(game->finances.getFunds(), 45000);
    EXPECT_EQ(game->goals.getSelected(), 0);
    EXPECT_TRUE(game->playing);
    game->startPlay(0);
    EXPECT_EQ(statusCount("bringing up main form"), 1);
}

TEST_F(TitleFixture, FileMenuOptionsRunTheGameOperations) {
    struct Case {
        int option;
        const char* asked; // the first question or file dialog the option brings, unanswered
    };
    const Case cases[] = {
        {0, "ask: Unsaved game, proceed? -> no"},
        {1, "open file: Open Theater -> "},
        {2, "save file: Save Theater -> "},
        {3, "save file: Save Theater -> "},
        {4, "ask: Save your theater before quitting? -> cancel"},
    };
    for (const Case& c : cases) {
        transcript.clear();
        game->savedPath.clear();
        runFileOption(*game, c.option);
        ASSERT_FALSE(transcript.empty()) << c.option;
        EXPECT_EQ(transcript.front(), c.asked) << c.option;
    }

    data.setMath({{"gamespeed3", "77"}});
    runFileOption(*game, 5);
    EXPECT_EQ(game->math.gamespeed[3], 77);

    EXPECT_THROW(runFileOption(*game, 6), GameError);
    EXPECT_THROW(runFileOption(*game, -1), GameError);
}

// Start-up runs the first day, which meets empty positions: the theater refuses business,
// once a day, and pauses; days still pass on clicks.
TEST_F(CalendarFixture, StartUpRunsTheFirstDayAndEmptyPositionsRefuseBusiness) {
    const std::string refused = "Cannot do business today: Not all employee positions are filled";
    start();
    EXPECT_EQ(cal().currentday, 1);
    EXPECT_EQ(cal().currentweek, 0);
    EXPECT_EQ(game->screen.count(" -- Another day has arrived --"), 1);
    EXPECT_EQ(game->screen.count(refused), 1);
    EXPECT_EQ((*game)->speed, 0);
    (*game)->setSpeed(2);
    days(3);
    EXPECT_EQ(game->screen.count(refused), 4);
    EXPECT_EQ((*game)->speed, 0);
    EXPECT_EQ((*game)->lastSpeed, 2);
    EXPECT_EQ(cal().currentday, 4);
    cal().currentweek = -9; // as a saved game may say: no arrow, and no crash
    EXPECT_EQ(weekArrows(cal()), "");
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
