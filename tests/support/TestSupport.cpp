#include "support/TestSupport.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace zorvane::test {

namespace fs = std::filesystem;

TempDir::TempDir() {
    static std::atomic<int> counter{0};
    path_ = fs::temp_directory_path() /
            ("zorvane-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    fs::remove_all(path_);
    fs::create_directories(path_);
}

TempDir::~TempDir() {
    std::error_code ec;
    fs::remove_all(path_, ec);
}

std::string TempDir::write(const std::string& name, const std::string& content) const {
    const fs::path p = path_ / name;
    fs::create_directories(p.parent_path());
    std::ofstream out(p, std::ios::binary);
    out << content;
    return p.string();
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

std::string shippedData() {
    return ZORVANE_SOURCE_DATA;
}

DataFolder::DataFolder() {
    for (const auto& entry : fs::directory_iterator(shippedData())) {
        if (entry.is_regular_file())
            fs::copy_file(entry.path(), path() / entry.path().filename());
    }
}

void DataFolder::setMath(std::initializer_list<std::pair<std::string, std::string>> entries) const {
    std::ofstream out(path() / "math.txt", std::ios::app | std::ios::binary);
    out << "\n";
    for (const auto& [key, value] : entries)
        out << key << "=" << value << "\n";
}

int RecordingScreen::count(const std::string& line) const {
    int n = 0;
    for (const auto& l : lines)
        n += (l == line);
    return n;
}

std::unique_ptr<Game> makeGame(const std::string& folder, std::uint64_t seed,
                               const std::string& arg, ScreenPort& screen, DialogPort& dialogs,
                               SettingsPort& settings, SoundPort* sound) {
    GameSetup setup;
    setup.folder = folder;
    setup.commandLine = arg;
    setup.executable = folder + "/zorvane";
    setup.seed = seed;
    setup.screen = &screen;
    setup.dialogs = &dialogs;
    setup.settings = &settings;
    setup.sound = sound;
    return std::make_unique<Game>(std::move(setup));
}

int RecordingScreen::refreshes(View v) const {
    return static_cast<int>(std::count(refreshed.begin(), refreshed.end(), v));
}

TestGame::TestGame(const std::string& folder, std::uint64_t seed, const std::string& arg,
                   bool withSound)
    : game(makeGame(folder, seed, arg, screen, dialogs, settings, withSound ? &sound : nullptr)) {}

TestGame& TestGame::math(const std::string& entries) {
    const fs::path path = fs::path(game->folder()) / "test-overrides.mth";
    {
        std::ofstream out(path, std::ios::binary);
        bool lineStart = false; // blanks after a ';' are not part of the next key
        for (char c : entries) {
            if (lineStart && c == ' ')
                continue;
            lineStart = c == ';';
            out << (lineStart ? '\n' : c);
        }
        out << '\n';
    }
    std::string p = path.string();
    game->mathFile.loadMath(game->math, dialogs, p);
    fs::remove(path);
    return *this;
}

} // namespace zorvane::test
