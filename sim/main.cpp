// zorvane-sim: the game without a window. A player's decisions come from a script.
#include "Simulator.h"
#include "lab/Lab.h"
#include "lab/Strategy.h"

#include "session/Game.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <iostream>

namespace {

std::vector<std::string> readLines(std::istream& in) {
    std::vector<std::string> lines;
    std::string line;
    while (std::getline(in, line))
        lines.push_back(line);
    return lines;
}

} // namespace

// Whatever escapes (a lab run, the files of --csv and --chart) is a fatal error too: its
// message and status 70, never an abort.
int main(int argc, char** argv) try {
    using namespace zorvane;
    CLI::App app{"zorvane-sim: runs the Zorvane movie-theater game without a window, "
                 "driven by a script of commands."};
    sim::SimOptions options;
    std::string script = "-";
    std::uint64_t seed = 0;
    app.add_option("--data", options.dataDir,
                   "the program's folder (math.txt, lists, images, sounds)");
    app.add_option("--arg", options.arg, "the game's one command-line argument (.zvn or .mth)");
    auto* seedOpt = app.add_option("--seed", seed, "seed of the game's random generator");
    app.add_option("--goal", options.goal, "goal list index chosen at \"Play !\" (0: Free Play)");
    app.add_flag("--quiet", options.quiet, "print only what commands ask for");
    app.set_version_flag("--version", "zorvane-sim " + programVersion());
    app.add_option("script", script, "script file; standard input when absent or -");

    lab::LabOptions labOptions;
    std::string csvPath, chartPath;
    auto* labOpt = app.add_option("--lab", labOptions.strategy,
                                  "balance lab: play many games with a built-in strategy")
                       ->check(CLI::IsMember(lab::strategyNames()));
    app.add_option("--games", labOptions.games, "lab: number of games")
        ->check(CLI::Range(1, 1000000));
    app.add_option("--years", labOptions.years, "lab: game years each")->check(CLI::Range(1, 1000));
    app.add_option("--threads", labOptions.threads, "lab: threads (default: all cores)")
        ->check(CLI::Range(1, 1024));
    app.add_option("--csv", csvPath, "lab: write one row per game and month to this file");
    app.add_option("--chart", chartPath,
                   "lab: draw the month-end funds fan chart to this SVG file");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        const int code = app.exit(e);
        return code == 0 ? 0 : 2;
    }
    options.seed = seedOpt->count() ? seed : secondsSinceMidnight();
    if (options.dataDir.empty())
        options.dataDir = sim::defaultDataDir(argv[0]);

    if (labOpt->count()) {
        labOptions.dataDir = options.dataDir;
        labOptions.arg = options.arg;
        labOptions.goal = options.goal;
        labOptions.seed = seedOpt->count() ? seed : 1;
        const lab::LabResult result = lab::runLab(labOptions);
        lab::printSummary(result, std::cout);
        if (!csvPath.empty()) {
            std::ofstream csv(csvPath);
            lab::writeCsv(result, csv);
        }
        if (!chartPath.empty()) {
            std::ofstream chart(chartPath);
            lab::writeChart(result, chart);
        }
        return 0;
    }

    std::vector<std::string> lines;
    if (script == "-") {
        lines = readLines(std::cin);
    } else {
        std::ifstream in(script);
        if (!in) {
            std::cerr << "cannot read the script '" << script << "'\n";
            return 2;
        }
        lines = readLines(in);
    }
    sim::Simulator simulator(options, std::cout);
    const int status = simulator.run(lines, std::cerr);
    std::cout.flush();
    return status;
} catch (const std::exception& e) {
    std::cerr << "fatal: " << e.what() << '\n';
    return 70;
}
