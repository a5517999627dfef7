#include "core/GameError.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct SessionFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};
};

} // namespace

TEST_F(SessionFixture, LogSlotsKeepAMessageToOnceADay) {
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
}

TEST_F(SessionFixture, TheLogBoxIsClearedPast65000Characters) {
    const std::string line(999, 'x');
    while (game->logBox.size() <= 65000)
        game->gameLog(line, 0);
    game->gameLog("the last straw", 0);
    EXPECT_EQ(game->logBox, "\r\nthe last straw");
    EXPECT_EQ(game.screen.lines.back(), "the last straw");
    EXPECT_EQ(game.screen.lines.size(), 1u);
}

TEST_F(SessionFixture, QuitAsksOnlyWhenUnsaved) {
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
}

TEST_F(SessionFixture, NewGameAsksByWhetherAPathIsKnown) {
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

TEST_F(SessionFixture, ReportErrorAsksWhetherToContinue) {
    game.dialogs.answers = {Answer::Yes};
    game->reportError("Bad mode 9");
    EXPECT_EQ(game.dialogs.asked.back(), "Bad mode 9\r\nContinue program?");
    game.dialogs.answers = {Answer::No};
    EXPECT_THROW(game->reportError("again"), ProcessEnded);
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
