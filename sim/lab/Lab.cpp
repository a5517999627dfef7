#include "Lab.h"

#include "Strategy.h"
#include "core/GameError.h"
#include "session/Game.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <iomanip>
#include <ostream>
#include <thread>

namespace zorvane::lab {

LossRoad lossRoadOf(LoseReason why) {
    switch (why) {
    case LoseReason::Funds:
        return LossRoad::Funds;
    case LoseReason::Rent:
        return LossRoad::Rent;
    case LoseReason::Loan:
        return LossRoad::Loan;
    }
    return LossRoad::None;
}

void LossWatcher::showLose(LoseReason why) {
    if (lost == LossRoad::None)
        lost = lossRoadOf(why);
}

GameResult playGame(const LabOptions& o, std::uint64_t seed, Strategy& strategy) {
    LossWatcher screen;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    GameSetup setup;
    setup.folder = o.dataDir;
    setup.commandLine = o.arg;
    setup.seed = seed;
    setup.screen = &screen;
    setup.dialogs = &dialogs;
    setup.settings = &settings;
    Game game(std::move(setup));
    GameResult r;
    r.seed = seed;
    const int days = o.years * 336;
    int d = 0;
    try {
        game.startup();
        game.startPlay(o.goal);
        r.startFunds = game.finances.funds;
        const bool hasGoal = o.goal >= 1 && o.goal <= game.goals.getLastGoal();
        strategy.begin(game);
        for (; d < days; ++d) {
            const int month = game.calendar.currentmonth;
            strategy.beforeDay(game);
            game.calendar.nextDay();
            if (game.calendar.currentmonth != month)
                r.months.push_back({game.finances.funds, game.rating.getRating()});
            if (hasGoal && !r.goalReached && game.goals.getGoal(o.goal).getAchieved()) {
                r.goalReached = true;
                r.goalReachedOnDay = d;
            }
            if (screen.lost != LossRoad::None && r.lost == LossRoad::None) {
                r.lost = screen.lost;
                r.lostOnDay = d;
                if (!strategy.playsOnAfterLoss())
                    break;
            }
        }
    } catch (const ProcessEnded&) {
        // The game ended itself (a question answered No): what was played counts.
    } catch (const std::exception& e) { // a GameError, or any other failure: never an abort
        r.fatal = e.what();
        r.fatalOnDay = d;
    }
    return r;
}

GameResult playGame(const LabOptions& o, std::uint64_t seed) {
    const std::unique_ptr<Strategy> strategy = makeStrategy(o.strategy, seed);
    if (!strategy) {
        GameResult r;
        r.seed = seed;
        r.fatal = "unknown strategy '" + o.strategy + "'";
        return r;
    }
    return playGame(o, seed, *strategy);
}

namespace {

const char* roadName(LossRoad road) {
    switch (road) {
    case LossRoad::Funds:
        return "funds";
    case LossRoad::Rent:
        return "rent";
    case LossRoad::Loan:
        return "loan";
    case LossRoad::None:
        return "";
    }
    return "";
}

// Month-end funds of a game for month m (0-based); a game that ended early keeps its last
// figure, so a lost theater counts with what it had when it was lost.
double fundsAt(const GameResult& g, std::size_t m) {
    if (g.months.empty())
        return g.startFunds;
    return g.months[std::min(m, g.months.size() - 1)].funds;
}

std::size_t monthsPlayed(const LabResult& r) {
    return static_cast<std::size_t>(r.options.years) * 12;
}

std::vector<double> fundsOfMonth(const LabResult& r, std::size_t m) {
    std::vector<double> v;
    for (const GameResult& g : r.games)
        v.push_back(fundsAt(g, m));
    return v;
}

} // namespace

double quantile(std::vector<double> values, double q) {
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const double pos = q * static_cast<double>(values.size() - 1);
    const auto lo = static_cast<std::size_t>(std::floor(pos));
    const std::size_t hi = std::min(lo + 1, values.size() - 1);
    return values[lo] + (values[hi] - values[lo]) * (pos - static_cast<double>(lo));
}

LabResult runLab(const LabOptions& options) {
    LabResult result;
    result.options = options;
    result.games.resize(static_cast<std::size_t>(std::max(0, options.games)));
    unsigned threads = options.threads > 0 ? static_cast<unsigned>(options.threads)
                                           : std::max(1u, std::thread::hardware_concurrency());
    threads = std::min<unsigned>(threads, static_cast<unsigned>(std::max(1, options.games)));
    std::atomic<std::size_t> next{0};
    auto worker = [&] {
        for (std::size_t i = next++; i < result.games.size(); i = next++)
            result.games[i] = playGame(options, options.seed + i);
    };
    std::vector<std::thread> pool;
    for (unsigned t = 1; t < threads; ++t)
        pool.emplace_back(worker);
    worker();
    for (auto& t : pool)
        t.join();
    return result;
}

void printSummary(const LabResult& r, std::ostream& out) {
    const auto n = static_cast<double>(std::max<std::size_t>(1, r.games.size()));
    int lost = 0, byRoad[4] = {0, 0, 0, 0}, reached = 0, fatal = 0, lostInTwoYears = 0;
    for (const GameResult& g : r.games) {
        if (g.lost != LossRoad::None) {
            ++lost;
            ++byRoad[static_cast<int>(g.lost)];
            lostInTwoYears += g.lostOnDay < 2 * 336;
        }
        reached += g.goalReached;
        fatal += !g.fatal.empty();
    }
    out << std::fixed << std::setprecision(1);
    out << "strategy " << r.options.strategy << ", " << r.games.size() << " games, "
        << r.options.years << " year(s), seeds " << r.options.seed << " to "
        << r.options.seed + r.games.size() - 1 << ", goal " << r.options.goal << "\n";
    out << "lost: " << lost << " (" << 100.0 * lost / n << "%): funds " << byRoad[1] << ", rent "
        << byRoad[2] << ", loan " << byRoad[3] << "; within two years " << lostInTwoYears << "\n";
    out << "goal reached: " << reached << " (" << 100.0 * reached / n << "%)\n";
    out << "fatal errors: " << fatal << "\n";
    for (const GameResult& g : r.games)
        if (!g.fatal.empty()) {
            out << "  first fatal (seed " << g.seed << ", day " << g.fatalOnDay << "): " << g.fatal
                << "\n";
            break;
        }
    out << std::setprecision(0);
    out << "year  funds p10     p50       p90       above start\n";
    for (int y = 1; y <= r.options.years; ++y) {
        const auto m = static_cast<std::size_t>(y * 12 - 1);
        const std::vector<double> v = fundsOfMonth(r, m);
        int above = 0;
        for (std::size_t i = 0; i < r.games.size(); ++i)
            above += v[i] > r.games[i].startFunds;
        out << std::setw(4) << y << "  " << std::setw(10) << quantile(v, 0.1) << std::setw(10)
            << quantile(v, 0.5) << std::setw(10) << quantile(v, 0.9) << "  " << above << "\n";
    }
}

void writeCsv(const LabResult& r, std::ostream& out) {
    out << "game,seed,year,month,funds,rating,lost,road\n";
    for (std::size_t i = 0; i < r.games.size(); ++i) {
        const GameResult& g = r.games[i];
        for (std::size_t m = 0; m < g.months.size(); ++m)
            out << i << ',' << g.seed << ',' << m / 12 << ',' << m % 12 << ','
                << std::setprecision(2) << std::fixed << g.months[m].funds << ','
                << g.months[m].rating << ',' << (g.lost != LossRoad::None ? 1 : 0) << ','
                << roadName(g.lost) << "\n";
    }
}

void writeChart(const LabResult& r, std::ostream& out) {
    const std::size_t months = monthsPlayed(r);
    std::vector<double> p10, p50, p90;
    for (std::size_t m = 0; m < months; ++m) {
        const std::vector<double> v = fundsOfMonth(r, m);
        p10.push_back(quantile(v, 0.1));
        p50.push_back(quantile(v, 0.5));
        p90.push_back(quantile(v, 0.9));
    }
    double lo = 0, hi = 1;
    for (std::size_t m = 0; m < months; ++m) {
        lo = std::min(lo, p10[m]);
        hi = std::max(hi, p90[m]);
    }
    const double w = 800, h = 400, left = 80, top = 40, right = 20, bottom = 50;
    auto x = [&](std::size_t m) {
        return left + (w - left - right) * (months > 1 ? double(m) / double(months - 1) : 0.0);
    };
    auto y = [&](double f) { return top + (h - top - bottom) * (1 - (f - lo) / (hi - lo)); };
    out << std::fixed << std::setprecision(1);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << w << "\" height=\"" << h
        << "\" font-family=\"sans-serif\" font-size=\"12\">\n";
    out << "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
    out << "<text x=\"" << left
        << "\" y=\"24\" font-size=\"15\">Zorvane lab: " << r.options.strategy << ", "
        << r.games.size() << " games, month-end funds (10th-90th percentile, median)</text>\n";
    out << "<polygon fill=\"#9ecae1\" stroke=\"none\" points=\"";
    for (std::size_t m = 0; m < months; ++m)
        out << x(m) << ',' << y(p90[m]) << ' ';
    for (std::size_t m = months; m-- > 0;)
        out << x(m) << ',' << y(p10[m]) << ' ';
    out << "\"/>\n<polyline fill=\"none\" stroke=\"#08519c\" stroke-width=\"2\" points=\"";
    for (std::size_t m = 0; m < months; ++m)
        out << x(m) << ',' << y(p50[m]) << ' ';
    out << "\"/>\n";
    out << "<line x1=\"" << left << "\" y1=\"" << y(0) << "\" x2=\"" << w - right << "\" y2=\""
        << y(0) << "\" stroke=\"#555\" stroke-dasharray=\"4 3\"/>\n";
    for (int i = 0; i <= 4; ++i) {
        const double f = lo + (hi - lo) * i / 4;
        out << "<text x=\"" << left - 6 << "\" y=\"" << y(f) + 4 << "\" text-anchor=\"end\">$"
            << std::setprecision(0) << f << "</text>\n"
            << std::setprecision(1);
    }
    for (int yr = 0; yr <= r.options.years; ++yr) {
        const std::size_t m = std::min(months - 1, static_cast<std::size_t>(yr) * 12);
        out << "<text x=\"" << x(m) << "\" y=\"" << h - bottom + 20
            << "\" text-anchor=\"middle\">year " << yr << "</text>\n";
    }
    out << "</svg>\n";
}

} // namespace zorvane::lab
