#pragma once
#include "support/TestSupport.h"

#include <filesystem>
#include <memory>

namespace zorvane::test {

// The shipped sounds copied into a program folder.
inline void copySounds(const DataFolder& data) {
    std::filesystem::copy(std::filesystem::path(shippedData()) / "sounds", data.path() / "sounds");
}

// A game on a copy of the shipped data, sounds included, whose sound port records what would
// be heard; the settings store can be filled before start-up.
struct SoundGame {
    DataFolder data;
    RecordingScreen screen;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    RecordingSound sound;
    std::unique_ptr<Game> game;

    SoundGame() { copySounds(data); }
    // Start-up, then "Play !" on Free Play.
    Game& start() {
        GameSetup setup;
        setup.folder = data.path().string();
        setup.seed = 1;
        setup.screen = &screen;
        setup.dialogs = &dialogs;
        setup.settings = &settings;
        setup.sound = &sound;
        game = std::make_unique<Game>(std::move(setup));
        game->startup();
        game->startPlay(0);
        return *game;
    }
    std::string stored(const char* section, const char* key) const {
        return settings.get(section, key, "(none)");
    }
};

} // namespace zorvane::test
