#include "movies/MovieManager.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "movies/Demand.h"
#include "session/Game.h"

#include <algorithm>
#include <fstream>

namespace zorvane {

MovieManager::MovieManager(Game& game) : game_(game), empty_(std::make_shared<Movie>(game)) {
    allMovies_ = buyMovies_ = myMovies_ = emptyList();
    showtimeList_.reserve(9);
    for (int s = 0; s <= 8; ++s)
        showtimeList_.emplace_back(game, s);
}

std::vector<MovieManager::MovieRef> MovieManager::emptyList() const {
    return {empty_};
}

Movie& MovieManager::at(const std::vector<MovieRef>& list, int i, const char* name) {
    if (i < 0 || i >= static_cast<int>(list.size()))
        throw GameError(GameError::Kind::Bounds, std::string("subscript out of range: ") + name +
                                                     "(" + std::to_string(i) + ")");
    return *list[static_cast<std::size_t>(i)];
}

// Lists have a 16-bit count: one more than 32767 entries is an overflow.
void MovieManager::append(std::vector<MovieRef>& list, MovieRef movie) {
    add16(count(list), 1);
    list.push_back(std::move(movie));
}

showtime& MovieManager::showtimeAt(int num) {
    if (num < 1 || num > 8)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: showtime " + std::to_string(num));
    return showtimeList_[static_cast<std::size_t>(num)];
}

const showtime& MovieManager::showtimeAt(int num) const {
    return const_cast<MovieManager*>(this)->showtimeAt(num);
}

bool MovieManager::sharesObject(int myIndex, int catalogueIndex) const {
    return &at(myMovies_, myIndex, "myMovies") == &at(allMovies_, catalogueIndex, "allMovies");
}

// ---------------------------------------------------------------- start-up and steps

// The catalogue: one title a line of movies.lst, in file order, each with its classic level
// and a fresh popularity (so titles are priced anew at every program start).
void MovieManager::loadMovieList() {
    const std::string path = game_.dataPath("movies.lst");
    std::ifstream file = openTextFile(path);
    LineReader in(file, "movies.lst");
    std::string line;
    while (in.readLine(line)) {
        auto movie = std::make_shared<Movie>(game_);
        append(allMovies_, movie);
        movie->initalize(allMoviesCount(), line);
        movie->setMyPopularity(rollPopularity());
    }
}

// Rolls from movieminpop up to just short of movieminpop + moviemaxpop until the value lies
// within movieminpop and moviemaxpop; a 0 within the bounds is taken without a roll.
int MovieManager::rollPopularity() {
    const MathVars& m = game_.math;
    if (m.movieminpop > m.moviemaxpop)
        throw GameError(GameError::Kind::Type,
                        "movieminpop " + std::to_string(m.movieminpop) + " is above moviemaxpop " +
                            std::to_string(m.moviemaxpop) + ": no popularity can be rolled");
    Int16 pop{0};
    while (pop < m.movieminpop || pop > m.moviemaxpop)
        pop = floorInt16(m.moviemaxpop * game_.rng.next() + m.movieminpop);
    return pop;
}

// A new game: the ticket prices of the math file, and showtimes 1 to `showtimes` set up with
// matinee prices for the first two.
void MovieManager::initShowtimes() {
    const MathVars& m = game_.math;
    ticketPrice_ = {m.ticketsstandard, m.ticketsmatinee, m.ticketsseniors};
    for (int i = 0; i <= 2; ++i)
        showTicketPrice(i);
    for (int s = 1; s <= m.showtimes; ++s) {
        showtimeAt(s).init(s, s <= 2);
        clearShowtimeRow(s);
    }
    showAds();
}

// The week's offer. Last week's is gone, bought or not. Each of n draws from the catalogue
// is turned away when it was drawn already, when a title equal to it (in lower case) is on
// offer, or when it costs more than the funds: there is no second draw. Owned titles may come
// up again, as the same object. The message tells the draws, not the titles offered.
void MovieManager::releaseMovies() {
    const MathVars& m = game_.math;
    const int n = floorInt16(game_.rng.next() * m.moviemaxreleases + m.movieminreleases);
    buyMovies_ = emptyList();
    std::vector<int> picked;
    for (int k = 1; k <= n; ++k) {
        const int i = floorInt16(allMoviesCount() * game_.rng.next() + 1);
        const Movie& candidate = catalogueMovie(i);
        const bool drawn = std::find(picked.begin(), picked.end(), i) != picked.end();
        const std::string title = toLower(candidate.getMyTitle());
        bool onOffer = false;
        for (int j = 1; j <= buyMoviesCount(); ++j)
            onOffer =
                onOffer || toLower(buyMovies_[static_cast<std::size_t>(j)]->getMyTitle()) == title;
        const bool tooDear = candidate.getMyPrice() > game_.finances.getFunds();
        if (drawn || onOffer || tooDear)
            continue;
        picked.push_back(i);
        addBuyMovie(i);
    }
    showBuyMovies();
    game_.gameLog(std::to_string(n) + " new movies have been released this week.", 0);
}

void MovieManager::addBuyMovie(int i) {
    append(buyMovies_, allMovies_.at(static_cast<std::size_t>(i)));
    buyMovies_.back()->setMyNum(buyMoviesCount());
}

// Every own movie ages first (also on a closed day), then the shows run if the theater may
// do business today.
void MovieManager::nextDayMovies() {
    for (int i = 1; i <= myMoviesCount(); ++i)
        myMovies_[static_cast<std::size_t>(i)]->nextDay();
    doShowtimes();
    showShowtimes();
}

// canDoBusiness is asked once; then showtimes 1 to 8 in rising order, each finishing wholly
// (sale, crowd, ads) before the next begins.
void MovieManager::doShowtimes() {
    if (!game_.calendar.canDoBusiness())
        return;
    for (int s = 1; s <= 8; ++s)
        if (showtimeAt(s).getMyMovie() > 0)
            showtimeAt(s).doBusiness(game_.building.getSeating());
}

// A year's inflation on every catalogue price, owned titles included.
void MovieManager::nextYearMovies() {
    for (int i = 1; i <= allMoviesCount(); ++i)
        allMovies_[static_cast<std::size_t>(i)]->inflate();
}

// ---------------------------------------------------------------- buying and selling

// Buys the movie on that row of the offer at its price, under "movie". A refusal by the
// ledger (less than 1 dollar would remain) leaves everything as it was.
void MovieManager::buyMovie(int row) {
    if (buyMoviesCount() < 1)
        return;
    const double price = at(buyMovies_, row, "buyMovies").getMyPrice();
    if (!game_.finances.spend(price, "movie")) {
        game_.gameLog("You cannot afford this movie!", 0);
    } else {
        addMyMovie(row, price);
        removeBuyMovie(row);
        showMyMovies();
    }
    showBuyMovies();
}

void MovieManager::addMyMovie(int row, double price) {
    append(myMovies_, buyMovies_.at(static_cast<std::size_t>(row)));
    myMovies_.back()->setMyNum(myMoviesCount());
    myMovies_.back()->setFirstPrice(price);
}

// Takes the entry out of the offer; the others keep their numbers.
void MovieManager::removeBuyMovie(int row) {
    buyMovies_.erase(buyMovies_.begin() + row);
}

// Sells the movie on the selected line of the own list at its resale price. The money goes to
// funds and no department.
void MovieManager::sellMovie() {
    for (int i = 1; i <= myMoviesCount(); ++i) {
        if (myMovies_[static_cast<std::size_t>(i)]->getMyListPos() == selectedLine_) {
            game_.finances.earn(myMovies_[static_cast<std::size_t>(i)]->getMyPrice(), "");
            removeMyMovie(i);
            break;
        }
    }
    showMyMovies();
}

// Stops the movie's showtimes, then numbers the others anew. Kept on purpose: every running
// showtime is given its number again through setMyMovie, so today's figures are blanked on
// all of them, also where the number stays the same.
void MovieManager::removeMyMovie(int i) {
    for (int s = 1; s <= 8; ++s)
        if (showtimeAt(s).getMyMovie() == i)
            stopShowtimes(s);
    std::vector<MovieRef> kept = emptyList();
    int k = 0;
    for (int j = 1; j <= myMoviesCount(); ++j) {
        if (j == i)
            continue;
        ++k;
        for (int s = 1; s <= 8; ++s)
            if (showtimeAt(s).getMyMovie() == j)
                showtimeAt(s).setMyMovie(k);
        kept.push_back(myMovies_[static_cast<std::size_t>(j)]);
    }
    myMovies_ = std::move(kept);
}

// ---------------------------------------------------------------- showtimes

// Books the movie (or the selected line's) on every checked showtime and clears the boxes.
// A showtime with another movie is simply overwritten; that movie stays marked running.
void MovieManager::assignShowtimes(int movieNumber) {
    for (int s = 1; s <= 8; ++s) {
        if (!checked_[static_cast<std::size_t>(s)])
            continue;
        const int m = movieNumber >= 1 ? movieNumber : selectedLine_ + 1;
        if (m >= 1) {
            Movie& movie = myMovieAt(m);
            showtimeAt(s).setMyMovie(m);
            movie.setRunning(true);
        }
        checked_[static_cast<std::size_t>(s)] = false;
    }
    checkAll_ = false;
    showShowtimes();
}

// Stops one showtime, or with a number below 1 every checked one (clearing its box).
void MovieManager::stopShowtimes(int number) {
    if (number < 1) {
        for (int s = 1; s <= 8; ++s) {
            if (checked_[static_cast<std::size_t>(s)]) {
                stopShowtime(s);
                checked_[static_cast<std::size_t>(s)] = false;
            }
        }
    } else {
        stopShowtime(number);
    }
    checkAll_ = false;
}

// The movie is marked not running even if another showtime still shows it.
void MovieManager::stopShowtime(int s) {
    showtime& st = showtimeAt(s);
    myMovieAt(st.getMyMovie()).setRunning(false);
    st.setMyMovie(0);
    clearShowtimeRow(s);
}

void MovieManager::setTicketPrice(int index, double price) {
    if (index < 0 || index > 2)
        return;
    ticketPrice_[static_cast<std::size_t>(index)] = price;
    showTicketPrice(index);
}

double MovieManager::getTicketPrice(int index) const {
    if (index < 0 || index > 2)
        return 0;
    return ticketPrice_[static_cast<std::size_t>(index)];
}

// Kept on purpose: the cap is tested as the theater's total plus the new count, and the
// total already holds this showtime's present ads, so raising one from 5 to 6 is tested
// as total + 6.
void MovieManager::setShowtimeAds(int num, int ads) {
    const MathVars& m = game_.math;
    if (add16(getTotalAds(), ads) > m.showtimeadsmaxtotal) {
        game_.gameLog(
            "You are not allowed to show any more ads than you already are in your theater!", 0);
        return;
    }
    if (num >= 0 && num <= m.showtimes) {
        showtimeAt(num).setAds(ads);
        showAds();
        showShowtimes();
    }
}

int MovieManager::getTotalAds() const {
    const int last = game_.math.showtimes;
    Int16 total;
    for (int s = 1; s <= last; ++s)
        total += showtimeAt(s).getAds();
    return total;
}

int MovieManager::getMyMoviePopularity(int movieNumber) const {
    return myMovieAt(movieNumber).getMyPopularity();
}

void MovieManager::sellMovieTickets(int movieNumber, double income, int tickets) {
    myMovieAt(movieNumber).sellTickets(income, tickets);
}

// The percent of seats that fill at showtime num; 0, with no roll, for no showtime or no movie.
double MovieManager::getDemand(int num) {
    if (num < 1)
        return 0;
    showtime& st = showtimeAt(num);
    if (st.getMyMovie() < 1)
        return 0;
    DemandInputs in;
    in.popularity = st.getMoviePopularity();
    in.price = st.getMyPrice();
    in.showtime = num;
    in.promoPoints = game_.promos.getPromoPoints();
    in.rating = game_.rating.getRating();
    in.duplicates = duplicatesOf(num);
    return demandPercent(game_.math, in);
}

// Showtimes 1 to 8, this one excepted, with the same movie number (beyond `showtimes` too).
int MovieManager::duplicatesOf(int num) const {
    const int movie = showtimeAt(num).getMyMovie();
    int c = 0;
    for (int s = 1; s <= 8; ++s)
        if (s != num && showtimeAt(s).getMyMovie() == movie)
            ++c;
    return c;
}

int MovieManager::getAds(int num) const {
    return showtimeAt(num).getAds();
}

// ---------------------------------------------------------------- the screen's controls

void MovieManager::checkShowtime(int s, bool on) {
    showtimeAt(s); // the box must exist
    checked_[static_cast<std::size_t>(s)] = on;
}

bool MovieManager::isShowtimeChecked(int s) const {
    showtimeAt(s);
    return checked_[static_cast<std::size_t>(s)];
}

void MovieManager::checkAllShowtimes(bool on) {
    checkAll_ = on;
    for (int s = 1; s <= 8; ++s)
        checked_[static_cast<std::size_t>(s)] = on;
}

void MovieManager::selectMyMovie(int line) {
    if (line < -1 || line >= myMoviesCount())
        throw GameError(GameError::Kind::Bounds,
                        "invalid property value: own-movies line " + std::to_string(line));
    selectedLine_ = line;
}

void MovieManager::assignOnly(int s) {
    checkAllShowtimes(false);
    checkShowtime(s, true);
    assignShowtimes(0);
}

// ---------------------------------------------------------------- refreshes

// The offer by popularity, 100 down to 1, ties in list order; a movie with popularity outside
// 1 to 100 drops out of the offer.
void MovieManager::sortBuyMovies() {
    std::vector<MovieRef> sorted = emptyList();
    for (int p = 100; p >= 1; --p)
        for (int j = 1; j <= buyMoviesCount(); ++j)
            if (buyMovies_[static_cast<std::size_t>(j)]->getMyPopularity() == p)
                sorted.push_back(buyMovies_[static_cast<std::size_t>(j)]);
    buyMovies_ = std::move(sorted);
}

void MovieManager::showBuyMovies() {
    sortBuyMovies();
    game_.screen().refresh(View::BuyMovies);
}

// Each own movie learns its line (from 0), and the last line is selected.
void MovieManager::showMyMovies() {
    for (int i = 1; i <= myMoviesCount(); ++i)
        myMovies_[static_cast<std::size_t>(i)]->setMyListPos(i - 1);
    selectedLine_ = myMoviesCount() - 1;
    game_.screen().refresh(View::MyMovies);
}

void MovieManager::showTicketPrice(int) {
    game_.screen().refresh(View::TicketPrices);
}

// The table reads the movie of every booked showtime: a number beyond the own list (a saved
// game is not checked) fails here.
void MovieManager::showShowtimes() {
    for (int s = 1; s <= 8; ++s)
        if (showtimeAt(s).getMyMovie() >= 1)
            myMovieAt(showtimeAt(s).getMyMovie());
    game_.screen().refresh(View::Showtimes);
}

void MovieManager::showAds() {
    game_.screen().refresh(View::Ads);
}

void MovieManager::clearShowtimeRow(int s) {
    showtimeAt(s);
    game_.screen().refresh(View::Showtimes);
}

// ---------------------------------------------------------------- saved game

void MovieManager::saveMovies(LineWriter& out) const {
    out << "<movies>";
    out << "ticketPriceStandard=" + numberText(ticketPrice_[0]);
    out << "ticketPriceMatinee=" + numberText(ticketPrice_[1]);
    out << "ticketPriceSenior=" + numberText(ticketPrice_[2]);
    for (int i = 1; i <= buyMoviesCount(); ++i)
        buyMovies_[static_cast<std::size_t>(i)]->saveSelf(out, "buy");
    for (int i = 1; i <= myMoviesCount(); ++i)
        myMovies_[static_cast<std::size_t>(i)]->saveSelf(out, "my");
    out << "</movies>";
}

// The loaded movies are new objects, no longer the catalogue's. The section ends only at
// "</movies>" (any case); other closing lines are skipped.
void MovieManager::loadMovies(LineReader& in) {
    buyMovies_ = emptyList();
    myMovies_ = emptyList();
    std::string line, key, value;
    while (in.readLine(line)) {
        const std::string lower = toLower(line);
        if (lower == "</movies>")
            break;
        if (lower == "<movie_buy>" || lower == "<movie_my>") {
            auto movie = std::make_shared<Movie>(game_);
            append(lower == "<movie_buy>" ? buyMovies_ : myMovies_, movie);
            movie->loadSelf(in);
            continue;
        }
        if (!splitKeyValue(line, key, value))
            continue;
        key = toLower(key);
        if (key == "ticketpricestandard")
            ticketPrice_[0] = leadingNumber(value);
        else if (key == "ticketpricematinee")
            ticketPrice_[1] = leadingNumber(value);
        else if (key == "ticketpricesenior")
            ticketPrice_[2] = leadingNumber(value);
    }
    showBuyMovies();
    showMyMovies();
    for (int i = 0; i <= 2; ++i)
        showTicketPrice(i);
}

void MovieManager::saveShowtimes(LineWriter& out) const {
    out << "<showtimes>";
    for (int s = 1; s <= 8; ++s)
        showtimeAt(s).saveSelf(out);
    out << "</showtimes>";
}

// Each "<showtime num=N>" line hands the following lines to showtime N. Movie numbers are not
// checked against the own list.
void MovieManager::loadShowtimes(LineReader& in) {
    static const std::string header = "<showtime num=";
    std::string line;
    while (in.readLine(line)) {
        const std::string lower = toLower(line);
        if (lower == "</showtimes>")
            break;
        if (lower.rfind(header, 0) == 0) {
            const int number = toInt16(leadingNumber(lower.substr(header.size())));
            showtimeAt(number).loadSelf(in, number);
        }
    }
    showShowtimes();
    showAds();
}

} // namespace zorvane
