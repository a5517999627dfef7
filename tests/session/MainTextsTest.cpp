#include "session/MainTexts.h"
#include "core/GameError.h"
#include "core/Text.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct MainScreenFixture : ::testing::Test {
    DataFolder data;
    TestGame game{data.path().string()};
};

} // namespace

TEST_F(MainScreenFixture, ExpandTogglesOrSetsTheDetailsAndTheHeightsFollow) {
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

TEST_F(MainScreenFixture, SwitchModeRefusesANumberOutsideTheEightModes) {
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
