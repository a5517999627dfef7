#include "core/GameError.h"
#include "support/SimScenario.h"
#include "support/SoundGame.h"

#include <filesystem>
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

// An empty store ticks every box and writes it, and a click writes it at once. Each box reads its
// own section and key: a "0" there clears that box alone, and an unchanged box writes nothing; the
// advisor opens at "Play !" only with its box ticked.
TEST(SettingsBoxes, EmptyStoreTicksEveryBoxAndEachBoxReadsItsKey) {
    SoundGame fresh;
    Game& ticked = fresh.start();
    for (const BoxKey& k : boxKeys) {
        EXPECT_EQ(ticked.settingsBoxes.value(k.box), 1) << k.key;
        EXPECT_EQ(fresh.stored(k.section, k.key), "1") << k.key;
        if (k.box == SettingsBox::Tutor)
            continue;                          // the advisor's box has rules of its own
        ticked.settingsBoxes.setBox(k.box, 0); // a click writes the store at once
        EXPECT_EQ(fresh.stored(k.section, k.key), "0") << k.key;
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
    expectChecks({}, state(),
                 R"({"/chkMusic": 0, "/chkClick": 0, "/musicPlaying": false, "/advisorStep": 2,
                     "/advisorVisible": true, "/currentSound": 2,
                     "/soundsPlayed": ["theme.ogg", "click.wav", "click.wav", "movies.wav"]})");
    run("advisor close");
    expectChecks({}, state(), R"({"/advisorVisible": false, "/chkTutor": 0})");
    for (const char* bad : {"settings volume 1", "settings music 2", "advisor jump", "mode x"})
        EXPECT_THROW(run(bad), sim::ScriptError) << bad;
}

namespace {
constexpr auto music = static_cast<std::size_t>(SoundPort::musicPlayer);
}

// getReg in step 5 starts the music before the board opens it in step 18: only the start in
// step 18 is heard.
TEST(SoundBoard, StartUpOpensEveryPlayerAndStartsTheMusicOnce) {
    SoundGame g;
    Game& game = g.start();
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(std::filesystem::path(g.sound.opened[static_cast<std::size_t>(i)]).filename(),
                  game.math.sndmode[static_cast<std::size_t>(i)]);
    EXPECT_EQ(std::filesystem::path(g.sound.opened[SoundPort::clickPlayer]).filename(),
              "click.wav");
    EXPECT_EQ(g.sound.played, std::vector<std::string>{game.math.sndmidi});
    EXPECT_TRUE(g.sound.playing[music]);
    EXPECT_EQ(game.soundBoard.currentSound, 0);
}

// No music named opens none. currentSound moves only when a cue really starts; the last cue
// is stopped in every case.
TEST(SoundBoard, ModeCuesStopTheLastAndMoveOnlyWhenOneStarts) {
    SoundGame g;
    g.data.setMath({{"sndmode3", ""}, {"sndmidi", ""}});
    std::filesystem::remove(g.data.path() / "sounds" / "loans.wav");
    Game& game = g.start();
    EXPECT_EQ(g.sound.opened[music], "");
    EXPECT_TRUE(g.sound.played.empty());
    game.switchMode(2);
    EXPECT_EQ(game.soundBoard.currentSound, 2);
    EXPECT_TRUE(g.sound.playing[2]);
    EXPECT_EQ(g.sound.played.back(), "movies.wav");
    const std::size_t heard = g.sound.played.size();

    game.switchMode(3); // no file named: the movies cue stops, nothing plays
    EXPECT_FALSE(g.sound.playing[2]);
    EXPECT_EQ(game.soundBoard.currentSound, 2);
    EXPECT_EQ(g.sound.played.size(), heard);

    game.switchMode(5); // named but missing: that player is silent, the rest goes on
    EXPECT_EQ(game.soundBoard.currentSound, 5);
    EXPECT_EQ(g.sound.played.size(), heard);

    game.switchMode(7);
    game.settingsBoxes.setBox(SettingsBox::Sound, 0);
    EXPECT_TRUE(g.sound.playing[7]); // clearing the box stops nothing that plays
    game.switchMode(1);
    EXPECT_FALSE(g.sound.playing[7]);
    EXPECT_FALSE(g.sound.playing[1]);
    EXPECT_EQ(game.soundBoard.currentSound, 7);

    EXPECT_THROW(game.soundBoard.startMM(8), GameError);
    g.dialogs.answers.push_back(Answer::Yes);
    game.switchMode(8); // reported, and no cue
    EXPECT_EQ(game.soundBoard.currentSound, 7);
}

TEST(SoundBoard, MusicAndClickFollowTheirBoxesAndTheEndNoticeDoesNotRestartTheMusic) {
    SoundGame g;
    Game& game = g.start();
    game.soundBoard.musicEnded(); // the loop
    EXPECT_EQ(g.sound.played.size(), 2u);
    game.settingsBoxes.setBox(SettingsBox::Music, 0);
    EXPECT_FALSE(g.sound.playing[music]);
    game.soundBoard.musicEnded();
    EXPECT_FALSE(g.sound.playing[music]);
    EXPECT_EQ(g.sound.played.size(), 2u);
    game.settingsBoxes.setBox(SettingsBox::Music, 1);
    EXPECT_TRUE(g.sound.playing[music]);
    EXPECT_EQ(g.sound.played.size(), 3u);
    // The click follows its own box.
    game.soundBoard.playClick();
    EXPECT_EQ(g.sound.played.back(), "click.wav");
    game.settingsBoxes.setBox(SettingsBox::Click, 0);
    game.soundBoard.playClick();
    EXPECT_EQ(g.sound.played.size(), 4u);
}
