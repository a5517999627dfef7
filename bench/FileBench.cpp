#include "Theater.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

using namespace zorvane;
namespace fs = std::filesystem;

namespace {

fs::path scratch(const std::string& name) {
    const fs::path dir = fs::temp_directory_path() / "zorvane-bench";
    fs::create_directories(dir);
    return dir / name;
}

// A full theater after a year of play, saved once.
std::string savedYear() {
    static const std::string path = [] {
        bench::Theater theater(7);
        for (int d = 0; d < 336; ++d)
            theater.game().calendar.nextDay();
        theater.game().savedPath = scratch("year.zvn").string();
        theater.game().files.saveGame();
        return theater.game().savedPath;
    }();
    return path;
}

} // namespace

static void BM_saveGame(benchmark::State& state) {
    bench::Theater theater(7);
    for (int d = 0; d < 336; ++d)
        theater.game().calendar.nextDay();
    theater.game().savedPath = scratch("save.zvn").string();
    for (auto _ : state)
        benchmark::DoNotOptimize(theater.game().files.saveGame());
}
BENCHMARK(BM_saveGame)->Unit(benchmark::kMicrosecond);

static void BM_loadGame(benchmark::State& state) {
    const std::string path = savedYear();
    bench::Theater theater(8);
    for (auto _ : state)
        theater.game().files.loadGame(path);
}
BENCHMARK(BM_loadGame)->Unit(benchmark::kMicrosecond);

// The staff file at its largest: 32767 candidates.
static void BM_loadEmployeeDatabase(benchmark::State& state) {
    const fs::path dir = scratch("bigstaff");
    fs::create_directories(dir);
    for (const auto& entry : fs::directory_iterator(ZORVANE_SOURCE_DATA))
        if (entry.is_regular_file())
            fs::copy_file(entry.path(), dir / entry.path().filename(),
                          fs::copy_options::overwrite_existing);
    {
        std::ofstream out(dir / "employees.cfg");
        out << "# 32767 candidates\n";
        for (int i = 0; i < 32767; ++i)
            out << "Candidate " << i << "|" << 1 + i % 7 << "|" << 1 + i % 10 << "|"
                << 1 + (i / 10) % 10 << "\n";
    }
    for (auto _ : state) {
        state.PauseTiming();
        GameSetup setup;
        setup.folder = dir.string();
        Game game(std::move(setup));
        std::string math = game.dataPath("math.txt");
        game.mathFile.loadMath(game.math, game.dialogs(), math);
        state.ResumeTiming();
        game.employees.loadEmployeeDatabase();
    }
}
BENCHMARK(BM_loadEmployeeDatabase)->Unit(benchmark::kMillisecond);
