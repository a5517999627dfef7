#include "PlayerView.h"
#include "Strategy.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>

namespace zorvane::lab {

namespace {

// The player the business advisor raises: a full, reliable staff with on-call hands, fresh
// movies each on a showtime of its own with the best ones in the evening, ticket prices the
// shows can bear with cheaper matinees, twice the snack stock, a few arcade machines priced
// near their popularity and renewed as they fade, promotions up to the top when the money
// allows, the building kept open and renovated when worn, and the bank only to survive. It also
// keeps an eye on the goal it plays for, as a player who read the goal's description would.
class AdvisorStrategy : public Strategy {
  public:
    void begin(Game& game) override;
    void beforeDay(Game& game) override;

  private:
    // Money the coming days need before anything optional is bought: the month's bills (a
    // quarter of them while the month's end is far), a week of wages and promotions, and a
    // cushion.
    double reserve(const Game& game) const;
    double spendable(const Game& game) const { return game.finances.getFunds() - reserve(game); }
    const goal* playedGoal(const Game& game) const;

    void keepHouseOpen(Game& game);
    void staffPositions(Game& game);
    int bestCandidate(const Game& game, int pos) const;
    void keepOnCall(Game& game);
    void fillEmptyShowtimes(Game& game);
    void replaceFadingMovies(Game& game);
    int bestOffer(const Game& game, double budget) const;
    void sellOwnMovie(Game& game, int movie);
    void bookShowtimes(Game& game);
    void setTicketPrices(Game& game);
    void runArcade(Game& game);
    int bestMachineOffer(const Game& game, double budget) const;
    void renovate(Game& game);
    void runPromotions(Game& game);
    void orderSnacks(Game& game);
    void keepAfloat(Game& game);
    void repayAndBuy(Game& game);

