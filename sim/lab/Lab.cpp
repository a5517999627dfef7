#include "Lab.h"

#include "PlayerView.h"
#include "Strategy.h"
#include "core/GameError.h"
#include "movies/Demand.h"
#include "reputation/RatingTerms.h"
#include "session/Game.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <iomanip>
#include <locale>
#include <ostream>
#include <sstream>
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

namespace {

// The ledger's running totals, which a month's figures are the differences of.
struct Ledger {
    double totalIncome = 0, totalSpent = 0, rentPaid = 0;
    double incMovie = 0, incArcade = 0, incConcessions = 0;
    double labor = 0, movie = 0, promo = 0, arcade = 0, concessions = 0, loan = 0;
};

Ledger readLedger(const Game& game) {
    const Finances& f = game.finances;
    return {f.totalincome, f.totalspent,     game.building.totalRentPaid,
            f.incdepmovie, f.incdeparcade,   f.incdepconcessions,
            f.deplabor,    f.depmovie,       f.deppromo,
            f.deparcade,   f.depconcessions, f.deploan};
}

double meanOfferPop(const Game& game) {
    const MovieManager& mm = game.movies;
    if (mm.buyMoviesCount() < 1)
        return -1;
    double sum = 0;
    for (int row = 1; row <= mm.buyMoviesCount(); ++row)
        sum += mm.buyMovieAt(row).getMyPopularity();
    return sum / mm.buyMoviesCount();
}

double meanMarketPop(const Game& game) {
    const arcadeManager& room = game.arcades;
    const int n = static_cast<int>(room.buyGames.size());
    if (n < 1)
        return -1;
    double sum = 0;
    for (int i = 1; i <= n; ++i)
        sum += room.buyGameAt(i).getPop();
    return sum / n;
}

// The rating's demand term as today's bookings earn it at the expected ticket price: the
// rating's own run rolls a customer's price for each show, this one takes the average.
int expectedDemandTerm(const Game& game) {
    const MathVars& m = game.math;
    const MovieManager& mm = game.movies;
    const double senior = m.percentseniors * 0.01;
    double sum = 0;
    for (int s = 1; s <= 8; ++s) {
        const showtime& st = mm.showtimeAt(s);
        if (st.getMyMovie() < 1)
            continue;
        DemandInputs in;
        in.popularity = st.getMoviePopularity();
        in.price = st.isMatinee()
                       ? mm.getTicketPrice(1)
                       : (1 - senior) * mm.getTicketPrice(0) + senior * mm.getTicketPrice(2);
        in.showtime = s;
        in.promoPoints = game.promos.getPromoPoints();
        in.rating = game.rating.getRating();
        for (int o = 1; o <= 8; ++o)
            in.duplicates += o != s && mm.showtimeAt(o).getMyMovie() == st.getMyMovie();
        sum += demandPercent(m, in);
    }
    return ratingTerms::demand(sum, m.ratingdemand);
}

MonthRecord monthRecord(const Game& game, const Ledger& was, int closedDays) {
    const Ledger now = readLedger(game);
    const MathVars& m = game.math;
    MonthRecord r;
    r.funds = game.finances.funds;
    r.rating = game.rating.getRating();
    r.incMovie = now.incMovie - was.incMovie;
    r.incArcade = now.incArcade - was.incArcade;
    r.incConcessions = now.incConcessions - was.incConcessions;
    r.incOther = now.totalIncome - was.totalIncome - r.incMovie - r.incArcade - r.incConcessions;
    r.payLabor = now.labor - was.labor;
    r.payMovie = now.movie - was.movie;
    r.payPromo = now.promo - was.promo;
    r.payArcade = now.arcade - was.arcade;
    r.payConcessions = now.concessions - was.concessions;
    r.payLoan = now.loan - was.loan;
    r.payRent = now.rentPaid - was.rentPaid;
    r.payOther = now.totalSpent - was.totalSpent - r.payLabor - r.payMovie - r.payPromo -
                 r.payArcade - r.payConcessions - r.payLoan - r.payRent;
    r.wageBill = playerView::dailyWages(game);
    for (int i = 0; i < 3; ++i)
        r.tickets[static_cast<std::size_t>(i)] = game.movies.getTicketPrice(i);
    r.termDemand = expectedDemandTerm(game);
    r.termPromo = ratingTerms::promotions(game.promos.getPromoPoints(), m.promomax, m.ratingpromo);
    r.termAnger =
        ratingTerms::anger(game.employees.getAverageAnger(), m.empangryquit, m.ratinganger);
    r.termPay =
        ratingTerms::pay(game.employees.getAverageWage(), game.employees.getMinWage(), m.ratingpay);
    r.termGames =
        ratingTerms::gamePops(game.arcades.getAveragePop(), m.arcadepopmin, m.arcadepopmax,
                              m.ratinggamepops) +
        ratingTerms::gameCount(game.arcades.getMachineCount(), m.arcademax, m.ratinggamenums);
    r.termConcessions =
        ratingTerms::concessions(game.concessions.getQualityScore(), m.ratingconcessions);
    r.staff = game.employees.employeeCount();
    const MovieManager& mm = game.movies;
    r.ownMovies = mm.myMoviesCount();
    for (int i = 1; i <= r.ownMovies; ++i)
        r.ownMoviePop += mm.myMovieAt(i).getMyPopularity();
    if (r.ownMovies > 0)
        r.ownMoviePop /= r.ownMovies;
    r.offerPop = meanOfferPop(game);
    r.machines = game.arcades.getMachineCount();
    r.machinePop = r.machines > 0 ? game.arcades.getAveragePop() : 0;
    r.marketPop = meanMarketPop(game);
    r.loan = game.loans.getBalance();
    r.condition = game.building.getCondition();
    r.closedDays = closedDays;
    return r;
}

} // namespace

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
        game.goals.selectGoal(o.goal);
        game.startPlay(o.goal);
        r.startFunds = game.finances.funds;
        const bool hasGoal = o.goal >= 1 && o.goal <= game.goals.getLastGoal();
        strategy.begin(game);
        Ledger monthStart = readLedger(game);
        int closedDays = 0;
        for (; d < days; ++d) {
            const int month = game.calendar.currentmonth;
            const int week = game.calendar.currentweek;
            strategy.beforeDay(game);
            const double ticketsBefore = game.finances.incdepmovie;
            game.calendar.nextDay();
            closedDays += game.finances.incdepmovie == ticketsBefore;
            if (game.calendar.currentweek != week)
                r.weekOfferPops.push_back(meanOfferPop(game));
            if (game.calendar.currentmonth != month) {
                r.months.push_back(monthRecord(game, monthStart, closedDays));
                r.monthMarketPops.push_back(meanMarketPop(game));
                monthStart = readLedger(game);
                closedDays = 0;
            }
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
    out.imbue(std::locale::classic()); // figures never take the player's decimal comma
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
    const int last = r.options.years;
    auto freshness = [&](const char* what, double first, double end) {
        auto figure = [](double v) {
            std::ostringstream text;
            text << std::fixed << std::setprecision(1) << v;
            return v < 0 ? std::string("none") : text.str();
        };
        out << what << ": year 1 " << figure(first) << ", year " << last << " " << figure(end);
        if (first > 0 && end >= 0)
            out << std::setprecision(1) << " (" << std::showpos << 100.0 * (end - first) / first
                << std::noshowpos << "%)";
        out << "\n";
    };
    freshness("movie offer popularity (weekly mean)", offerPopularity(r, 1),
              offerPopularity(r, last));
    freshness("game market popularity (monthly mean)", marketPopularity(r, 1),
              marketPopularity(r, last));
}

