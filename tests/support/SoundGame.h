#pragma once
#include "support/TestSupport.h"

#include <filesystem>
#include <string>

namespace zorvane::test {

// The shipped sounds copied into a program folder.
inline void copySounds(const DataFolder& data) {
    std::filesystem::copy(std::filesystem::path(shippedData()) / "sounds", data.path() / "sounds");
}

struct SoundFolder {
    DataFolder data;
    SoundFolder() { copySounds(data); }
};

// A game on a copy of the shipped data, sounds included, whose sound port records what would
// be heard; the settings store and the data can be changed before start-up.
struct SoundGame : SoundFolder, TestGame {
    SoundGame() : TestGame(data.path().string(), 1, "", true) {}
    // Start-up, then "Play !" on Free Play.
    Game& start() {
        game->startup();
        game->startPlay(0);
        return *game;
    }
    std::string stored(const char* section, const char* key) const {
        return settings.get(section, key, "(none)");
    }
};

} // namespace zorvane::test
