#include "session/TitleScreen.h"
#include "core/GameError.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace zorvane;
using namespace zorvane::test;

namespace {

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

} // namespace

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

    // Save As cancelled in the dialog leaves the game with no path at all.
    game->savedPath = data.file("before.zvn");
    transcript.clear();
    runFileOption(*game, 3);
    EXPECT_EQ(transcript, std::vector<std::string>{"save file: Save Theater -> "});
    EXPECT_TRUE(game->savedPath.empty());

    data.setMath({{"gamespeed3", "77"}});
    runFileOption(*game, 5);
    EXPECT_EQ(game->math.gamespeed[3], 77);

    EXPECT_THROW(runFileOption(*game, 6), GameError);
    EXPECT_THROW(runFileOption(*game, -1), GameError);
}
