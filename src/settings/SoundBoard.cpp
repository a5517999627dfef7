#include "settings/SoundBoard.h"

#include "core/GameError.h"
#include "core/SoundPort.h"
#include "session/Game.h"

namespace zorvane {

namespace {
const char* const soundFolder = "sounds\\";
}

void SoundBoard::init() {
    SoundPort& port = game_.soundPort();
    for (int i = 0; i < SoundPort::modePlayers; ++i) {
        const std::string& name = game_.math.sndmode[static_cast<std::size_t>(i)];
        if (name.empty())
            continue; // stays closed: silence
        port.open(i, game_.dataPath(soundFolder + name));
        port.rewind(i);
    }
    port.open(SoundPort::clickPlayer, game_.dataPath(std::string(soundFolder) + "click.wav"));
    port.rewind(SoundPort::clickPlayer);
    if (!game_.math.sndmidi.empty()) {
        port.open(SoundPort::musicPlayer, game_.dataPath(soundFolder + game_.math.sndmidi));
        startMusic();
    }
}

void SoundBoard::playClick() {
    if (!game_.settingsBoxes.ticked(SettingsBox::Click))
        return;
    game_.soundPort().rewind(SoundPort::clickPlayer);
    game_.soundPort().play(SoundPort::clickPlayer);
}

// Whether a file is open is not asked: a player with none plays nothing.
void SoundBoard::startMusic() {
    if (!game_.settingsBoxes.ticked(SettingsBox::Music))
        return;
    game_.soundPort().rewind(SoundPort::musicPlayer);
    game_.soundPort().play(SoundPort::musicPlayer);
}

void SoundBoard::stopMusic() {
    game_.soundPort().stop(SoundPort::musicPlayer);
    game_.soundPort().rewind(SoundPort::musicPlayer);
}

// currentSound moves only when a cue really starts: a mode without a file, or with "Sound
// Effects" cleared, stops the last cue and leaves currentSound on it. The name is read now,
// so a reloaded math file that empties it silences the mode, though the player stays open.
void SoundBoard::startMM(int mode) {
    if (mode < 0 || mode >= SoundPort::modePlayers)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: sound player " + std::to_string(mode));
    game_.soundPort().stop(currentSound);
    if (game_.math.sndmode[static_cast<std::size_t>(mode)].empty() ||
        !game_.settingsBoxes.ticked(SettingsBox::Sound))
        return;
    currentSound = mode;
    game_.soundPort().rewind(mode);
    game_.soundPort().play(mode);
}

} // namespace zorvane
