#include "RandomStrategy.h"

#include "PlayerView.h"

#include "core/Text.h"

#include <algorithm>
#include <array>

namespace zorvane::lab {

namespace {

// How often each family of the screens comes up, out of the total.
enum class Family {
    Staff,
    Movies,
    Showtimes,
    Prices,
    Snacks,
    Arcade,
    Machine,
    Promos,
    Bank,
    House
};
constexpr std::array<std::pair<Family, int>, 10> familyWeights = {{{Family::Staff, 20},
                                                                   {Family::Movies, 10},
                                                                   {Family::Showtimes, 12},
                                                                   {Family::Prices, 6},
                                                                   {Family::Snacks, 8},
                                                                   {Family::Arcade, 6},
                                                                   {Family::Machine, 10},
                                                                   {Family::Promos, 8},
                                                                   {Family::Bank, 3},
                                                                   {Family::House, 2}}};

} // namespace

RandomStrategy::RandomStrategy(std::uint64_t seed) : rng_(seed ^ 0x5a6f7276616e65ULL) {}

const std::vector<std::string>& RandomStrategy::commands() {
    static const std::vector<std::string> all = {
        "hire",      "fire",       "assign",        "wage",    "details",     "buymovie",
        "sellmovie", "show",       "stop",          "matinee", "ticket",      "ads",
        "quality",   "price",      "stock",         "buygame", "sellgame",    "repairgame",
        "playprice", "rename",     "cabinet",       "move",    "gamedetails", "autorepair",
        "promo add", "promo drop", "promo dropall", "loan",    "payoff",      "repair",
        "renovate",  "remodel",    "buybuilding"};
    return all;
}

// Every draw stands in a statement of its own, never two in one argument list or sum, whose
// order the language leaves to the compiler: a seed plays the same game with any compiler.
// Where one call takes two drawn values they are drawn in the order this player has always
// drawn them (the last argument first), so the lab's games stay the ones it has measured.
int RandomStrategy::pick(int lo, int hi) {
    if (hi <= lo)
        return lo;
    return lo + static_cast<int>(rng_() % static_cast<std::uint64_t>(hi - lo + 1));
}

std::string RandomStrategy::money(int lo, int hi) {
    const int cents = pick(lo * 100, hi * 100);
    std::string text = std::to_string(cents / 100);
    if (cents % 100 != 0)
        text += "." + std::to_string(cents % 100 / 10) + std::to_string(cents % 10);
    return chance(30) ? "$" + text : text;
}

std::string RandomStrategy::someText() {
    static const std::array<const char*, 10> words = {
        "Pac", "Blaster", "Zorv", "", "  spaced ", "X", "Galaxy 3000", "a|b", "#1", "Ole!"};
    return words[static_cast<std::size_t>(pick(0, static_cast<int>(words.size()) - 1))];
}

std::vector<int> RandomStrategy::someShowtimes() {
    std::vector<int> s;
    for (int i = 1; i <= 8; ++i)
        if (chance(25))
            s.push_back(i);
    if (s.empty())
        s.push_back(pick(1, 8));
    return s;
}

void RandomStrategy::beforeDay(Game& game) {
    int total = 0;
    for (const auto& [family, weight] : familyWeights)
        total += weight;
    const int actions = pick(0, 4);
    for (int a = 0; a < actions; ++a) {
        int roll = pick(1, total);
        Family chosen = Family::Staff;
        for (const auto& [family, weight] : familyWeights) {
            roll -= weight;
            if (roll <= 0) {
                chosen = family;
                break;
            }
        }
        switch (chosen) {
        case Family::Staff:
            staff(game);
            break;
        case Family::Movies:
            movies(game);
            break;
        case Family::Showtimes:
            showtimes(game);
            break;
        case Family::Prices:
            prices(game);
            break;
        case Family::Snacks:
            snacks(game);
            break;
        case Family::Arcade:
            arcade(game);
            break;
        case Family::Machine:
            arcadeMachine(game);
            break;
        case Family::Promos:
            promotions(game);
            break;
        case Family::Bank:
            bank(game);
            break;
        case Family::House:
            building(game);
            break;
        }
    }
}

// Hire, fire, assign and set wages, as the employees screen offers them.
void RandomStrategy::staff(Game& game) {
    employeeManager& staff = game.employees;
    const int count = staff.employeeCount();
    const int what = pick(0, 9);
    if (what <= 3) {
        if (staff.candidateCount() > 0) {
            did("hire");
            staff.hireEmployee(pick(1, staff.candidateCount()));
        }
    } else if (what == 4) {
        if (count > 0 && chance(40)) {
            did("fire");
            staff.fireEmployee(pick(1, count));
        }
    } else if (what <= 7) {
        if (count > 0) {
            did("assign");
            const int pos = pick(0, 7);
            staff.selectPosition(pos);
            staff.assignEmployee(pick(1, count), pos);
        }
    } else if (what == 8) {
        if (count > 0) {
            did("details");
            staff.showEmployeeDetails(pick(1, count));
        }
    } else {
        did("wage");
        // The input box: Cancel, a word, or an amount, with or without a dollar sign.
        const int answer = pick(0, 3);
        playerView::typeIntoNextInputBox(game, answer == 0   ? ""
                                               : answer == 1 ? "lots"
                                                             : money(0, 25));
        staff.getPosition(pick(1, 7)).setWageInput();
    }
}

// Buy and sell movies.
void RandomStrategy::movies(Game& game) {
    MovieManager& mm = game.movies;
    if (chance(60)) {
        if (mm.buyMoviesCount() > 0) {
            did("buymovie");
            mm.buyMovie(pick(1, mm.buyMoviesCount()));
        }
        return;
    }
    if (mm.myMoviesCount() > 0) {
        did("sellmovie");
        mm.selectMyMovie(pick(-1, mm.myMoviesCount() - 1));
        mm.sellMovie();
    }
}

// Book and stop showtimes, flip matinees, set the ads.
void RandomStrategy::showtimes(Game& game) {
    MovieManager& mm = game.movies;
    const int what = pick(0, 4);
    if (what <= 1) {
        if (mm.myMoviesCount() == 0)
            return;
        did("show");
        for (int s : someShowtimes())
            mm.checkShowtime(s, true);
        if (chance(50)) {
            mm.selectMyMovie(pick(0, mm.myMoviesCount() - 1));
            mm.assignShowtimes(0);
        } else {
            mm.assignShowtimes(pick(1, mm.myMoviesCount()));
        }
    } else if (what == 2) {
        did("stop");
        for (int s : someShowtimes())
            mm.checkShowtime(s, true);
        mm.stopShowtimes(0);
    } else if (what == 3) {
        did("matinee");
        mm.showtimeAt(pick(1, 8)).toggleMatinee();
    } else {
        did("ads");
        const int ads = pick(0, 8);
        const int show = pick(1, 8);
        mm.setShowtimeAds(show, ads);
    }
}

// The three ticket price boxes.
void RandomStrategy::prices(Game& game) {
    did("ticket");
    const double price = digitsValue(money(0, 15));
    const int which = pick(0, 2);
    game.movies.setTicketPrice(which, price);
}

// Quality, price and monthly order of the five snacks.
void RandomStrategy::snacks(Game& game) {
    ConcessionManager& stand = game.concessions;
    const int item = pick(0, ConcessionManager::itemCount - 1);
    const int what = pick(0, 2);
    if (what == 0) {
        did("quality");
        stand.setItemQuality(item, pick(0, 2));
    } else if (what == 1) {
        did("price");
        stand.setItemPrice(item, digitsValue(money(0, 8)));
    } else {
        // The storeroom holds at most 32767 of a snack: a player watching the "In Stock"
        // column keeps the order where the stock cannot pass it within a year.
        did("stock");
        const int stock = stand.item(item).stock;
        const int room = std::max(0, (30000 - stock) / 12);
        stand.setItemBuyQuant(item, pick(0, std::min(2000, room)));
    }
}

// Buy and sell machines, repair them, and the auto-repair box.
void RandomStrategy::arcade(Game& game) {
    arcadeManager& room = game.arcades;
    const int machines = room.getMachineCount();
    const int what = pick(0, 4);
    if (what <= 1) {
        if (!room.buyGames.empty()) {
            did("buygame");
            room.buyGame(pick(1, static_cast<int>(room.buyGames.size())));
        }
    } else if (what == 2) {
        if (machines > 0) {
            did("sellgame");
            room.sellGame(pick(1, machines));
        }
    } else if (what == 3) {
        if (machines > 0) {
            did("repairgame");
            room.repairGame(pick(1, machines));
        }
    } else {
        did("autorepair");
        room.setAutoRepair(chance(50));
    }
}

// The details panel of a machine: play price, name, cabinet style, and dragging it about.
void RandomStrategy::arcadeMachine(Game& game) {
    arcadeManager& room = game.arcades;
    const int machines = room.getMachineCount();
    if (machines == 0)
        return;
    const int n = pick(1, machines);
    const int what = pick(0, 4);
    if (what == 0) {
        did("playprice");
        room.setGamePrice(n, pick(0, 4));
    } else if (what == 1) {
        did("rename");
        room.renameGame(n, someText());
    } else if (what == 2) {
        did("cabinet");
        room.setCabinetNum(n, pick(1, std::max(1, static_cast<int>(game.math.arcadeimages))));
    } else if (what == 3) {
        did("gamedetails");
        room.showGameDetails(n);
    } else {
        // A drag: the button goes down somewhere on the cabinet and comes up elsewhere.
        did("move");
        const auto grabX = static_cast<float>(pick(0, 900));
        const auto grabY = static_cast<float>(pick(0, 1400));
        const auto y = static_cast<float>(pick(-2000, 2000));
        const auto x = static_cast<float>(pick(-3000, 3000));
        room.moveCabinet(n, x, y, grabX, grabY);
    }
}

void RandomStrategy::promotions(Game& game) {
    promoManager& promos = game.promos;
    const int what = pick(0, 5);
    if (what <= 2) {
        did("promo add");
        promos.addPromo(pick(0, promoManager::mediaCount - 1));
    } else if (what <= 4) {
        did("promo drop");
        promos.dropPromo(pick(0, promoManager::mediaCount - 1));
    } else {
        did("promo dropall");
        promos.dropAllPromos();
    }
}

// Borrow any amount over any number of payments (the bank cuts both to its limits), or pay
// the loan off.
void RandomStrategy::bank(Game& game) {
    if (chance(60)) {
        did("loan");
        const int payments = pick(1, 60);
        const int amount = pick(0, 150) * 1000;
        playerView::takeLoan(game, amount, payments);
    } else {
        did("payoff");
        game.loans.payOffLoan();
    }
}

// The building screen's four buttons.
void RandomStrategy::building(Game& game) {
    buildingManager& house = game.building;
    switch (pick(0, 3)) {
    case 0:
        did("repair");
        house.repairBuilding();
        break;
    case 1:
        did("renovate");
        house.renovateBuilding();
        break;
    case 2:
        did("remodel");
        house.remodel();
        break;
    default:
        did("buybuilding");
        house.purchaseBuilding();
        break;
    }
}

std::unique_ptr<Strategy> makeRandomStrategy(std::uint64_t seed) {
    return std::make_unique<RandomStrategy>(seed);
}

} // namespace zorvane::lab
