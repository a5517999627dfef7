#include "FuzzSupport.h"
#include "SaveCompare.h"

#include "core/LineFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <signal.h>
#include <sstream>
#include <unistd.h>

namespace zorvane::fuzz {

namespace fs = std::filesystem;

namespace {

// A finding aborts the process, which leaves its folder behind: the folders of processes
// that are gone are removed when the next one starts.
void removeLeftFolders() {
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(fs::temp_directory_path(), ec)) {
        const std::string name = entry.path().filename().string();
        const std::string prefix = "zorvane-fuzz-";
        if (name.rfind(prefix, 0) != 0)
            continue;
        const long pid = std::strtol(name.c_str() + prefix.size(), nullptr, 10);
        if (pid > 0 && ::kill(static_cast<pid_t>(pid), 0) != 0 && errno == ESRCH)
            fs::remove_all(entry.path(), ec);
    }
}

} // namespace

FuzzFolder::FuzzFolder() {
    removeLeftFolders();
    std::string pattern =
        (fs::temp_directory_path() / ("zorvane-fuzz-" + std::to_string(::getpid()) + "-XXXXXX"))
            .string();
    if (::mkdtemp(pattern.data()) == nullptr)
        finding("cannot make the fuzz folder " + pattern);
    path_ = pattern;
    for (const auto& entry : fs::directory_iterator(ZORVANE_SOURCE_DATA)) {
        if (entry.is_regular_file() && entry.path().filename() != "CMakeLists.txt")
            fs::copy_file(entry.path(), fs::path(path_) / entry.path().filename());
    }
}

FuzzFolder::~FuzzFolder() {
    std::error_code ec;
    fs::remove_all(path_, ec);
}

const FuzzFolder& FuzzFolder::instance() {
    static const FuzzFolder folder;
    return folder;
}

std::string FuzzFolder::write(const std::string& name, const std::uint8_t* data,
                              std::size_t size) const {
    const std::string target = file(name);
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    out.close();
    if (!out)
        finding("cannot write " + target);
    return target;
}

void FuzzFolder::trimCatalogues(std::size_t entries) const {
    for (const char* name : {"movies.lst", "games.lst", "employees.cfg", "goals.cfg"}) {
        const bool allEntries = std::string(name) == "goals.cfg"; // only its notes go
        std::istringstream in(readFile(file(name)));
        std::ofstream out(file(name), std::ios::binary | std::ios::trunc);
        std::string line;
        std::size_t kept = 0;
        while ((allEntries || kept < entries) && std::getline(in, line)) {
            if (!line.empty() && line[0] == '#')
                continue;
            out << line << "\n";
            ++kept;
        }
    }
}

Answer FuzzDialogs::ask(const std::string&, Buttons buttons) {
    ++questions;
    switch (buttons) {
    case Buttons::YesNo:
        return yesNo;
    case Buttons::YesNoCancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

FuzzGame::FuzzGame(std::uint64_t seed) {
    GameSetup setup;
    setup.folder = FuzzFolder::instance().path();
    setup.executable = setup.folder + "/zorvane";
    setup.seed = seed;
    setup.screen = &screen;
    setup.dialogs = &dialogs;
    setup.settings = &settings;
    game = std::make_unique<Game>(std::move(setup));
}

const MathVars& shippedMath() {
    static const MathVars math = [] {
        FuzzGame g;
        std::string path = std::string(ZORVANE_SOURCE_DATA) + "/math.txt";
        g->mathFile.loadMath(g->math, g->dialogs(), path);
        return g->math;
    }();
    return math;
}

void startWithShippedMath(Game& game) {
    game.math = shippedMath();
    game.finances.setFunds(game.math.initfunds);
    game.setSpeed(0);
    game.movies.initShowtimes();
    game.loans.loansSetDefaults();
    game.building.initBuilding();
    game.rating.ratingSetDefaults();
    game.promos.promosSetup();
    game.employees.positionsSetup();
    game.goals.loadGoals();
    game.concessions.initConcessions();
    game.movies.loadMovieList();
    game.employees.loadEmployeeDatabase();
    game.arcades.initArcades();
    game.movies.releaseMovies();
    game.graph.drawGraph();
    game.calendar.startCalendar();
}

void startRichGame(Game& game) {
    startWithShippedMath(game);
    game.startPlay(0);
    game.finances.setFunds(1e9);
}

std::string writeInput(const std::string& name, const std::uint8_t* data, std::size_t size) {
    const FuzzFolder& folder = FuzzFolder::instance();
    static const bool trimmed = (folder.trimCatalogues(40), true);
    (void)trimmed;
    return folder.write(name, data, size);
}

namespace {

std::string saveSections(Game& game, std::initializer_list<const char*> tags) {
    std::ostringstream text;
    LineWriter out(text);
    for (const char* tag : tags)
        for (const GameFiles::Section& s : GameFiles::sections())
            if (std::string(s.tag) == tag)
                s.save(game, out);
    return text.str();
}

void loadSections(Game& game, const std::string& text) {
    std::istringstream file(text);
    LineReader in(file, "saved sections");
    std::string line;
    while (in.readLine(line))
        for (const GameFiles::Section& s : GameFiles::sections())
            if (line == s.tag)
                s.load(game, in);
}

} // namespace

void checkSectionsRoundTrip(Game& game, std::initializer_list<const char*> tags,
                            const std::string& what) {
    std::string saved, savedAgain;
    try {
        saved = saveSections(game, tags);
    } catch (const std::exception& e) {
        finding("the " + what + " cannot be saved: " + e.what());
    }
    FuzzGame again;
    try {
        startWithShippedMath(*again);
        loadSections(*again, saved);
        savedAgain = saveSections(*again, tags);
    } catch (const std::exception& e) {
        finding("the " + what + " the game saved do not load again: " + e.what());
    }
    const std::string difference = firstDifference(saved, savedAgain);
    if (!difference.empty())
        finding("the " + what + " saved, loaded and saved again differ: " + difference);
}

void tellOutcome(const char* outcome, const char* message) {
    static const bool verbose = std::getenv("ZORVANE_FUZZ_VERBOSE") != nullptr;
    if (verbose)
        std::fprintf(stderr, "outcome: %s%s%s\n", outcome, *message ? ": " : "", message);
}

[[noreturn]] void finding(const std::string& what) {
    std::fprintf(stderr, "FINDING: %s\n", what.c_str());
    std::fflush(stderr);
    std::abort();
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

} // namespace zorvane::fuzz
