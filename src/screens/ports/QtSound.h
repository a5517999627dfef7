#pragma once
#include "core/SoundPort.h"

#include <QObject>

#include <array>
#include <functional>
#include <string>

class QAudioOutput;
class QMediaPlayer;
class QSoundEffect;

namespace zorvane::screens {

// The sound port of the windowed game, on Qt Multimedia: a QSoundEffect for each wave player
// (the eight mode cues and the click) and a QMediaPlayer for the music.
//
// Start-up opens every player, but opening only notes the file: the players themselves are
// made a moment later, one per pass of the event loop, once the title screen is up. So the
// sound board costs start-up next to nothing, and a command that comes before its player is
// made waits for it (the music's first play, a click in the first instant). A machine with no
// audio output makes no player at all and plays nothing, without a word. A file that is
// missing, empty or not a sound leaves its player closed: it stays silent.
class QtSound : public QObject, public SoundPort {
    Q_OBJECT
  public:
    explicit QtSound(QObject* parent = nullptr);
    ~QtSound() override;

    void open(int player, const std::string& path) override;
    void rewind(int player) override;
    void play(int player) override;
    void stop(int player) override;

    // The music reached its end (the sound board's musicEnded).
    std::function<void()> onMusicEnded;

    // Whether the machine has an audio output (asked once, when the first player is made).
    bool hasAudio();
    // Makes every opened player now (tests, benchmarks).
    void makeAll();

  private:
    void scheduleMake();
    void makeNext();
    void make(int player);
    bool ready(int player);

    std::array<std::string, players> paths_{}; // the file each opened player plays
    std::array<bool, players> made_{};
    std::array<bool, players> playWanted_{}; // played before its player was made
    std::array<QSoundEffect*, clickPlayer + 1> effects_{};
    QMediaPlayer* music_ = nullptr;
    QAudioOutput* musicOutput_ = nullptr;
    int audio_ = -1; // unknown until asked
    bool scheduled_ = false;
};

} // namespace zorvane::screens
