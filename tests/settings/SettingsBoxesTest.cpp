#include "support/SimScenario.h"
#include "support/SoundGame.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::test;

namespace {
// Each box with the section and key of the store it reads and writes.
struct BoxKey {
    SettingsBox box;
    const char* section;
    const char* key;
};
const BoxKey boxKeys[] = {{SettingsBox::Sound, "sound", "effects"},
                          {SettingsBox::Music, "sound", "music"},
                          {SettingsBox::Click, "sound", "click"},
                          {SettingsBox::Tutor, "other", "tutor"}};
} // namespace

// An empty store ticks every box and writes it. Each box reads its own section and key: a
// "0" there clears that box alone, and an unchanged box writes nothing; the advisor opens at
// "Play !" only with its box ticked.
TEST(SettingsBoxes, EmptyStoreTicksEveryBoxAndEachBoxReadsItsKey) {
    SoundGame fresh;
    Game& ticked = fresh.start();
    for (const BoxKey& k : boxKeys) {
        EXPECT_EQ(ticked.settingsBoxes.value(k.box), 1) << k.key;
        EXPECT_EQ(fresh.stored(k.section, k.key), "1") << k.key;
    }
    for (const BoxKey& cleared : boxKeys) {
        SoundGame g;
        g.settings.set(cleared.section, cleared.key, "0");
        Game& game = g.start();
        for (const BoxKey& k : boxKeys)
            EXPECT_EQ(game.settingsBoxes.value(k.box), &k == &cleared ? 0 : 1) << cleared.key;
        EXPECT_EQ(g.stored(cleared.section, cleared.key), "0") << cleared.key;
        EXPECT_EQ(game.tutor.visible, cleared.box != SettingsBox::Tutor) << cleared.key;
        EXPECT_EQ(game.tutor.step, cleared.box == SettingsBox::Tutor ? 0 : 1) << cleared.key;
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
    for (const BoxKey& k : boxKeys) {
        if (k.box == SettingsBox::Tutor)
            continue; // the advisor's box has rules of its own
        game.settingsBoxes.setBox(k.box, 0);
        EXPECT_EQ(g.stored(k.section, k.key), "0") << k.key;
        game.settingsBoxes.setBox(k.box, 1);
        EXPECT_EQ(g.stored(k.section, k.key), "1") << k.key;
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
