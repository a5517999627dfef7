#include "persistence/GameFiles.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

#include <fstream>

namespace zorvane {

const char* const GameFiles::fileFilter = "Theater saved games (*.ZVN)|*.zvn|All File (*.*)|*.*";
const char* const GameFiles::versionMessage =
    "This saved game is from a different program version.  There may be unexpected results.";

namespace {

// The math variables are not part of a saved game: a game goes on under the math file of
// the session that loads it. The <math> tag is still known, but its step writes nothing
// (not even the tag) and its reader reads nothing.
void saveMath(Game&, LineWriter&) {}
void loadMathSection(Game&, LineReader&) {}

} // namespace

const std::vector<GameFiles::Section>& GameFiles::sections() {
    static const std::vector<Section> table = {
        {"<math>", saveMath, loadMathSection},
        {"<calendar>", [](Game& g, LineWriter& o) { g.calendar.saveCalendar(o); },
         [](Game& g, LineReader& i) { g.calendar.loadCalendar(i); }},
        {"<finances>", [](Game& g, LineWriter& o) { g.finances.saveFinances(o); },
         [](Game& g, LineReader& i) { g.finances.loadFinances(i); }},
        {"<positions>", [](Game& g, LineWriter& o) { g.employees.savePositions(o); },
         [](Game& g, LineReader& i) { g.employees.loadPositions(i); }},
        {"<emps>", [](Game& g, LineWriter& o) { g.employees.saveEmployees(o); },
         [](Game& g, LineReader& i) { g.employees.loadEmployees(i); }},
        {"<movies>", [](Game& g, LineWriter& o) { g.movies.saveMovies(o); },
         [](Game& g, LineReader& i) { g.movies.loadMovies(i); }},
        {"<showtimes>", [](Game& g, LineWriter& o) { g.movies.saveShowtimes(o); },
         [](Game& g, LineReader& i) { g.movies.loadShowtimes(i); }},
        {"<concessions>", [](Game& g, LineWriter& o) { g.concessions.saveConcessions(o); },
         [](Game& g, LineReader& i) { g.concessions.loadConcessions(i); }},
        {"<arcades>", [](Game& g, LineWriter& o) { g.arcades.saveArcades(o); },
         [](Game& g, LineReader& i) { g.arcades.loadArcades(i); }},
        {"<promotions>", [](Game& g, LineWriter& o) { g.promos.savePromotions(o); },
         [](Game& g, LineReader& i) { g.promos.loadPromotions(i); }},
        {"<loans>", [](Game& g, LineWriter& o) { g.loans.saveLoans(o); },
         [](Game& g, LineReader& i) { g.loans.loadLoans(i); }},
        {"<ratings>", [](Game& g, LineWriter& o) { g.rating.saveRatings(o); },
         [](Game& g, LineReader& i) { g.rating.loadRatings(i); }},
        {"<building>", [](Game& g, LineWriter& o) { g.building.saveBuilding(o); },
         [](Game& g, LineReader& i) { g.building.loadBuilding(i); }},
    };
    return table;
}

// Writes the game to the current path. The result is true from the moment a path is known,
// so a save that fails on the way still returns true, silently, with no log line and the
// saved flag left as it was: a quit through Yes then ends with the game unsaved.
bool GameFiles::saveGame() {
    if (game_.savedPath.empty())
        game_.savedPath = game_.dialogs().chooseFile(FileMode::Save, fileFilter, "Save Theater");
    if (game_.savedPath.empty())
        return false;
    try {
        writeAll(game_.savedPath);
        game_.gameLog("saved " + game_.savedPath, 0);
        game_.saved = true;
    } catch (const GameError&) {
        // Kept on purpose: a failed save is not reported, and what was written stays.
    }
    return true;
}

bool GameFiles::saveAs() {
    game_.savedPath.clear();
    return saveGame();
}

// There is no temporary file: the old file is replaced from the first line, and a failure
// in the middle leaves a half-written game.
void GameFiles::writeAll(const std::string& path) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file)
        throw GameError(GameError::Kind::Io, "cannot open " + path + " for writing");
    LineWriter out(file);
    out << "<version>";
    out << "programVersion=" + programVersion();
    out << "</version>";
    for (const Section& s : sections())
        s.save(game_, out);
    file.close();
    if (!file)
        throw GameError(GameError::Kind::Io, "writing " + path + " failed");
}

// Reads a saved game into the running one. The load runs no day, changes no speed and
// leaves the saved flag alone, so a quit straight after a load still asks. Whatever fails
// ends the load silently, keeping what was read so far and the new path.
void GameFiles::loadGame(const std::string& path) {
    if (!path.empty()) {
        game_.savedPath = path;
    } else {
        const std::string chosen =
            game_.dialogs().chooseFile(FileMode::Open, fileFilter, "Open Theater");
        // Cancelled: the load goes on with the current path, so the game falls back to its
        // last saved state without a question.
        if (!chosen.empty())
            game_.savedPath = chosen;
    }
    game_.logBox.clear();
    game_.screen().logCleared();
    game_.gameLog("Loading " + game_.savedPath, 0);
    try {
        readAll(game_.savedPath);
    } catch (const GameError&) {
        // Kept on purpose: no message, and the sections read before the failure stay.
    }
}

// Sections may come in any order, be missing, or come twice (read twice). A line is an open
// tag only when, lower-cased, it equals the tag exactly: a trailing blank hides the section,
// whose lines are then skipped one by one.
void GameFiles::readAll(const std::string& path) {
    std::ifstream file = openTextFile(path);
    LineReader in(file, path);
    bool versionOk = false;
    std::string line;
    while (in.readLine(line)) {
        const std::string tag = toLower(line);
        if (tag == "<version>") {
            versionOk = readVersionSection(in);
            continue;
        }
        for (const Section& s : sections()) {
            if (tag == s.tag) {
                s.load(game_, in);
                break;
            }
        }
    }
    file.close();
    if (!versionOk)
        game_.dialogs().ask(versionMessage, Buttons::Ok);
}

bool GameFiles::readVersionSection(LineReader& in) {
    std::string kept, line, key, value;
    while (in.readLine(line)) {
        if (line.rfind("</", 0) == 0)
            break;
        if (splitKeyValue(line, key, value) && toLower(key) == "programversion")
            kept = value;
    }
    return toLower(kept) == toLower(programVersion());
}

} // namespace zorvane
