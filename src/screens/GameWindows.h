#pragma once
#include "Screenshots.h"
#include "ports/QtDialogs.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace zorvane::screens {

class AroundScreens;
class ChildFrame;
class frmMain;
class frmSettings;
class frmTutor;
class QtSound;

// How the windowed game is set up. Null ports are the game's own: Qt's dialogs and QSettings;
// the sound is silent unless `audio` asks for the game's sound through Qt Multimedia.
struct WindowsSetup {
    std::string folder;      // where math.txt, the lists, images/ and sounds/ are
    std::string commandLine; // the one argument, as typed
    std::string executable;  // what "New Theater" starts anew
    std::uint64_t seed = 0;
    DialogPort* dialogs = nullptr;
    SettingsPort* settings = nullptr;
    SoundPort* sound = nullptr; // tests: a recording port
    bool audio = false;         // the game itself: the sound port on Qt Multimedia
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
    frmSettings& settingsWindow() { return *settings_; }
    frmTutor& tutorWindow() { return *tutor_; }
    // The Qt Multimedia port when the setup asked for audio, else null.
    QtSound* qtSound() { return ownSound_.get(); }

  private:
    void addScreenshots();
    void addModeScreenshots();

    QtScreen screen_;
    QtDialogs qtDialogs_;
    std::unique_ptr<SettingsPort> ownSettings_;
    std::unique_ptr<QtSound> ownSound_;
    std::unique_ptr<Game> game_;
    std::unique_ptr<frmMain> main_;
    std::array<ChildFrame*, 8> modes_{};
    std::unique_ptr<AroundScreens> around_;
    // Children of the main screen, which owns them.
    frmSettings* settings_ = nullptr;
    frmTutor* tutor_ = nullptr;
    Screenshots shots_;
};

} // namespace zorvane::screens
