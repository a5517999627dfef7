#pragma once
#include "session/Game.h"

#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zorvane::test {

// A fresh folder under the system's temp folder, removed with the object.
class TempDir {
  public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    // Writes a file (binary: line ends as given).
    std::string write(const std::string& name, const std::string& content) const;

  private:
    std::filesystem::path path_;
};

std::string readFile(const std::string& path);

// The shipped data folder of the source tree.
std::string shippedData();

// A program folder made from the shipped data, with some files replaced or added, so a
// test can change one key of math.txt and keep the rest playable.
class DataFolder : public TempDir {
  public:
    DataFolder();
    // Sets (or adds) `key=value` lines at the end of math.txt: the last value wins.
    void setMath(std::initializer_list<std::pair<std::string, std::string>> entries) const;
};

// A game on a folder, with scripted dialogs and a log that records every line.
class RecordingScreen : public NullScreen {
  public:
    std::vector<std::string> lines;
    std::vector<std::string> status;
    std::vector<View> refreshed;
    int loseShown = 0;
    void logLine(const std::string& line, bool cleared) override {
        if (cleared)
            lines.clear();
        lines.push_back(line);
    }
    void titleStatus(const std::string& line) override { status.push_back(line); }
    void refresh(View v) override { refreshed.push_back(v); }
    void showLose(LoseReason) override { ++loseShown; }
    int count(const std::string& line) const;
};

// A game in `folder` on the given ports, started as the program would be with `arg` as its
// one command-line argument.
std::unique_ptr<Game> makeGame(const std::string& folder, std::uint64_t seed,
                               const std::string& arg, ScreenPort& screen, DialogPort& dialogs,
                               SettingsPort& settings);

struct TestGame {
    RecordingScreen screen;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    std::unique_ptr<Game> game;

    TestGame(const std::string& folder, std::uint64_t seed = 1, const std::string& arg = "");
    Game* operator->() { return game.get(); }
    Game& operator*() { return *game; }
};

} // namespace zorvane::test
