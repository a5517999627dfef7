#include "AroundScreens.h"

#include "HelpWindow.h"
#include "Screenshots.h"
#include "frmGoal.h"
#include "frmLoader.h"
#include "frmLog.h"
#include "frmLose.h"
#include "frmMain.h"
#include "frmMenuFile.h"
#include "ports/QtDialogs.h"
#include "ports/QtScreen.h"
#include "session/Game.h"

#include <QListWidget>
#include <QMetaObject>
#include <QPlainTextEdit>

namespace zorvane::screens {

AroundScreens::AroundScreens(Game& game, QtScreen& screen, QtDialogs& dialogs, frmMain& main,
                             std::function<void()> showMain)
    : game_(game), main_(main), loader_(std::make_unique<frmLoader>(game)),
      log_(std::make_unique<frmLog>(game)),
      help_(std::make_unique<HelpWindow>(QString::fromStdString(game.dataPath("zorvane.hlp")))),
      menuFile_(new frmMenuFile(game, &main)), goal_(new frmGoal(game, &main)),
      lose_(new frmLose(game, &main)) {
    loader_->attach(screen);
    QObject::connect(loader_.get(), &frmLoader::mainScreenWanted, loader_.get(),
                     [showMain = std::move(showMain)] {
                         if (showMain)
                             showMain();
                     });
    // A day writes several lines: they go into the log window together, once per pass of
    // the event loop, as they do into the main log box (one edit of the box, not ten).
    screen.onLogLine.push_back([this](const std::string& line, bool) {
        if (logScheduled_)
            pendingLog_ += QLatin1Char('\n');
        pendingLog_ += QString::fromStdString(line);
        if (logScheduled_)
            return;
        logScheduled_ = true;
        QMetaObject::invokeMethod(
            log_.get(),
            [this] {
                logScheduled_ = false;
                log_->appendLine(pendingLog_);
                pendingLog_.clear();
            },
            Qt::QueuedConnection);
    });
    screen.onShowGoal = [this] { goal_->showModal(); };
    screen.onShowLose = [this] { lose_->showModal(); };
    dialogs.onHelp = [this](const std::string&) { help_->showContents(); };
    main.onFileMenu = [this] { menuFile_->showAt(main_.pos()); };
    main.onShowLog = [this] {
        log_->show();
        log_->raise();
        log_->activateWindow();
    };
}

AroundScreens::~AroundScreens() = default;

void AroundScreens::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        // The title screen with the goal in force picked in its list, as the player sees it
        // after a click there (picking the selected goal again changes nothing).
        if (auto* goals = loader_->findChild<QListWidget*>(QStringLiteral("lstGoals")))
            goals->setCurrentRow(game_.goals.getSelected());
        s.save(loader_.get(), QStringLiteral("frmLoader.png"));
        s.save(menuFile_, QStringLiteral("frmMenuFile.png"));
        log_->copyLog();
        log_->box()->moveCursor(QTextCursor::End);
        s.save(log_.get(), QStringLiteral("frmLog.png"));
        s.save(goal_, QStringLiteral("frmGoal.png"));
        s.save(lose_, QStringLiteral("frmLose.png"));
    });
}

} // namespace zorvane::screens
