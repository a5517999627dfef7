#include "GameWindows.h"

#include "AroundScreens.h"
#include "frame/ButtonLabel.h"
#include "frmArcade.h"
#include "frmBuilding.h"
#include "frmConcessions.h"
#include "frmEmployees.h"
#include "frmGraphs.h"
#include "frmLoader.h"
#include "frmLoans.h"
#include "frmLog.h"
#include "frmMain.h"
#include "frmMovies.h"
#include "frmPromo.h"
#include "frmSettings.h"
#include "frmTutor.h"
#include "ports/QtSettings.h"
#include "ports/QtSound.h"

#include <QApplication>

namespace zorvane::screens {

GameWindows::GameWindows(WindowsSetup setup) {
    if (!setup.settings)
        ownSettings_ = std::make_unique<QtSettings>();
    if (!setup.sound && setup.audio)
        ownSound_ = std::make_unique<QtSound>();
    GameSetup g;
    g.folder = setup.folder;
    g.commandLine = setup.commandLine;
    g.executable = setup.executable;
    g.seed = setup.seed;
    g.screen = &screen_;
    g.dialogs = setup.dialogs ? setup.dialogs : &qtDialogs_;
    g.settings = setup.settings ? setup.settings : ownSettings_.get();
    g.sound = setup.sound ? setup.sound : ownSound_.get();
    game_ = std::make_unique<Game>(std::move(g));
    if (ownSound_)
        ownSound_->onMusicEnded = [this] { game_->soundBoard.musicEnded(); };

    main_ = std::make_unique<frmMain>(*game_, screen_);
    qtDialogs_.parent = main_.get();
    modes_ = {new frmPromo(*game_, 0, main_.get()),       new frmEmployees(*game_, 0, main_.get()),
              new frmMovies(*game_, 0, main_.get()),      new frmArcade(*game_, 0, main_.get()),
              new frmConcessions(*game_, 0, main_.get()), new frmLoans(*game_, 0, main_.get()),
              new frmGraphs(*game_, 0, main_.get()),      new frmBuilding(*game_, 0, main_.get())};
    main_->setModeScreens(modes_);
    for (ChildFrame* m : modes_)
        m->attach(screen_);
    around_ = std::make_unique<AroundScreens>(*game_, screen_, qtDialogs_, *main_,
                                              [this] { showMain(); });
    // The advisor and the settings screen float above the main screen, which owns them.
    tutor_ = new frmTutor(*game_, main_.get());
    tutor_->attach(screen_);
    settings_ = new frmSettings(*game_, main_.get());
    settings_->attach(screen_);
    main_->onSettingsMenu = [this] { settings_->showSettings(); };
    // Every button label of the game clicks through the sound board.
    const auto click = [this] { game_->soundBoard.playClick(); };
    setClickRoute(main_.get(), click);
    setClickRoute(&around_->loader(), click);
    setClickRoute(&around_->log(), click);

    addScreenshots();
    around_->addScreenshots(shots_);
    settings_->addScreenshots(shots_);
    tutor_->addScreenshots(shots_);
    addModeScreenshots();
}

GameWindows::~GameWindows() = default;

void GameWindows::startup() {
    around_->loader().show();
    game_->startup();
    // Start-up's "setting up forms" has turned each formcolor into a colour.
    main_->setupForms();
    main_->refreshAll();
}

void GameWindows::showMain() {
    if (main_->isVisible())
        return;
    main_->restorePosition();
    main_->refreshAll();
    main_->show();
    main_->alignForm();
}

void GameWindows::addScreenshots() {
    shots_.add([this](Screenshots& s) {
        main_->refreshAll();
        screen_.flush();
        s.save(main_.get(), QStringLiteral("frmMain.png"));
        game_->expand("true");
        screen_.flush();
        s.save(main_.get(), QStringLiteral("frmMain-expanded.png"));
        game_->expand("false");
        screen_.flush();
    });
}

void GameWindows::addModeScreenshots() {
    for (ChildFrame* m : modes_)
        m->addScreenshots(shots_);
}

} // namespace zorvane::screens
