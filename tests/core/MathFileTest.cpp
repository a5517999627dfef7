#include "core/GameError.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::test;

namespace {

// A game that only reads a math file written by the test.
struct MathFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};

    void load(const std::string& text) {
        std::string path = dir.write("math.txt", text);
        game->mathFile.loadMath(game->math, game->dialogs(), path);
    }
};

} // namespace

TEST_F(MathFixture, KeysIgnoreCaseButNotBlanksAndEveryLineEndReads) {
    load("GameSpeed1=250\ngamespeed2 =99\n gamespeed3=77\n");
    EXPECT_EQ(game->math.gamespeed[1], 250);
    EXPECT_EQ(game->math.gamespeed[2], 0); // "gamespeed2 " is another key
    EXPECT_EQ(game->math.gamespeed[3], 0);
    // Every kind of line end reads.
    load("gamespeed1=1\r\ngamespeed2=2\rgamespeed3=3");
    EXPECT_EQ(game->math.gamespeed[1], 1);
    EXPECT_EQ(game->math.gamespeed[2], 2);
    EXPECT_EQ(game->math.gamespeed[3], 3);
}

TEST_F(MathFixture, ValuesKeepCaseAndBlanksLoseTheCommentLinesWithoutEqualsSkippedLastWins) {
    load("Heading line\nshowtimename1= Early Bird   # the first show\nconcessname0=PopCorn\n"
         "gamespeed1 250\n\ngamespeed1=10\ngamespeed1=20\nunknownkey=5\n");
    EXPECT_EQ(game->math.showtimename[1], " Early Bird");
    EXPECT_EQ(game->math.concessname[0], "PopCorn");
    EXPECT_EQ(game->math.gamespeed[1], 20);
}

TEST_F(MathFixture, NumbersAreLeadingNumbersRoundedHalfToEven) {
    load("fundsmin=1000 dollars\nresalemin=$5\ngamespeed1=100.5\ngamespeed2=101.5\n"
         "emphours=7.9\nconcess0buy= 12.7 \n");
    EXPECT_EQ(game->math.fundsmin, 1000);
    EXPECT_EQ(game->math.resalemin, 0);
    EXPECT_EQ(game->math.gamespeed[1], 100);
    EXPECT_EQ(game->math.gamespeed[2], 102);
    EXPECT_EQ(game->math.emphours, 7);       // floored, not rounded
    EXPECT_EQ(game->math.concessbuy[0], 12); // strict, then floored
}

TEST_F(MathFixture, ACommentLineHoldingEqualsReappliesThePreviousEntry) {
    // The comment line's "=" is cut away with the comment, so the previous entry is applied
    // again: harmless for a value, but a refused version is asked about twice.
    game.dialogs.answers = {Answer::Yes, Answer::Yes};
    load("mathver=1.0.0\n# note: a=b\ngamespeed1=5\n");
    EXPECT_EQ(game.dialogs.asked.size(), 2u);
    EXPECT_EQ(game->math.gamespeed[1], 5);
}

// A matching or missing version asks nothing; another asks, word for word, and Yes reads on.
TEST_F(MathFixture, VersionQuestionOnlyForAnotherVersionYesReadsOnNoEndsTheProcess) {
    load("mathver=2.0.1   \ngamespeed1=3\n");
    load("gamespeed1=4\n");
    EXPECT_TRUE(game.dialogs.asked.empty());
    EXPECT_EQ(game->math.gamespeed[1], 4);
    game.dialogs.answers = {Answer::Yes};
    const std::string path = dir.file("math.txt");
    load("gamespeed1=1\nmathver=1.9.9  \ngamespeed2=2\n");
    ASSERT_EQ(game.dialogs.asked.size(), 1u);
    EXPECT_EQ(game.dialogs.asked[0],
              "Math file '" + path +
                  "' was written for version '1.9.9' but this is version '2.0.1' proceed with "
                  "loading variables from this math file?");
    EXPECT_EQ(game->math.gamespeed[2], 2);
    // No ends the process with the earlier entries in force.
    game.dialogs.answers = {Answer::No};
    EXPECT_THROW(load("gamespeed1=7\nmathver=3\ngamespeed2=5\n"), ProcessEnded);
    EXPECT_EQ(game->math.gamespeed[1], 7);
    EXPECT_EQ(game->math.gamespeed[2], 2);
}

TEST_F(MathFixture, FatalValuesNameTheFileLineAndKeyAndAMissingFileIsFatal) {
    try {
        load("gamespeed1=1\n\ngamespeed2=40000\n");
        FAIL() << "no overflow";
    } catch (const GameError& e) {
        EXPECT_EQ(e.kind(), GameError::Kind::Overflow);
        const std::string what = e.what();
        EXPECT_NE(what.find("math.txt line 3"), std::string::npos) << what;
        EXPECT_NE(what.find("gamespeed2"), std::string::npos) << what;
    }
    try {
        load("concess2buy=lots\n");
        FAIL() << "no type error";
    } catch (const GameError& e) {
        EXPECT_EQ(e.kind(), GameError::Kind::Type);
        EXPECT_NE(std::string(e.what()).find("concess2buy"), std::string::npos);
    }
    std::string missing = dir.file("nothing.txt");
    EXPECT_THROW(game->mathFile.loadMath(game->math, game->dialogs(), missing), GameError);
}

TEST_F(MathFixture, AnEmptyPathReadsTheStoredFileAgain) {
    load("gamespeed1=1\ngamespeed2=2\n");
    dir.write("math.txt", "gamespeed1=9\n");
    std::string empty;
    game->mathFile.loadMath(game->math, game->dialogs(), empty);
    EXPECT_EQ(empty, dir.file("math.txt"));
    EXPECT_EQ(game->math.gamespeed[1], 9);
    EXPECT_EQ(game->math.gamespeed[2], 2); // a key missing on reload keeps its value
}

TEST(MathKeys, EveryKeyIsThereOnceWithItsArrays) {
    std::set<std::string> seen;
    for (const MathKey& k : mathKeys())
        EXPECT_TRUE(seen.insert(k.key).second) << k.key;
    EXPECT_EQ(seen.size(), 229u);
    for (const char* key : {"concess4qual2", "empstat10name", "emppos0name", "demandshowtime8",
                            "arcadeplayprice4", "promocost4", "sndmidi", "ratingcurrent"})
        EXPECT_TRUE(seen.count(key)) << key;
}
