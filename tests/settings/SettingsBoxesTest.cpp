#include "support/SimScenario.h"
#include "support/SoundGame.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::test;

namespace {
const SettingsBox allBoxes[] = {SettingsBox::Sound, SettingsBox::Music, SettingsBox::Click,
                                SettingsBox::Tutor};
}

TEST(SettingsBoxes, EmptyStoreTicksEveryBoxAndWritesIt) {
    SoundGame g;
    Game& game = g.start();
    for (SettingsBox b : allBoxes)
        EXPECT_EQ(game.settingsBoxes.value(b), 1) << SettingsBoxes::box(b).control;
    EXPECT_EQ(g.stored("sound", "effects"), "1");
    EXPECT_EQ(g.stored("sound", "music"), "1");
    EXPECT_EQ(g.stored("sound", "click"), "1");
    EXPECT_EQ(g.stored("other", "tutor"), "1");
}

// Each box reads its own section and key: a "0" there clears that box alone.
TEST(SettingsBoxes, EachBoxReadsItsKey) {
    struct Case {
        const char* section;
        const char* key;
        SettingsBox box;
    };
    for (const Case& c :
         {Case{"sound", "effects", SettingsBox::Sound}, Case{"sound", "music", SettingsBox::Music},
          Case{"sound", "click", SettingsBox::Click}, Case{"other", "tutor", SettingsBox::Tutor}}) {
        SoundGame g;
        g.settings.set(c.section, c.key, "0");
        Game& game = g.start();
        for (SettingsBox b : allBoxes)
            EXPECT_EQ(game.settingsBoxes.value(b), b == c.box ? 0 : 1) << c.key;
        EXPECT_EQ(g.stored(c.section, c.key), "0") << c.key; // an unchanged box writes nothing
    }
}

// The store's values are text of a number: a box is ticked when the leading number is 1.
TEST(SettingsBoxes, StoredTextReadsByItsLeadingNumber) {
    struct Case {
        const char* stored;
        int box;
    };
    for (const Case& c :
         {Case{"1", 1}, Case{" 1", 1}, Case{"1.0", 1}, Case{"1abc", 1}, Case{"0", 0}, Case{"", 0},
          Case{"yes", 0}, Case{"2", 0}, Case{"-1", 0}, Case{"0.5", 0}}) {
        SoundGame g;
        g.settings.set("sound", "effects", c.stored);
        EXPECT_EQ(g.start().settingsBoxes.value(SettingsBox::Sound), c.box) << '"' << c.stored;
    }
}

TEST(SettingsBoxes, ClickHandlersWriteTheStoreAtOnce) {
    SoundGame g;
    Game& game = g.start();
    struct Case {
        SettingsBox box;
        const char* section;
        const char* key;
    };
    for (const Case& c :
         {Case{SettingsBox::Sound, "sound", "effects"}, Case{SettingsBox::Music, "sound", "music"},
          Case{SettingsBox::Click, "sound", "click"}}) {
        game.settingsBoxes.setBox(c.box, 0);
        EXPECT_EQ(g.stored(c.section, c.key), "0") << c.key;
        game.settingsBoxes.setBox(c.box, 1);
        EXPECT_EQ(g.stored(c.section, c.key), "1") << c.key;
    }
}

class SettingsCommands : public SimScenario {};

TEST_F(SettingsCommands, ScriptDrivesBoxesAdvisorAndModes) {
    copySounds(data);
    start(3);
    run("settings music 0");
    run("advisor next");
    run("advisor next");
    run("settings click 0");
    run("advisor prev");
    run("mode 2");
    auto s = state();
    EXPECT_EQ(s["chkMusic"], 0);
    EXPECT_EQ(s["chkClick"], 0);
    EXPECT_EQ(s["musicPlaying"], false);
    EXPECT_EQ(s["advisorStep"], 2);
    EXPECT_EQ(s["advisorVisible"], true);
    EXPECT_EQ(s["currentSound"], 2);
    EXPECT_EQ(s["soundsPlayed"],
              nlohmann::json({"theme.ogg", "click.wav", "click.wav", "movies.wav"}));
    run("advisor close");
    s = state();
    EXPECT_EQ(s["advisorVisible"], false);
    EXPECT_EQ(s["chkTutor"], 0);
    for (const char* bad : {"settings volume 1", "settings music 2", "advisor jump", "mode x"})
        EXPECT_THROW(run(bad), sim::ScriptError) << bad;
}
