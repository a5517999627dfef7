#include "movies/showtime.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "movies/Demand.h"
#include "session/Game.h"

namespace zorvane {

namespace {

// The captions the showtime labels carry until a showtime is set up or loaded.
const char* designCaption(int slot) {
    static const char* captions[] = {"",     "10 AM", "Noon",  "2 PM",    "4 PM",
                                     "6 PM", "8 PM",  "10 PM", "Midnight"};
    return slot >= 1 && slot <= 8 ? captions[slot] : "";
}

} // namespace

showtime::showtime(Game& game, int slot) : game_(&game), caption(designCaption(slot)) {}

// The popularity this showtime sees: the movie's, less what its ads cost, never below 1.
// The movie itself loses nothing, and other showtimes of the same movie see no loss.
int showtime::getMoviePopularity() const {
    if (movie < 1)
        return 0;
    const int pop = sub16(game_->movies.getMyMoviePopularity(movie), adsPopularityLoss());
    return pop < 1 ? 1 : pop;
}

int showtime::adsPopularityLoss() const {
    return mul16(ads, game_->math.showtimeadpop);
}

double showtime::adsIncome() const {
    return ads * game_->math.showtimeadincome;
}

// A new game's slot: its number, matinee state and the name of showtimename<number>.
void showtime::init(int number, bool matineeFlag) {
    if (number < 1 || number > 8)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: showtimename" + std::to_string(number));
    num = number;
    matinee = matineeFlag ? -1 : 0;
    name = game_->math.showtimename[static_cast<std::size_t>(number)];
    showMatineeColor();
    caption = name;
}

// Ads above showtimeadsmax are cut down to it, and the caller's count is cut with them.
// There is no lower bound; the theater's total is the caller's business.
void showtime::setAds(int& count) {
    if (count > game_->math.showtimeadsmax)
        count = game_->math.showtimeadsmax;
    ads = count;
}

// A new movie number, or none, always starts the day's figures afresh.
void showtime::setMyMovie(int number) {
    movie = number;
    todaysticketsales = 0;
    todaysincome = 0;
}

// Matinee prices on (-1) or off (0), told in the log with the label's caption. Any other
// value is only stored.
void showtime::setMatinee(int flag) {
    matinee = flag;
    if (flag == -1) {
        game_->gameLog(caption + " is now at matinee prices", 0);
        grey = true;
    } else if (flag == 0) {
        game_->gameLog(caption + " is now at standard prices", 0);
        grey = false;
    }
    game_->screen().refresh(View::Showtimes);
}

void showtime::toggleMatinee() {
    setMatinee(~static_cast<int>(matinee));
}

void showtime::showMatineeColor() {
    grey = matinee == -1;
    game_->screen().refresh(View::Showtimes);
}

// The price one rolled customer would pay: the matinee price with no roll, else one percent
// roll for the whole show between the senior and the standard price. No average is taken.
double showtime::getMyPrice() {
    const MovieManager& mm = game_->movies;
    if (matinee != 0)
        return mm.getTicketPrice(1);
    if (game_->rng.percentRoll() <= game_->math.percentseniors)
        return mm.getTicketPrice(2);
    return mm.getTicketPrice(0);
}

// Today's show: demand times seats as tickets (never above the seats), the sale, the crowd,
// then the ads' money, which is paid whatever the turnout.
void showtime::doBusiness(int seating) {
    todaysincome = 0;
    todaysticketsales = 0;
    const double demand = game_->movies.getDemand(num);
    const int tickets = floorInt16(demand * seating / 100);
    sellTickets(tickets);
    if (movie > 0)
        game_->finances.earn(adsIncome(), "ads");
}

// Sold in bulk: the senior share splits off only while seniors pay less than the matinee
// price. The money goes to the ledger, the day's figures and the movie; then the audience
// moves on to the arcade and the snack stand.
void showtime::sellTickets(int tickets) {
    MovieManager& mm = game_->movies;
    const std::array<double, 3> prices{mm.getTicketPrice(0), mm.getTicketPrice(1),
                                       mm.getTicketPrice(2)};
    const TicketSale sale =
        splitTicketSale(tickets, matinee != 0, prices, game_->math.percentseniors);
    todaysticketsales = add16(todaysticketsales, tickets);
    game_->finances.earn(sale.income, "movie");
    todaysincome = todaysincome + sale.income;
    mm.sellMovieTickets(movie, sale.income, tickets);
    game_->calendar.customersVisit(tickets);
}

void showtime::saveSelf(LineWriter& out) const {
    out << "<showtime num=" + std::to_string(num) + ">";
    out << (matinee != 0 ? "matinee=1" : "matinee=0");
    out << "movie=" + numberTextSigned(movie);
    out << "todaysticketsales=" + numberTextSigned(todaysticketsales);
    out << "todaysincome=" + numberTextSigned(todaysincome);
    out << "ads=" + numberTextSigned(ads);
    out << "name=" + name;
    out << "</showtime>";
}

// Reads the lines after the header up to the end line, then repaints the row: a saved game
// keeps its own showtime names even under a changed math file.
void showtime::loadSelf(LineReader& in, int number) {
    num = number;
    readSection(in, [&](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        if (key == "name") { // text, never read as a number
            name = value;
            return;
        }
        const auto n = [&value] { return leadingNumber(value); };
        if (key == "matinee")
            matinee = (n() == 1) ? -1 : 0;
        else if (key == "movie")
            movie = toInt16(n());
        else if (key == "todaysticketsales")
            todaysticketsales = toInt16(n());
        else if (key == "todaysincome")
            todaysincome = n();
        else if (key == "ads")
            ads = toInt16(n());
    });
    showMatineeColor();
    caption = name;
    game_->screen().refresh(View::Ads);
}

} // namespace zorvane
