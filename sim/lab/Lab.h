#pragma once
#include "core/NullScreen.h"

#include <array>
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

// What explains one month of a lab game, read at the month's end as the screens would show it.
// Money figures are the month's own: differences of the ledger's running totals.
struct MonthRecord {
    double funds = 0;
    int rating = 0;
    // Income by department: tickets, arcade plays, the stand's margin, and the rest (ads,
    // movies and machines sold back, the bank's money).
    double incMovie = 0, incArcade = 0, incConcessions = 0, incOther = 0;
    // Spending by department; rent is the landlord's share of what no department counts,
    // other the rest of it (the building's repairs, renovation and purchase).
    double payLabor = 0, payMovie = 0, payPromo = 0, payArcade = 0, payConcessions = 0, payLoan = 0,
           payRent = 0, payOther = 0;
    double wageBill = 0;             // a day's pay of the seven posts
    std::array<double, 3> tickets{}; // standard, matinee, senior price
    // The rating's largest terms, as today's theater earns them (demand at the expected
    // ticket price, so with no roll).
    int termDemand = 0, termPromo = 0, termAnger = 0, termPay = 0, termGames = 0,
        termConcessions = 0;
    int staff = 0;
    int ownMovies = 0, machines = 0;
    double ownMoviePop = 0; // mean popularity of the movies owned
    double offerPop = 0;    // mean popularity of this week's offer, fresh from the distributor
    double machinePop = 0;  // mean popularity of the machines in the room
    double marketPop = 0;   // mean popularity of this month's game market
    double loan = 0;        // the debt still owed the bank
    int condition = 0;      // the building's condition
    int closedDays = 0;     // days of the month with no ticket sold
};

struct GameResult {
    std::uint64_t seed = 0;
    LossRoad lost = LossRoad::None;
    int lostOnDay = -1;
    bool goalReached = false;
    int goalReachedOnDay = -1;
    double startFunds = 0;
    std::vector<MonthRecord> months; // one per month end played (up to the loss)
    // Mean popularity of each week's movie offer as released, and of each month's game
    // market (an empty offer counts as -1).
    std::vector<double> weekOfferPops;
    std::vector<double> monthMarketPops;
    std::string fatal; // a fatal game error, if one ended the game
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
// The chart as SVG: a fan chart of the month-end funds (10th to 90th percentile band, median
// line), and below it the median month's income and spending by department, so that the
// year a theater turns shows.
void writeChart(const LabResult& result, std::ostream& out);

// The mean over games of a year's mean weekly movie offer popularity (year from 1), and the
// same for the monthly game market; -1 when no game played that year.
double offerPopularity(const LabResult& result, int year);
double marketPopularity(const LabResult& result, int year);

// The q-quantile (0..1) of values, by linear interpolation; 0 for none.
double quantile(std::vector<double> values, double q);

} // namespace zorvane::lab
