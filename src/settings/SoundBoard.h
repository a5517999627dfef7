#pragma once
#include "core/Numbers.h"

namespace zorvane {

class Game;

// The sound board frmSound without its window: which player stops and which plays. The players
// themselves are the game's sound port: eight mode cues (files named by sndmode0 to sndmode7
// under sounds\), the button click (sounds\click.wav) and the music (sndmidi), which loops.
class SoundBoard {
  public:
    explicit SoundBoard(Game& game) : game_(game) {}

    Int16 currentSound; // the last mode whose cue started, 0 at start

    // Start-up: opens every player whose file is named and starts the music. The names are read
    // here only, so "Reload math" cannot change which files play.
    void init();
    // Every button of the game: the click, when "Button clicks" is ticked.
    void playClick();
    // From the start, when "Music" is ticked. Called at the end of each play, which is how the
    // music loops and how it stops looping once the box is cleared.
    void startMusic();
    void stopMusic();
    // Entering a mode (switchMode): the last cue stops, and the mode's cue plays when it has a
    // file name and "Sound Effects" is ticked.
    void startMM(int mode);
    // The music player's notice that a play reached its end.
    void musicEnded() { startMusic(); }

  private:
    Game& game_;
};

} // namespace zorvane