    std::array<int, 8> vacantDays_{};
    std::array<int, ConcessionManager::itemCount> shippedOrder_{};
    int onCallWait_ = 0;
    // Who was on the staff yesterday, and who left in anger: "X quit saying 'I'm fed up with
    // this job!!'" stands in the log, and an angry person hired again walks out at once.
    std::set<std::string> staffYesterday_;
    std::set<std::string> quitters_;
    void noteQuitters(const Game& game);
    bool hireable(const Game& game, const employee& c) const {
        return !playerView::onStaff(game, c.name) && quitters_.count(c.name) == 0;
    }
    int goalIndex_ = 0;
};

constexpr double cushion = 3000;
constexpr int machinesWanted = 4;
constexpr std::size_t onCallWanted = 2;
constexpr int goodMovie = 20;    // below this a movie draws next to nobody
constexpr int goodMachine = 50;  // a machine that many customers will play
constexpr int fadedMachine = 30; // a machine few play any more: sold for a fresh one
constexpr int fresher = 30;      // a swap pays only for a much more popular movie
constexpr int worn = 50;         // a house this worn breaks down one month in three

void AdvisorStrategy::begin(Game& game) {
    goalIndex_ = game.goals.getSelected();
    // "Go ahead and double your orders on everything."
    for (int i = 0; i < ConcessionManager::itemCount; ++i) {
        shippedOrder_[static_cast<std::size_t>(i)] = game.concessions.item(i).buypermonth;
        game.concessions.setItemBuyQuant(i, 2 * game.concessions.item(i).buypermonth);
    }
}

void AdvisorStrategy::beforeDay(Game& game) {
    noteQuitters(game);
    keepHouseOpen(game);
    renovate(game);
    staffPositions(game);
    keepAfloat(game);
    fillEmptyShowtimes(game);
    if (playerView::weekStartsToday(game))
        replaceFadingMovies(game);
    bookShowtimes(game);
    if (playerView::weekStartsToday(game))
        setTicketPrices(game);
    runArcade(game);
    runPromotions(game);
    keepOnCall(game);
    staffYesterday_.clear();
    for (int n = 1; n <= game.employees.employeeCount(); ++n)
        staffYesterday_.insert(game.employees.getEmployee(n).getMyName());
    if (playerView::monthEndsToday(game))
        orderSnacks(game);
    repayAndBuy(game);
    keepAfloat(game);
}

// The advisor never fires anybody, so whoever left the staff overnight quit.
void AdvisorStrategy::noteQuitters(const Game& game) {
    for (const std::string& name : staffYesterday_)
        if (!playerView::onStaff(game, name))
            quitters_.insert(name);
}

double AdvisorStrategy::reserve(const Game& game) const {
    double bills = playerView::snackOrderCost(game);
    if (game.building.getRent() >= 1)
        bills += game.building.getRent();
    if (game.loans.getBalance() > 0)
        bills += game.loans.monthlyPayment;
    // Early in the month the takings of the weeks to come pay most of the bills.
    const double due = playerView::daysLeftInMonth(game) <= 10 ? 1.0 : 0.25;
    const double daily = playerView::dailyWages(game) + game.promos.getPromoCost();
    return bills * due + 7 * daily + cushion;
}

const goal* AdvisorStrategy::playedGoal(const Game& game) const {
    if (goalIndex_ < 1 || goalIndex_ > game.goals.getLastGoal())
        return nullptr;
    const goal& g = game.goals.getGoal(goalIndex_);
    return g.getAchieved() ? nullptr : &g;
}

// A broken house does no business: repair it at once, with a loan if need be.
void AdvisorStrategy::keepHouseOpen(Game& game) {
    buildingManager& house = game.building;
    if (!house.isInOrder()) {
        if (game.finances.getFunds() < house.repairCost + 1 && game.loans.getBalance() <= 0)
            playerView::takeLoan(game, house.repairCost + 20000, game.math.loanpaymentsmax);
        house.repairBuilding();
    }
}

// Every open post gets the best applicant of the day: reliability first, then the
// experience closest to the post, then the calmer ambition. A post that stays open for
// days takes less.
void AdvisorStrategy::staffPositions(Game& game) {
    employeeManager& staff = game.employees;
    for (int pos = 7; pos >= 1; --pos) {
        const auto p = static_cast<std::size_t>(pos);
        if (staff.isValidHolder(staff.getPosition(pos).getMyEmployee())) {
            vacantDays_[p] = 0;
            continue;
        }
        const int row = bestCandidate(game, pos);
        if (row > 0) {
            const int before = staff.employeeCount();
            staff.hireEmployee(row);
            const int hired = staff.employeeCount();
            if (hired > before && !staff.isValidHolder(staff.getPosition(pos).getMyEmployee())) {
                staff.selectPosition(pos);
                staff.assignEmployee(hired, pos);
            }
        }
        if (!staff.isValidHolder(staff.getPosition(pos).getMyEmployee()))
            ++vacantDays_[p];
    }
}

int AdvisorStrategy::bestCandidate(const Game& game, int pos) const {
    const employeeManager& staff = game.employees;
    const int waited = vacantDays_[static_cast<std::size_t>(pos)];
    // "I would recommend not hiring anyone with a reliability under 7."
    const int minRel = waited < 3 ? 7 : (waited < 6 ? 6 : 5);
    const int lowestExp = waited < 2 ? pos : std::max(1, pos - 2);
    // An over-qualified hire grows angry and quits within a couple of months, so nobody above
    // the post at first; but a closed theater loses more than a hire, so a post that stays
    // open takes them after a few days.
    const int highestExp = waited < 3 ? pos : 7;
    int best = 0;
    int bestScore = -1;
    for (int row = 1; row <= staff.candidateCount(); ++row) {
        const employee& c = staff.getCandidate(row);
        if (c.exp > highestExp || c.getMyExp() < lowestExp || c.rel < minRel || !hireable(game, c))
            continue;
        if (c.trainingCostShown() > game.finances.getFunds() - 1)
            continue;
        const int above = std::max(0, static_cast<int>(c.exp) - pos);
        const int score =
            c.rel * 1000 - above * 400 + std::min(c.getMyExp(), pos) * 50 + (10 - c.amb);
        if (score > bestScore) {
            bestScore = score;
            best = row;
        }
    }
    return best;
}

// "Keep at least one 'On-Call' employee", of low ambition, so that a sick day or a quitter
// costs nothing: the game puts an idle employee into an empty post before the shows. An
// on-call hand is paid nothing while idle, but grows restless in a couple of months and
// moves on, so the advisor keeps two, and takes a less ideal one when none came for a week.
void AdvisorStrategy::keepOnCall(Game& game) {
    employeeManager& staff = game.employees;
    if (!playerView::vacantPositions(game).empty() ||
        playerView::idleStaff(game).size() >= onCallWanted) {
        onCallWait_ = 0;
        return;
    }
    ++onCallWait_;
    const int maxAmb = onCallWait_ < 7 ? 4 : 7;
    int best = 0;
    int bestScore = -1;
    for (int row = 1; row <= staff.candidateCount(); ++row) {
        const employee& c = staff.getCandidate(row);
        if (c.rel < 7 || c.amb > maxAmb || c.exp > 7 || !hireable(game, c))
            continue;
        if (c.trainingCostShown() > spendable(game))
            continue;
        const int score = c.rel * 100 + c.getMyExp() * 10 + (10 - c.amb);
        if (score > bestScore) {
            bestScore = score;
            best = row;
        }
    }
    if (best > 0) {
        staff.hireEmployee(best);
        onCallWait_ = 0;
    }
}

// The row of the best offer (highest popularity, one the theater does not own) at or below
// the budget; 0 for none.
int AdvisorStrategy::bestOffer(const Game& game, double budget) const {
    const MovieManager& mm = game.movies;
    int best = 0;
    for (int row = 1; row <= mm.buyMoviesCount(); ++row) {
        const Movie& m = mm.buyMovieAt(row);
        if (m.getMyPrice() > budget || m.getMyPopularity() < goodMovie ||
            playerView::ownsTitle(game, m.getMyTitle()))
            continue;
        if (best == 0 || m.getMyPopularity() > mm.buyMovieAt(best).getMyPopularity())
            best = row;
    }
    return best;
}

// One movie for every showtime: the best good one on offer that the month can spare.
void AdvisorStrategy::fillEmptyShowtimes(Game& game) {
    MovieManager& mm = game.movies;
    const int shows = static_cast<int>(playerView::showtimesByAppeal(game).size());
    if (!playerView::vacantPositions(game).empty() && mm.myMoviesCount() > 0)
        return; // no business without a full staff: no hurry to buy more
    while (mm.myMoviesCount() < shows) {
        const int row = bestOffer(game, spendable(game));
        if (row == 0)
            return;
        const int before = mm.myMoviesCount();
        mm.buyMovie(row);
        if (mm.myMoviesCount() == before)
            return;
    }
}

// Each week the most faded movies (two at most) make room for much fresher ones, when the
// money allows.
void AdvisorStrategy::replaceFadingMovies(Game& game) {
    MovieManager& mm = game.movies;
    for (int swaps = 0; swaps < 2 && mm.myMoviesCount() > 0; ++swaps) {
        int worst = 1;
        for (int m = 2; m <= mm.myMoviesCount(); ++m)
            if (mm.myMovieAt(m).getMyPopularity() < mm.myMovieAt(worst).getMyPopularity())
                worst = m;
        const Movie& old = mm.myMovieAt(worst);
        const double money = spendable(game) + old.getMyPrice();
        const int row = bestOffer(game, money);
        if (row == 0 || mm.buyMovieAt(row).getMyPopularity() < old.getMyPopularity() + fresher)
            return;
        sellOwnMovie(game, worst);
        const int before = mm.myMoviesCount();
        mm.buyMovie(row);
        if (mm.myMoviesCount() == before)
            return;
    }
}

void AdvisorStrategy::sellOwnMovie(Game& game, int movie) {
    MovieManager& mm = game.movies;
    mm.showMyMovies();
    mm.selectMyMovie(mm.myMovieAt(movie).getMyListPos());
    mm.sellMovie();
}

// The most popular movie plays the most popular showtime, the next the next, so that no
// movie plays twice.
void AdvisorStrategy::bookShowtimes(Game& game) {
    MovieManager& mm = game.movies;
    std::vector<int> movies;
    for (int m = 1; m <= mm.myMoviesCount(); ++m)
        movies.push_back(m);
    std::stable_sort(movies.begin(), movies.end(), [&](int a, int b) {
        return mm.myMovieAt(a).getMyPopularity() > mm.myMovieAt(b).getMyPopularity();
    });
    const std::vector<int> shows = playerView::showtimesByAppeal(game);
    for (std::size_t k = 0; k < shows.size(); ++k) {
        const int s = shows[k];
        const int wanted = k < movies.size() ? movies[k] : 0;
        if (mm.showtimeAt(s).getMyMovie() == wanted)
            continue;
        mm.checkShowtime(s, true);
        if (wanted > 0)
            mm.assignShowtimes(wanted);
        else
            mm.stopShowtimes(0);
    }
}

// "Expenses increase a little every year ... keep up by raising your ticket prices", but
// not past what the shows can bear: each week, when the new movies are booked, the standard
// and matinee tickets take the price (in quarters) that sells the most money at the shows
// that charge it, as the demand terms of the math file work it out. A dearer ticket loses
// customers, and a ticket that only follows inflation ends up emptying the house. Seniors
// keep paying half a dollar less than the matinee, and the matinee half a dollar less than
// the standard ticket at least.
void AdvisorStrategy::setTicketPrices(Game& game) {
    const MathVars& m = game.math;
    MovieManager& mm = game.movies;
    const double seats = game.building.getSeating();
    const double common = m.demandbase + game.promos.getPromoPoints() * m.demandpromotion +
                          game.rating.getRating() * m.demandrating;
    auto best = [&](bool matinee, double current) {
        double bestPrice = current;
        double bestTakings = -1;
        for (double price = 2; price <= 20; price += 0.25) {
            double takings = 0;
            for (int s = 1; s <= std::min(8, static_cast<int>(m.showtimes)); ++s) {
                const showtime& st = mm.showtimeAt(s);
                if (st.getMyMovie() < 1 || st.isMatinee() != matinee)
                    continue;
                const double demand = common + st.getMoviePopularity() * m.demandpop +
                                      m.demandshowtime[static_cast<std::size_t>(s)] -
                                      m.demandprice * price * 100;
                takings += std::floor(std::clamp(demand, 1.0, 100.0) * seats / 100) * price;
            }
            if (takings > bestTakings + 0.5) {
                bestTakings = takings;
                bestPrice = price;
            }
        }
        return bestTakings > 0 ? bestPrice : current;
    };
    const double standard = best(false, mm.getTicketPrice(0));
    const double matinee = std::min(standard - 0.5, best(true, mm.getTicketPrice(1)));
    const double senior = std::max(1.0, matinee - 0.5);
    const std::array<double, 3> prices{standard, matinee, senior};
    for (int i = 0; i < 3; ++i)
        if (mm.getTicketPrice(i) != prices[static_cast<std::size_t>(i)])
            mm.setTicketPrice(i, prices[static_cast<std::size_t>(i)]);
}

// The machine on the market with the highest popularity, good enough to be played, at or
// below the budget; 0 for none.
int AdvisorStrategy::bestMachineOffer(const Game& game, double budget) const {
    const arcadeManager& room = game.arcades;
    int best = 0;
    for (int i = 1; i <= static_cast<int>(room.buyGames.size()); ++i) {
        const arcade& t = room.buyGameAt(i);
        if (t.getPop() < goodMachine || t.getPrice() > budget)
            continue;
        if (best == 0 || t.getPop() > room.buyGameAt(best).getPop())
            best = i;
    }
    return best;
}

// A few machines, each priced near its popularity ("popularity 75, about 75 cents"),
// repaired when broken. "As the popularity drops over time, you should drop the play price":
// and once nobody much plays a machine it goes back to the market for a fresh title.
void AdvisorStrategy::runArcade(Game& game) {
    arcadeManager& room = game.arcades;
    const int shows = static_cast<int>(playerView::showtimesByAppeal(game).size());
    const bool booked = game.movies.myMoviesCount() * 2 >= shows; // movies come first
    if (booked && playerView::vacantPositions(game).empty()) {
        for (int n = room.getMachineCount(); n >= 1; --n) {
            const arcade& machine = room.myGameAt(n);
            if (machine.getPop() >= fadedMachine && !machine.getIamBroke())
                continue;
            const double money = spendable(game) - 5000 + machine.getPrice();
            const int fresh = bestMachineOffer(game, money);
            if (fresh == 0 || (machine.getIamBroke() && machine.getPop() >= fadedMachine))
                continue;
            room.sellGame(n);
            room.buyGame(fresh);
        }
        if (room.getMachineCount() < machinesWanted) {
            const int best = bestMachineOffer(game, spendable(game) - 5000);
            if (best > 0)
                room.buyGame(best);
        }
    }
    for (int n = 1; n <= room.getMachineCount(); ++n) {
        arcade& machine = room.myGameAt(n);
        if (machine.getIamBroke()) {
            if (machine.Age * game.math.arcaderepaircost < spendable(game))
                room.repairGame(n);
            continue;
        }
        int index = 1;
        const double wanted = machine.getPop() / 100.0;
        for (int i = 2; i <= 4; ++i)
            if (std::abs(arcade::playPrice(game, i) - wanted) <
                std::abs(arcade::playPrice(game, index) - wanted))
                index = i;
        if (machine.PricePerPlay != index)
            room.setGamePrice(n, index);
    }
}

// "Renovating": a worn house breaks down more and more often, and each repair costs more
// than the last, so once it is worn and the money is there, the house is made good again.
void AdvisorStrategy::renovate(Game& game) {
    buildingManager& house = game.building;
    if (house.getCondition() >= worn || !house.isInOrder())
        return;
    if (spendable(game) - house.renovateCost > 20000)
        house.renovateBuilding();
}

// "The maximum promotion level you can get is promomax": TV spots first, the rest in the
// cheaper media, once every showtime has its movie and a month of them is affordable; all
// of them go when money is short.
void AdvisorStrategy::runPromotions(Game& game) {
    promoManager& promos = game.promos;
    const int shows = static_cast<int>(playerView::showtimesByAppeal(game).size());
    const bool full =
        playerView::vacantPositions(game).empty() && game.movies.myMoviesCount() >= shows;
    if (!full || spendable(game) < 0) {
        if (promos.getPromoCost() > 0)
            promos.dropAllPromos();
        return;
    }
    double fullCost = 0;
    int points = promos.getPromoPoints();
    for (int i = promoManager::mediaCount - 1; i >= 0; --i) {
        const auto k = static_cast<std::size_t>(i);
        while (game.math.promo[k] > 0 && points + game.math.promo[k] <= game.math.promomax) {
            points += game.math.promo[k];
            fullCost += promos.promoCost[k];
        }
    }
    if (fullCost <= 0 || spendable(game) < 28 * (promos.getPromoCost() + fullCost))
        return;
    for (int i = promoManager::mediaCount - 1; i >= 0; --i) {
        const auto k = static_cast<std::size_t>(i);
        while (game.math.promo[k] > 0 &&
               promos.getPromoPoints() + game.math.promo[k] <= game.math.promomax)
            promos.addPromo(i);
    }
}

// At the month's end: a snack that sold out gets twice this month's sales; one that did
// not gets what sold and a quarter more, less what is still in the storeroom. A low
// storeroom gets at least the doubled order; a full one never so much that it could
// overflow. The whole order is cut down to what the month's turn leaves after the rent and
// the loan payment: the stock is bought before the bank is paid.
void AdvisorStrategy::orderSnacks(Game& game) {
    std::array<int, ConcessionManager::itemCount> orders{};
    double cost = 0;
    for (int i = 0; i < ConcessionManager::itemCount; ++i) {
        const Concession& item = game.concessions.item(i);
        const int base = 2 * shippedOrder_[static_cast<std::size_t>(i)];
        const int sales = item.thismonthsales;
        const int wanted =
            item.stock <= 0 ? 2 * sales : static_cast<int>(sales * 1.25) - item.stock;
        int order = std::clamp(wanted, 0, 8 * base);
        if (item.stock < base)
            order = std::max(order, base);
        order = std::min(order, std::max(0, 30000 - static_cast<int>(item.stock)));
        orders[static_cast<std::size_t>(i)] = order;
        cost += order * item.getMyCost();
    }
    double money = game.finances.getFunds() - game.math.fundsmin - 1000;
    if (game.building.getRent() >= 1)
        money -= game.building.getRent();
    if (game.loans.getBalance() > 0)
        money -= game.loans.monthlyPayment;
    const double share = cost > 0 ? std::clamp(money / cost, 0.0, 1.0) : 1.0;
    for (int i = 0; i < ConcessionManager::itemCount; ++i) {
        const int order = static_cast<int>(orders[static_cast<std::size_t>(i)] * share);
        if (order != game.concessions.item(i).buypermonth)
            game.concessions.setItemBuyQuant(i, order);
    }
}

// The bank only to survive: when the month's bills or a week of wages could not be paid,
// borrow. Already in debt, cut the promotions first.
void AdvisorStrategy::keepAfloat(Game& game) {
    const double funds = game.finances.getFunds();
    double need = 7 * playerView::dailyWages(game) + game.math.fundsmin + 500;
    if (playerView::daysLeftInMonth(game) <= 7) {
        need += playerView::snackOrderCost(game);
        if (game.building.getRent() >= 1)
            need += game.building.getRent();
        if (game.loans.getBalance() > 0)
            need += game.loans.monthlyPayment;
    }
    if (funds >= need)
        return;
    if (game.promos.getPromoCost() > 0)
        game.promos.dropAllPromos();
    if (game.loans.getBalance() > 0)
        return;
    const double most = game.loans.getCreditScore() * game.math.loanmlv;
    const double amount = std::min(most, std::max(30000.0, 2 * (need - funds)));
    if (amount >= 1000)
        playerView::takeLoan(game, amount, 36);
}

// Once the theater is running in full and well off: clear the debt and buy the building,
// which ends the rent. The goal shifts the aim: a debt goal pays off as soon as the money
// is there, a credit-score goal keeps a loan running ("carrying a debt with the bank just to
// get your credit score up"), a purchase goal buys the building at once, and a funds goal
// keeps its money in the bank.
void AdvisorStrategy::repayAndBuy(Game& game) {
    const goal* g = playedGoal(game);
    const std::string aim = g ? g->getType() : std::string();
    const int shows = static_cast<int>(playerView::showtimesByAppeal(game).size());
    if (!playerView::vacantPositions(game).empty() || game.movies.myMoviesCount() < shows)
        return;
    loanManager& bank = game.loans;
    if (bank.getBalance() > 0 && aim != "creditscore") {
        const double price =
            bank.getBalance() + loanManager::interestOf(bank.loanAmount, bank.interestRate);
        if (spendable(game) - price > (aim == "debt" ? 0 : 30000))
            bank.payOffLoan();
    } else if (bank.getBalance() <= 0 && aim == "creditscore" && spendable(game) > 0) {
        playerView::takeLoan(game, bank.getCreditScore() * game.math.loanmlv,
                             game.math.loanpaymentsmax);
    }
    if (game.building.getRent() >= 1 && aim != "funds") {
        const double price = game.building.getPurchasePrice();
        if (spendable(game) - price > (aim == "purchase" ? 0 : 50000))
            game.building.purchaseBuilding();
    }
}

} // namespace

std::unique_ptr<Strategy> makeAdvisorStrategy() {
    return std::make_unique<AdvisorStrategy>();
}

} // namespace zorvane::lab