namespace {

// The month's columns after the funds and rating, in CSV order.
struct Column {
    const char* name;
    double (*value)(const MonthRecord&);
};

const std::vector<Column>& monthColumns() {
    static const std::vector<Column> columns = {
        {"inc_movie", [](const MonthRecord& m) { return m.incMovie; }},
        {"inc_arcade", [](const MonthRecord& m) { return m.incArcade; }},
        {"inc_concessions", [](const MonthRecord& m) { return m.incConcessions; }},
        {"inc_other", [](const MonthRecord& m) { return m.incOther; }},
        {"pay_labor", [](const MonthRecord& m) { return m.payLabor; }},
        {"pay_movie", [](const MonthRecord& m) { return m.payMovie; }},
        {"pay_promo", [](const MonthRecord& m) { return m.payPromo; }},
        {"pay_arcade", [](const MonthRecord& m) { return m.payArcade; }},
        {"pay_concessions", [](const MonthRecord& m) { return m.payConcessions; }},
        {"pay_loan", [](const MonthRecord& m) { return m.payLoan; }},
        {"pay_rent", [](const MonthRecord& m) { return m.payRent; }},
        {"pay_other", [](const MonthRecord& m) { return m.payOther; }},
        {"wage_bill", [](const MonthRecord& m) { return m.wageBill; }},
        {"ticket_standard", [](const MonthRecord& m) { return m.tickets[0]; }},
        {"ticket_matinee", [](const MonthRecord& m) { return m.tickets[1]; }},
        {"ticket_senior", [](const MonthRecord& m) { return m.tickets[2]; }},
        {"term_demand", [](const MonthRecord& m) { return double(m.termDemand); }},
        {"term_promo", [](const MonthRecord& m) { return double(m.termPromo); }},
        {"term_anger", [](const MonthRecord& m) { return double(m.termAnger); }},
        {"term_pay", [](const MonthRecord& m) { return double(m.termPay); }},
        {"term_games", [](const MonthRecord& m) { return double(m.termGames); }},
        {"term_concessions", [](const MonthRecord& m) { return double(m.termConcessions); }},
        {"staff", [](const MonthRecord& m) { return double(m.staff); }},
        {"own_movies", [](const MonthRecord& m) { return double(m.ownMovies); }},
        {"own_movie_pop", [](const MonthRecord& m) { return m.ownMoviePop; }},
        {"offer_pop", [](const MonthRecord& m) { return m.offerPop; }},
        {"machines", [](const MonthRecord& m) { return double(m.machines); }},
        {"machine_pop", [](const MonthRecord& m) { return m.machinePop; }},
        {"market_pop", [](const MonthRecord& m) { return m.marketPop; }},
        {"loan", [](const MonthRecord& m) { return m.loan; }},
        {"condition", [](const MonthRecord& m) { return double(m.condition); }},
        {"closed_days", [](const MonthRecord& m) { return double(m.closedDays); }},
    };
    return columns;
}

// The mean of a game's figures over the given range of entries, skipping the empty ones
// (-1); -1 when none is left.
double meanOf(const std::vector<double>& v, std::size_t from, std::size_t to) {
    double sum = 0;
    int n = 0;
    for (std::size_t i = from; i < std::min(to, v.size()); ++i)
        if (v[i] >= 0) {
            sum += v[i];
            ++n;
        }
    return n > 0 ? sum / n : -1;
}

double meanOverGames(const LabResult& r, int year, std::size_t perYear,
                     const std::vector<double> GameResult::*series) {
    if (year < 1)
        return -1;
    const auto from = static_cast<std::size_t>(year - 1) * perYear;
    double sum = 0;
    int n = 0;
    for (const GameResult& g : r.games) {
        const double mean = meanOf(g.*series, from, from + perYear);
        if (mean >= 0) {
            sum += mean;
            ++n;
        }
    }
    return n > 0 ? sum / n : -1;
}

} // namespace

