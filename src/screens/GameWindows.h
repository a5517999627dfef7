#pragma once
#include "Screenshots.h"
#include "session/Game.h"
#include "ports/QtDialogs.h"
#include "ports/QtScreen.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace zorvane::screens {

class AroundScreens;
class ChildFrame;
class frmMain;

// How the windowed game is set up. Null ports are the game's own: Qt's dialogs and QSettings.
struct WindowsSetup {
    std::string folder;      // where math.txt, the lists, images/ and sounds/ are
    std::string commandLine; // the one argument, as typed
    std::string executable;  // what "New Theater" starts anew
    std::uint64_t seed = 0;
    DialogPort* dialogs = nullptr;
    SettingsPort* settings = nullptr;
};

// One windowed game: the ports, the game and every window, created hidden in start-up
// order. main() and the screen tests build one of these.
class GameWindows {
public:
    explicit GameWindows(WindowsSetup setup);
    ~GameWindows();

    // The title screen comes up, then the entry routine runs, its status lines going to the
    // title screen's box. The game then waits there for "Play !".
    void startup();
    // "Play !" pressed for the first time: the main screen comes up where it last was.
    void showMain();

    Game& game() { return *game_; }
    QtScreen& screen() { return screen_; }
    QtDialogs& qtDialogs() { return qtDialogs_; }
    frmMain& main() { return *main_; }
    // The title screen, file menu, log window, end pictures and help.
    AroundScreens& around() { return *around_; }
    ChildFrame* modeScreen(int mode) { return modes_[static_cast<std::size_t>(mode)]; }
    Screenshots& screenshots() { return shots_; }

private:
    void addScreenshots();
    void addModeScreenshots();

    QtScreen screen_;
    QtDialogs qtDialogs_;
    std::unique_ptr<SettingsPort> ownSettings_;
    std::unique_ptr<Game> game_;
    std::unique_ptr<frmMain> main_;
    std::array<ChildFrame*, 8> modes_{};
    std::unique_ptr<AroundScreens> around_;
    Screenshots shots_;
};

} // namespace zorvane::screens
