#include "core/GameError.h"
#include "support/SoundGame.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace zorvane;
using namespace zorvane::test;

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

TEST(SoundBoard, NoMusicNamedOpensNone) {
    SoundGame g;
    g.data.setMath({{"sndmidi", ""}});
    g.start();
    EXPECT_EQ(g.sound.opened[music], "");
    EXPECT_TRUE(g.sound.played.empty());
}

// currentSound moves only when a cue really starts; the last cue is stopped in every case.
TEST(SoundBoard, ModeCuesStopTheLastAndMoveOnlyWhenOneStarts) {
    SoundGame g;
    g.data.setMath({{"sndmode3", ""}});
    std::filesystem::remove(g.data.path() / "sounds" / "loans.wav");
    Game& game = g.start();
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
    EXPECT_EQ(g.dialogs.asked.back(),
              "Called switchMode with invalid mode number: 8\r\nContinue program?");
    EXPECT_EQ(game.soundBoard.currentSound, 7);
}

TEST(SoundBoard, ClearingMusicStopsItAndTheEndNoticeDoesNotRestartIt) {
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
}

TEST(SoundBoard, ClickFollowsItsBox) {
    SoundGame g;
    Game& game = g.start();
    game.soundBoard.playClick();
    EXPECT_EQ(g.sound.played.back(), "click.wav");
    const std::size_t heard = g.sound.played.size();
    game.settingsBoxes.setBox(SettingsBox::Click, 0);
    game.soundBoard.playClick();
    EXPECT_EQ(g.sound.played.size(), heard);
}
