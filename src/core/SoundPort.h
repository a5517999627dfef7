#pragma once
#include <array>
#include <string>
#include <vector>

namespace zorvane {

// The media players of the sound board, driven by the four commands of the platform's media
// control: open a file, rewind ("prev"), play and stop, none of them waiting for the end of a
// sound. Players 0 to 7 are the mode cues, then the click and the music. A player whose file
// never opened, or did not open (missing, empty, not audio), stays silent: its commands do
// nothing, and nothing is reported.
class SoundPort {
  public:
    static constexpr int modePlayers = 8;
    static constexpr int clickPlayer = 8;
    static constexpr int musicPlayer = 9;
    static constexpr int players = 10;

    virtual ~SoundPort() = default;

    virtual void open(int player, const std::string& path) = 0;
    virtual void rewind(int player) = 0;
    virtual void play(int player) = 0;
    virtual void stop(int player) = 0;
    // When the music reaches its end, the port calls the sound board's musicEnded.
};

// No audio at all: tests and games on a machine without a sound device.
class NullSound : public SoundPort {
  public:
    void open(int, const std::string&) override {}
    void rewind(int) override {}
    void play(int) override {}
    void stop(int) override {}
};

// Records what would be heard, without audio: the simulator and the tests. A file opens when
// it exists and is not empty; a play on a player whose file did not open is silent.
class RecordingSound : public SoundPort {
  public:
    std::array<std::string, players> opened{}; // the file of each player that opened, else ""
    std::array<bool, players> playing{};       // played and not stopped since
    std::vector<std::string> played;           // the file of every play that was heard

    void open(int player, const std::string& path) override;
    void rewind(int) override {}
    void play(int player) override;
    void stop(int player) override;
};

} // namespace zorvane
