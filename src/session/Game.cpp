#include "session/Game.h"

#include "core/GameError.h"
#include "core/Text.h"
#include "session/TitleScreen.h"

namespace zorvane {

Game::Game(GameSetup setup)
    : rng(setup.seed), calendar(*this), finances(*this), building(*this), employees(*this),
      movies(*this), concessions(*this), arcades(*this), promos(*this), rating(*this), loans(*this),
      graph(*this), goals(*this), files(*this), settingsBoxes(*this), soundBoard(*this),
      tutor(*this), setup_(std::move(setup)), screen_(setup_.screen ? setup_.screen : &nullScreen_),
      dialogs_(setup_.dialogs ? setup_.dialogs : &nullDialogs_),
      settings_(setup_.settings ? setup_.settings : &memorySettings_),
      sound_(setup_.sound ? setup_.sound : &nullSound_) {}

void Game::status(const std::string& line) {
    screen_->titleStatus(line);
}

void Game::startup() {
    status(versionCaption());
    status("Initializing random number generator");
    rng.reseed(setup_.seed);
    status("Loading registry settings");
    settingsBoxes.getReg();
    std::string mathPath = getMathFile();
    status("Loading math variables from " + mathPath);
    mathFile.loadMath(math, *dialogs_, mathPath);
    status("setting up forms");
    setupForms();
    status("setting default values");
    finances.setFunds(math.initfunds);
    expand("false");
    setSpeed(0);
    movies.initShowtimes();
    loans.loansSetDefaults();
    building.initBuilding();
    rating.ratingSetDefaults();
    status("setting up promotions");
    promos.promosSetup();
    status("setting up job positions");
    employees.positionsSetup();
    status("loading goals");
    goals.loadGoals();
    status("setting up concessions");
    concessions.initConcessions();
    status("loading movies database");
    movies.loadMovieList();
    status("loading employee database");
    employees.loadEmployeeDatabase();
    status("loading arcade database and releasing some games");
    arcades.initArcades();
    status("releasing first set of movies");
    movies.releaseMovies();
    status("setting up graph");
    graph.drawGraph();
    status("starting sound board");
    soundBoard.init();
    autoload();
    status("invoking next day");
    calendar.startCalendar();
}

// The goal at the list index gives its starting figures (-1, no line picked, keeps the goal
// in force). Picking a line is the list's own click (selectGoal), not this. The first press
// brings up the main screen; a later one, through the Goal menu, only re-applies the figures.
void Game::startPlay(int listIndex) {
    goals.startGoal(listIndex);
    if (!playing)
        status("bringing up main form");
    if (!playing && settingsBoxes.ticked(SettingsBox::Tutor))
        tutor.startTutor();
    playing = true;
}

// The message channel of the whole game. Slot 0 always logs; slots 1 to 20 log once a day.
void Game::gameLog(const std::string& text, int slot) {
    if (slot < 0 || slot > 20)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: log slot " + std::to_string(slot));
    if (logSlots[static_cast<std::size_t>(slot)])
        return;
    // The box is emptied without notice once it passes 65000 characters.
    const bool cleared = logBox.size() > 65000;
    if (cleared)
        logBox.clear();
    logBox += "\r\n";
    logBox += text;
    screen_->logLine(text, cleared);
    if (slot > 0)
        logSlots[static_cast<std::size_t>(slot)] = true;
}

void Game::resetLogSlots() {
    for (int i = 1; i <= 20; ++i)
        logSlots[static_cast<std::size_t>(i)] = false;
}

void Game::reportError(const std::string& text) {
    if (dialogs_->ask(text + "\r\n" + "Continue program?", Buttons::YesNo) == Answer::No)
        endProcess("the player chose not to continue after an error");
}

void Game::quitGame() {
    if (saved)
        endProcess("quit");
    switch (dialogs_->ask("Save your theater before quitting?", Buttons::YesNoCancel)) {
    case Answer::Cancel:
        return;
    case Answer::Yes:
        if (files.saveGame())
            endProcess("quit after saving");
        return; // the file dialog was cancelled: the game goes on
    default:
        endProcess("quit without saving");
    }
}

// A new game is a new process: nothing is reset in place. The saved flag plays no part, so a
// game saved a moment ago is still asked about.
void Game::newGame() {
    if (savedPath.empty()) {
        if (dialogs_->ask("Unsaved game, proceed?", Buttons::YesNo) == Answer::No)
            return;
    } else {
        switch (dialogs_->ask("Save first?", Buttons::YesNoCancel)) {
        case Answer::Cancel:
            return;
        case Answer::Yes:
            if (!files.saveGame())
                return;
            break;
        default:
            break;
        }
    }
    dialogs_->startProcess("\"" + setup_.executable + "\"");
    endProcess("new game");
}

void Game::showLose(LoseReason why) {
    ++loseShown;
    screen_->showLose(why);
}

std::string Game::getMathFile() const {
    const std::string arg = stripQuotes(setup_.commandLine);
    if (arg.size() >= 4 && toLower(arg.substr(arg.size() - 4)) == ".mth")
        return arg;
    return dataPath("math.txt");
}

void Game::autoload() {
    const std::string arg = stripQuotes(setup_.commandLine);
    if (arg.size() >= 4 && toLower(arg.substr(arg.size() - 4)) == ".zvn") {
        status("Autoloading " + arg);
        files.loadGame(arg);
    }
}

// "Reload math": the file of the session is read again (a .mth from the command line stays
// the file). What was copied from the math at start-up keeps its value.
void Game::reloadMath() {
    std::string path;
    mathFile.loadMath(math, *dialogs_, path);
    building.showBuilding();         // recomputes the building's costs
    employees.refreshEmployeeGrid(); // the staff display renumbers the staff
    screen_->refresh(View::ConcessionListing);
    promos.showPromotions(); // recomputes the running points against the cap
}

void Game::endProcess(const std::string& why) {
    zorvane::endProcess(*dialogs_, why);
}

void Game::setSpeed(int newSpeed) {
    if (newSpeed == -2)
        newSpeed = lastSpeed;
    if (newSpeed != -1)
        lastSpeed = newSpeed;
    else
        newSpeed = 0;
    if (newSpeed < 0 || newSpeed > 3)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: speed " + std::to_string(newSpeed));
    speed = newSpeed;
    screen_->refresh(View::Speed);
}

bool Game::clockTick() {
    if (calendar.dayRunning())
        return false;
    calendar.nextDay();
    return true;
}

int Game::timerInterval() const {
    return speed == 0 ? 0 : math.gamespeed[speed];
}

std::string Game::dataPath(const std::string& name) const {
    return zorvane::dataPath(setup_.folder, name);
}

} // namespace zorvane