double offerPopularity(const LabResult& r, int year) {
    return meanOverGames(r, year, 48, &GameResult::weekOfferPops);
}

double marketPopularity(const LabResult& r, int year) {
    return meanOverGames(r, year, 12, &GameResult::monthMarketPops);
}

void writeCsv(const LabResult& r, std::ostream& out) {
    out.imbue(std::locale::classic()); // figures never take the player's decimal comma
    out << "game,seed,year,month,funds,rating,lost,road";
    for (const Column& c : monthColumns())
        out << ',' << c.name;
    out << "\n" << std::setprecision(2) << std::fixed;
    for (std::size_t i = 0; i < r.games.size(); ++i) {
        const GameResult& g = r.games[i];
        for (std::size_t m = 0; m < g.months.size(); ++m) {
            const MonthRecord& month = g.months[m];
            out << i << ',' << g.seed << ',' << m / 12 << ',' << m % 12 << ',' << month.funds << ','
                << month.rating << ',' << (g.lost != LossRoad::None ? 1 : 0) << ','
                << roadName(g.lost);
            for (const Column& c : monthColumns())
                out << ',' << c.value(month);
            out << "\n";
        }
    }
}

namespace {

// One line of the departments' view: a month's figure, its label, colour and dash.
struct Series {
    const char* label;
    const char* colour;
    bool spending;
    double (*value)(const MonthRecord&);
};

const std::vector<Series>& departmentSeries() {
    static const std::vector<Series> series = {
        {"tickets", "#08519c", false, [](const MonthRecord& m) { return m.incMovie; }},
        {"stand", "#e6550d", false, [](const MonthRecord& m) { return m.incConcessions; }},
        {"arcade", "#31a354", false, [](const MonthRecord& m) { return m.incArcade; }},
        {"wages", "#756bb1", true, [](const MonthRecord& m) { return m.payLabor; }},
        {"movies", "#3182bd", true, [](const MonthRecord& m) { return m.payMovie; }},
        {"promotions", "#de2d26", true, [](const MonthRecord& m) { return m.payPromo; }},
        {"rent", "#636363", true, [](const MonthRecord& m) { return m.payRent; }},
        {"snack stock", "#fd8d3c", true, [](const MonthRecord& m) { return m.payConcessions; }},
        {"machines", "#74c476", true, [](const MonthRecord& m) { return m.payArcade; }},
        {"bank", "#000000", true, [](const MonthRecord& m) { return m.payLoan; }},
        {"building", "#a0522d", true, [](const MonthRecord& m) { return m.payOther; }},
    };
    return series;
}

// The median over the games that played month m of a month's figure; -1 when none did.
double medianOfMonth(const LabResult& r, std::size_t m, double (*value)(const MonthRecord&)) {
    std::vector<double> v;
    for (const GameResult& g : r.games)
        if (m < g.months.size())
            v.push_back(value(g.months[m]));
    return v.empty() ? -1 : quantile(v, 0.5);
}

} // namespace

