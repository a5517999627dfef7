#pragma once
#include "core/NullScreen.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace zorvane::lab {

struct LabOptions {
    std::string strategy;
    std::string dataDir;
    std::string arg;
    int games = 100;
    int years = 1;
    int threads = 0; // 0: all cores
    std::uint64_t seed = 1;
    int goal = 0;
};

// How a game was lost: the three roads of the day cycle.
enum class LossRoad { None, Funds, Rent, Loan };

struct MonthRecord {
    double funds = 0;
    int rating = 0;
};

struct GameResult {
    std::uint64_t seed = 0;
    LossRoad lost = LossRoad::None;
    int lostOnDay = -1;
    bool goalReached = false;
    int goalReachedOnDay = -1;
    double startFunds = 0;
    std::vector<MonthRecord> months; // one per month end played (up to the loss)
    std::string fatal;               // a fatal game error, if one ended the game
    int fatalOnDay = -1;
};

struct LabResult {
    LabOptions options;
    std::vector<GameResult> games;
};

class Strategy;

// The road of a loss, from the reason the game gives with its lost-game picture.
LossRoad lossRoadOf(LoseReason why);

// A lab game's screen: it shows nothing, but it notes how the game was lost.
class LossWatcher : public NullScreen {
  public:
    LossRoad lost = LossRoad::None;
    void showLose(LoseReason why) override;
};

// One lab game: start-up, "Play !" with the goal of the options, then `years` game years of
// days, each after the strategy's turn, until the game is lost or a fatal error ends it.
GameResult playGame(const LabOptions& options, std::uint64_t seed, Strategy& strategy);
// The same with a fresh strategy of the options' name, seeded from the game's seed.
GameResult playGame(const LabOptions& options, std::uint64_t seed);

// Plays the games on threads, each its own Game with its own seed.
LabResult runLab(const LabOptions& options);

// The text summary: losses by road, goals reached, year-end funds quantiles.
void printSummary(const LabResult& result, std::ostream& out);
// One row per game and month.
void writeCsv(const LabResult& result, std::ostream& out);
// A fan chart of the month-end funds (10th to 90th percentile band, median line) as SVG.
void writeChart(const LabResult& result, std::ostream& out);

// The q-quantile (0..1) of values, by linear interpolation; 0 for none.
double quantile(std::vector<double> values, double q);

} // namespace zorvane::lab
