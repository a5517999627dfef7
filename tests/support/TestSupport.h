#pragma once
#include "core/NullScreen.h"
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

// Ports that record everything the logic asks of them: log lines, the status box, views to
// repaint, pictures, child screens brought to the front, and every question and file dialog.
class RecordingScreen : public NullScreen {
  public:
    std::vector<std::string> lines;
    std::vector<std::string> status;
    std::vector<View> refreshed;
    std::vector<int> modes;
    std::vector<std::string> details; // the title screen's status box, replaced
    int loseShown = 0, goalPictures = 0, titleShown = 0;
    bool visible = false; // the building screen

    void logLine(const std::string& line, bool cleared) override {
        if (cleared)
            lines.clear();
        lines.push_back(line);
    }
    void logCleared() override { lines.clear(); }
    void titleStatus(const std::string& line) override { status.push_back(line); }
    void refresh(View v) override { refreshed.push_back(v); }
    void showLose(LoseReason) override { ++loseShown; }
    void switchMode(int mode) override { modes.push_back(mode); }
    bool buildingVisible() const override { return visible; }
    void showGoal() override { ++goalPictures; }
    void showTitle() override { ++titleShown; }
    void titleDetails(const std::string& text) override { details.push_back(text); }
    int count(const std::string& line) const;
    int refreshes(View v) const;
};

struct RecordingDialogs : ScriptedDialogs {
    std::vector<Buttons> buttons;           // of each message box, in order
    std::vector<FileMode> fileModes;        // of each file dialog, in order
    std::vector<std::string> filters;       // of each file dialog
    std::string prompt, title, defaultText; // of the last input box
    Answer ask(const std::string& text, Buttons b) override {
        buttons.push_back(b);
        return ScriptedDialogs::ask(text, b);
    }
    std::string chooseFile(FileMode mode, const std::string& filter,
                           const std::string& caption) override {
        fileModes.push_back(mode);
        filters.push_back(filter);
        return ScriptedDialogs::chooseFile(mode, filter, caption);
    }
    std::string input(const std::string& p, const std::string& t, const std::string& d) override {
        prompt = p;
        title = t;
        defaultText = d;
        return ScriptedDialogs::input(p, t, d);
    }
};

// A game in `folder` on recording ports, started as the program would be with `arg` as its
// one command-line argument.
std::unique_ptr<Game> makeGame(const std::string& folder, std::uint64_t seed,
                               const std::string& arg, ScreenPort& screen, DialogPort& dialogs,
                               SettingsPort& settings, SoundPort* sound = nullptr);

// The one game of the tests. A test that needs no data files sets the math it depends on with
// `math`, in math.txt's own lines (read by the game's math reader); entries may also be
// separated by ';'.
struct TestGame {
    RecordingScreen screen;
    RecordingDialogs dialogs;
    MemorySettings settings;
    RecordingSound sound; // heard only when the game is made `withSound`
    std::unique_ptr<Game> game;

    explicit TestGame(const std::string& folder, std::uint64_t seed = 1,
                      const std::string& arg = "", bool withSound = false);
    TestGame& math(const std::string& entries);
    Game* operator->() { return game.get(); }
    Game& operator*() { return *game; }
};

} // namespace zorvane::test
