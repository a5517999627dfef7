#pragma once
#include <QString>

#include <functional>
#include <memory>

namespace zorvane {
class Game;
}

namespace zorvane::screens {

class HelpWindow;
class QtDialogs;
class QtScreen;
class Screenshots;
class frmGoal;
class frmLoader;
class frmLog;
class frmLose;
class frmMain;
class frmMenuFile;

// The screens around the game: the title screen, the file menu, the log window, the
// goal-reached and game-lost pictures and the help window. Built once for a windowed game
// and hooked into its ports and its main screen:
//   - the screen port's status lines, goal descriptions, goal list, Goal menu, log lines
//     and the two pictures;
//   - the dialog port's help window;
//   - the main screen's "File" menu and the log box's double click.
class AroundScreens {
  public:
    // `showMain` brings the main screen up at the first "Play !".
    AroundScreens(Game& game, QtScreen& screen, QtDialogs& dialogs, frmMain& main,
                  std::function<void()> showMain);
    ~AroundScreens();

    // Their shots for `--screenshots`: frmLoader, frmMenuFile, frmLog, frmGoal, frmLose.
    void addScreenshots(Screenshots& shots);

    frmLoader& loader() { return *loader_; }
    frmMenuFile& menuFile() { return *menuFile_; }
    frmLog& log() { return *log_; }
    frmGoal& goal() { return *goal_; }
    frmLose& lose() { return *lose_; }
    HelpWindow& help() { return *help_; }

  private:
    Game& game_;
    frmMain& main_;
    std::unique_ptr<frmLoader> loader_;
    std::unique_ptr<frmLog> log_;
    std::unique_ptr<HelpWindow> help_;
    // The log lines of this pass, waiting to go into the log window together.
    QString pendingLog_;
    bool logScheduled_ = false;
    // Children of the main screen, which owns them.
    frmMenuFile* menuFile_;
    frmGoal* goal_;
    frmLose* lose_;
};

} // namespace zorvane::screens
