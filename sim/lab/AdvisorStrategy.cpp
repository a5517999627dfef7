#include "PlayerView.h"
#include "Strategy.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zorvane::lab {

namespace {

// The player the business advisor raises: a full, reliable staff with one on-call hand,
// fresh movies each on a showtime of its own with the best ones in the evening, cheap
// matinees, twice the snack stock, a couple of arcade machines priced near their
// popularity, promotions up to the top when the money allows, the building kept open, and
// the bank only to survive. It also keeps an eye on the goal it plays for, as a player who
// read the goal's description would.
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
    void keepTicketPricesUp(Game& game);
    void runArcade(Game& game);
    void runPromotions(Game& game);
    void orderSnacks(Game& game);
    void keepAfloat(Game& game);
    void repayAndBuy(Game& game);

    std::array<int, 8> vacantDays_{};
    std::array<int, ConcessionManager::itemCount> shippedOrder_{};
    int year_ = 0;
    int goalIndex_ = 0;
};

constexpr double cushion = 3000;
constexpr int machinesWanted = 2;
constexpr int goodMovie = 20;   // below this a movie draws next to nobody
constexpr int goodMachine = 50; // a machine that many customers will play
constexpr int fresher = 30;     // a swap pays only for a much more popular movie

void AdvisorStrategy::begin(Game& game) {
    goalIndex_ = game.goals.getSelected();
    year_ = game.calendar.getCurrentYear();
    // "Go ahead and double your orders on everything."
    for (int i = 0; i < ConcessionManager::itemCount; ++i) {
        shippedOrder_[static_cast<std::size_t>(i)] = game.concessions.item(i).buypermonth;
        game.concessions.setItemBuyQuant(i, 2 * game.concessions.item(i).buypermonth);
    }
}

void AdvisorStrategy::beforeDay(Game& game) {
    keepHouseOpen(game);
    staffPositions(game);
    keepAfloat(game);
    fillEmptyShowtimes(game);
    if (view::weekStartsToday(game))
        replaceFadingMovies(game);
    bookShowtimes(game);
    keepTicketPricesUp(game);
    runArcade(game);
    runPromotions(game);
    keepOnCall(game);
    if (view::monthEndsToday(game))
        orderSnacks(game);
    repayAndBuy(game);
    keepAfloat(game);
}

double AdvisorStrategy::reserve(const Game& game) const {
    double bills = view::snackOrderCost(game);
    if (game.building.getRent() >= 1)
        bills += game.building.getRent();
    if (game.loans.getBalance() > 0)
        bills += game.loans.monthlyPayment;
    // Early in the month the takings of the weeks to come pay most of the bills.
    const double due = view::daysLeftInMonth(game) <= 10 ? 1.0 : 0.25;
    const double daily = view::dailyWages(game) + game.promos.getPromoCost();
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
            view::takeLoan(game, house.repairCost + 20000, game.math.loanpaymentsmax);
        house.repairBuilding();
    }
}

// Every open post gets the best applicant of the day: reliability first, then the
// experience closest to the post, then the calmer ambition, and never anybody above the
// post. A post that stays open for days takes less.
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
    int best = 0;
    int bestScore = -1;
    for (int row = 1; row <= staff.candidateCount(); ++row) {
        const employee& c = staff.getCandidate(row);
        // An over-qualified hire grows angry and quits, so nobody above the post.
        if (c.exp > pos || c.getMyExp() < lowestExp || c.rel < minRel ||
            view::onStaff(game, c.name))
            continue;
        if (c.trainingCostShown() > game.finances.getFunds() - 1)
            continue;
        const int score = c.rel * 1000 + c.getMyExp() * 50 + (10 - c.amb);
        if (score > bestScore) {
            bestScore = score;
            best = row;
        }
    }
    return best;
}

// "Keep at least one 'On-Call' employee", of low ambition, so that a sick day or a quitter
// costs nothing.
void AdvisorStrategy::keepOnCall(Game& game) {
    employeeManager& staff = game.employees;
    if (!view::vacantPositions(game).empty() || !view::idleStaff(game).empty())
        return;
    int best = 0;
    int bestScore = -1;
    for (int row = 1; row <= staff.candidateCount(); ++row) {
        const employee& c = staff.getCandidate(row);
        if (c.rel < 7 || c.amb > 4 || c.exp > 7 || view::onStaff(game, c.name))
            continue;
        if (c.trainingCostShown() > spendable(game))
            continue;
        const int score = c.rel * 100 + c.getMyExp() * 10 + (10 - c.amb);
        if (score > bestScore) {
            bestScore = score;
            best = row;
        }
    }
    if (best > 0)
        staff.hireEmployee(best);
}

