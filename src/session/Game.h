#pragma once
#include "core/DialogPort.h"
#include "core/MathFile.h"
#include "core/MathVars.h"
#include "core/NullScreen.h"
#include "core/Random.h"
#include "core/SettingsPort.h"
#include "core/SoundPort.h"
#include "core/Version.h"
#include "session/Calendar.h"

#include "advisor/Tutor.h"
#include "arcade/arcadeManager.h"
#include "building/buildingManager.h"
#include "concessions/ConcessionManager.h"
#include "goals/goalManager.h"
#include "money/Finances.h"
#include "money/GraphManager.h"
#include "money/loanManager.h"
#include "movies/MovieManager.h"
#include "persistence/GameFiles.h"
#include "reputation/promoManager.h"
#include "reputation/ratingManager.h"
#include "settings/SettingsBoxes.h"
#include "settings/SoundBoard.h"
#include "staff/employeeManager.h"

#include <array>
#include <cstdint>
#include <string>

namespace zorvane {

// How a Game is set up: where its files are, who shows it, and its dice.
struct GameSetup {
    std::string folder;      // the program's folder: math.txt, the lists, images/, sounds/
    std::string commandLine; // the game's one command-line argument, as typed
    std::string executable;  // what "New Theater" starts anew
    std::uint64_t seed = 0;
    ScreenPort* screen = nullptr;     // null: a screen that shows nothing
    DialogPort* dialogs = nullptr;    // null: every question gets its default answer
    SettingsPort* settings = nullptr; // null: settings held in memory
    SoundPort* sound = nullptr;       // null: silence
};

// One game session: it owns every manager, the math variables, the random generator, the
// log and the session state. Nothing of a game lives outside it, so several games can run
// side by side (tests, the balance lab's threads).
class Game {
  public:
    explicit Game(GameSetup setup);
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    // The entry routine: brings every subsystem up in the fixed start-up order and runs the
    // first day. The game then waits on the title screen for "Play !".
    void startup();
    // "Play !" on the title screen with line `listIndex` of the goal list picked (-1: none):
    // that goal's starting figures, then, the first time, the main screen.
    void startPlay(int listIndex);

    // --- session ---
    void gameLog(const std::string& text, int slot);
    void resetLogSlots();
    // Whether a once-a-day message of that slot has been logged today (so a busy caller can
    // skip building the text).
    bool logSlotUsed(int slot) const {
        return slot > 0 && slot <= 20 && logSlots[static_cast<std::size_t>(slot)];
    }
    void reportError(const std::string& text);
    void markUnsaved() { saved = false; }
    void quitGame();
    void newGame();
    void showLose(LoseReason why);
    std::string getMathFile() const;
    void autoload();
    void reloadMath();
    [[noreturn]] void endProcess(const std::string& why);

    // The speed of the clock: 0 pause, 1 to 3 slow to fast; -1 stops and remembers the
    // speed, -2 returns to the remembered speed.
    void setSpeed(int newSpeed);
    int timerInterval() const; // milliseconds of the running speed, 0 when paused
    // One tick of the clock, or a click on a day: runs nextDay unless a day is already
    // running (a modal box or picture opened inside it lets the clock tick on); such a tick
    // is dropped, so days never nest. True when a day ran.
    bool clockTick();

    // --- the main screen ---
    // switchMode: the child screen of a mode (0 to 7) comes to the front; another number
    // is reported through the error box.
    void switchMode(int mode);
    // The money summary's details: "true" opens, "false" closes (any case), empty toggles,
    // other text leaves them as they are.
    void expand(const std::string& text);

    // A file of the program's folder ("images\arcades\x.png" style names work too).
    std::string dataPath(const std::string& name) const;

    ScreenPort& screen() { return *screen_; }
    DialogPort& dialogs() { return *dialogs_; }
    SettingsPort& settings() { return *settings_; }
    SoundPort& soundPort() { return *sound_; }
    const std::string& folder() const { return setup_.folder; }
    const std::string& commandLine() const { return setup_.commandLine; }

    // --- state ---
    MathVars math;
    MathFile mathFile;
    Random rng;

    std::string savedPath; // the current saved-game path
    bool saved = false;    // set by a save, cleared by every day
    std::array<bool, 21> logSlots{};
    std::string logBox; // the main log box's text
    Int16 speed;
    Int16 lastSpeed;
    int loseShown = 0;     // how many times the lost-game picture was asked for
    int goalShown = 0;     // how many times the goal-reached picture was asked for
    bool playing = false;  // "Play !" was pressed at least once
    bool expanded = false; // the money summary's details are open
    Int16 currentMode;     // the mode shown last
    // Each mode's screen colour and mode button colour (0xBBGGRR), from formcolor0 to 7.
    std::array<std::int32_t, 8> formColours{};

    Calendar calendar;
    Finances finances;
    buildingManager building;
    employeeManager employees;
    MovieManager movies;
    ConcessionManager concessions;
    arcadeManager arcades;
    promoManager promos;
    ratingManager rating;
    loanManager loans;
    GraphManager graph;
    goalManager goals;
    GameFiles files;
    SettingsBoxes settingsBoxes; // frmSettings
    SoundBoard soundBoard;       // frmSound
    Tutor tutor;                 // frmTutor, the business advisor

  private:
    void status(const std::string& line); // a line of the title screen's status box
    void setupForms();                    // start-up's "setting up forms"

    GameSetup setup_;
    NullScreen nullScreen_;
    ScriptedDialogs nullDialogs_;
    MemorySettings memorySettings_;
    NullSound nullSound_;
    ScreenPort* screen_;
    DialogPort* dialogs_;
    SettingsPort* settings_;
    SoundPort* sound_;
};

} // namespace zorvane