void writeChart(const LabResult& r, std::ostream& out) {
    out.imbue(std::locale::classic()); // figures never take the player's decimal comma
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
    const double w = 800, h = 400, left = 80, top = 40, right = 40, bottom = 50;
    auto x = [&](std::size_t m) {
        return left + (w - left - right) * (months > 1 ? double(m) / double(months - 1) : 0.0);
    };
    auto y = [&](double f) { return top + (h - top - bottom) * (1 - (f - lo) / (hi - lo)); };
    // The departments' view below the funds: its own scale, in thousands a month.
    const double panel = h, chartTop = h + 40, chartBottom = h + panel - 90;
    const std::vector<Series>& series = departmentSeries();
    std::vector<std::vector<double>> medians(series.size());
    double most = 1;
    for (std::size_t k = 0; k < series.size(); ++k)
        for (std::size_t m = 0; m < months; ++m) {
            medians[k].push_back(medianOfMonth(r, m, series[k].value));
            most = std::max(most, medians[k].back());
        }
    auto y2 = [&](double f) { return chartBottom - (chartBottom - chartTop) * f / most; };

    out << std::fixed << std::setprecision(1);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << w << "\" height=\"" << h + panel
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
    auto yearLabels = [&](double at) {
        for (int yr = 0; yr <= r.options.years; ++yr) {
            const std::size_t m = std::min(months - 1, static_cast<std::size_t>(yr) * 12);
            out << "<text x=\"" << x(m) << "\" y=\"" << at << "\" text-anchor=\"middle\">year "
                << yr << "</text>\n";
        }
    };
    yearLabels(h - bottom + 20);

    out << "<text x=\"" << left << "\" y=\"" << h + 24
        << "\" font-size=\"15\">The median month by department (income solid, spending "
           "dashed)</text>\n";
    for (int i = 0; i <= 4; ++i) {
        const double f = most * i / 4;
        out << "<line x1=\"" << left << "\" y1=\"" << y2(f) << "\" x2=\"" << w - right << "\" y2=\""
            << y2(f) << "\" stroke=\"#ddd\"/>\n";
        out << "<text x=\"" << left - 6 << "\" y=\"" << y2(f) + 4 << "\" text-anchor=\"end\">$"
            << std::setprecision(0) << f << "</text>\n"
            << std::setprecision(1);
    }
    for (std::size_t k = 0; k < series.size(); ++k) {
        out << "<polyline fill=\"none\" stroke=\"" << series[k].colour << "\" stroke-width=\"1.5\""
            << (series[k].spending ? " stroke-dasharray=\"5 3\"" : "") << " points=\"";
        for (std::size_t m = 0; m < months; ++m)
            if (medians[k][m] >= 0)
                out << x(m) << ',' << y2(medians[k][m]) << ' ';
        out << "\"/>\n";
    }
    yearLabels(chartBottom + 18);
    // The legend, two rows under the years.
    for (std::size_t k = 0; k < series.size(); ++k) {
        const double lx = left + static_cast<double>(k % 6) * 115;
        const double ly = chartBottom + 40 + static_cast<double>(k / 6) * 18;
        out << "<line x1=\"" << lx << "\" y1=\"" << ly - 4 << "\" x2=\"" << lx + 22 << "\" y2=\""
            << ly - 4 << "\" stroke=\"" << series[k].colour << "\" stroke-width=\"2\""
            << (series[k].spending ? " stroke-dasharray=\"5 3\"" : "") << "/>\n";
        out << "<text x=\"" << lx + 28 << "\" y=\"" << ly << "\">" << series[k].label
            << "</text>\n";
    }
    out << "</svg>\n";
}

} // namespace zorvane::lab