// The row of the best offer (highest popularity, one the theater does not own) at or below
// the budget; 0 for none.
int AdvisorStrategy::bestOffer(const Game& game, double budget) const {
    const MovieManager& mm = game.movies;
    int best = 0;
    for (int row = 1; row <= mm.buyMoviesCount(); ++row) {
        const Movie& m = mm.buyMovieAt(row);
        if (m.getMyPrice() > budget || m.getMyPopularity() < goodMovie ||
            view::ownsTitle(game, m.getMyTitle()))
            continue;
        if (best == 0 || m.getMyPopularity() > mm.buyMovieAt(best).getMyPopularity())
            best = row;
    }
    return best;
}

// One movie for every showtime: the best good one on offer that the month can spare.
void AdvisorStrategy::fillEmptyShowtimes(Game& game) {
    MovieManager& mm = game.movies;
    const int shows = static_cast<int>(view::showtimesByAppeal(game).size());
    if (!view::vacantPositions(game).empty() && mm.myMoviesCount() > 0)
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
    const std::vector<int> shows = view::showtimesByAppeal(game);
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

// "Expenses increase a little every year ... keep up by raising your ticket prices." The
// matinee stays the cheaper ticket.
void AdvisorStrategy::keepTicketPricesUp(Game& game) {
    const int year = game.calendar.getCurrentYear();
    if (year == year_)
        return;
    year_ = year;
    const double rise = 1 + game.math.inflation * 0.01;
    for (int i = 0; i < 3; ++i)
        game.movies.setTicketPrice(i, std::round(game.movies.getTicketPrice(i) * rise * 4) / 4);
}

// A couple of machines, each priced near its popularity ("popularity 75, about 75 cents"),
// repaired when broken.
void AdvisorStrategy::runArcade(Game& game) {
    arcadeManager& room = game.arcades;
    const int shows = static_cast<int>(view::showtimesByAppeal(game).size());
    const bool booked = game.movies.myMoviesCount() * 2 >= shows; // movies come first
    if (booked && view::vacantPositions(game).empty() && room.getMachineCount() < machinesWanted) {
        int best = 0;
        for (int i = 1; i <= static_cast<int>(room.buyGames.size()); ++i) {
            const arcade& t = room.buyGameAt(i);
            if (t.getPop() < goodMachine || t.getPrice() > spendable(game) - 5000)
                continue;
            if (best == 0 || t.getPop() > room.buyGameAt(best).getPop())
                best = i;
        }
        if (best > 0)
            room.buyGame(best);
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

// "The maximum promotion level you can get is promomax": TV spots first, the rest in the
// cheaper media, once every showtime has its movie and a month of them is affordable; all
// of them go when money is short.
void AdvisorStrategy::runPromotions(Game& game) {
    promoManager& promos = game.promos;
    const int shows = static_cast<int>(view::showtimesByAppeal(game).size());
    const bool full = view::vacantPositions(game).empty() && game.movies.myMoviesCount() >= shows;
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
    double need = 7 * view::dailyWages(game) + game.math.fundsmin + 500;
    if (view::daysLeftInMonth(game) <= 7) {
        need += view::snackOrderCost(game);
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
        view::takeLoan(game, amount, 36);
}

// Once the theater is running in full and well off: clear the debt and buy the building,
// which ends the rent. The goal shifts the aim: a debt goal pays off as soon as the money
// is there, a credit-score goal keeps a loan running ("carrying a debt with the bank just to
// get your credit score up"), a purchase goal buys the building at once, and a funds goal
// keeps its money in the bank.
void AdvisorStrategy::repayAndBuy(Game& game) {
    const goal* g = playedGoal(game);
    const std::string aim = g ? g->getType() : std::string();
    const int shows = static_cast<int>(view::showtimesByAppeal(game).size());
    if (!view::vacantPositions(game).empty() || game.movies.myMoviesCount() < shows)
        return;
    loanManager& bank = game.loans;
    if (bank.getBalance() > 0 && aim != "creditscore") {
        const double price =
            bank.getBalance() + loanManager::interestOf(bank.loanAmount, bank.interestRate);
        if (spendable(game) - price > (aim == "debt" ? 0 : 30000))
            bank.payOffLoan();
    } else if (bank.getBalance() <= 0 && aim == "creditscore" && spendable(game) > 0) {
        view::takeLoan(game, bank.getCreditScore() * game.math.loanmlv, game.math.loanpaymentsmax);
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
