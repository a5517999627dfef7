#include "Subsystems.h"

#include "core/Text.h"

namespace zorvane::sim {

namespace {

using nlohmann::json;

MovieManager& movies(CommandContext& c) {
    return c.game.movies;
}

json movieState(const Movie& m) {
    return {{"Num", m.getMyNum()},
            {"Title", m.getMyTitle()},
            {"Income", m.getMyIncome()},
            {"todaysIncome", m.getTodaysIncome()},
            {"todaysTickets", m.getTodaysTickets()},
            {"Profit", m.getMyProfit()},
            {"Days", m.getMyDays()},
            {"Pop", m.getMyPopularity()},
            {"Classic", m.getClassic()},
            {"Price", m.getMyPrice()},
            {"firstPrice", m.getFirstPrice()},
            {"Running", m.getRunning()}};
}

json showtimeState(const showtime& s) {
    return {{"num", s.getNum()},
            {"name", s.getName()},
            {"matinee", s.isMatinee()},
            {"movie", s.getMyMovie()},
            {"ads", s.getAds()},
            {"todaysticketsales", s.getTodaysTicketSales()},
            {"todaysincome", s.getTodaysIncome()}};
}

// A showtime box of the table, 1 to 8.
int showtimeNumber(const Args& a, std::size_t i) {
    const int s = a.integer(i);
    if (s < 1 || s > 8)
        throw ScriptError("the showtime table has rows 1 to 8");
    return s;
}

// Checks the boxes named from word `first` on (all are read before any is checked).
void checkBoxes(CommandContext& c, const Args& a, std::size_t first) {
    std::vector<int> boxes;
    for (std::size_t i = first; i < a.size(); ++i)
        boxes.push_back(showtimeNumber(a, i));
    for (int s : boxes)
        movies(c).checkShowtime(s, true);
}

} // namespace

void addMovieCommands(CommandTable& t) {
    // A double click on a row of the buy grid (rows 1 to the offer's length).
    t["buymovie"] = {1, 1, [](CommandContext& c, const Args& a) {
                         const int row = a.integer(0);
                         const int offer = movies(c).buyMoviesCount();
                         if (offer > 0 && (row < 1 || row > offer))
                             throw ScriptError("the buy list has rows 1 to " +
                                               std::to_string(offer));
                         movies(c).buyMovie(row);
                     }};
    t["select"] = {1, 1, [](CommandContext& c, const Args& a) {
                       const int line = a.integer(0);
                       if (line < -1 || line >= movies(c).myMoviesCount())
                           throw ScriptError("the own-movies list has no line " +
                                             std::to_string(line));
                       movies(c).selectMyMovie(line);
                   }};
    t["sellmovie"] = {0, 0, [](CommandContext& c, const Args&) { movies(c).sellMovie(); }};
    t["show"] = {2, -1, [](CommandContext& c, const Args& a) {
                     const int movie = a.integer(0);
                     if (movie > movies(c).myMoviesCount())
                         throw ScriptError("there is no own movie " + std::to_string(movie));
                     checkBoxes(c, a, 1);
                     movies(c).assignShowtimes(movie);
                 }};
    t["stop"] = {1, -1, [](CommandContext& c, const Args& a) {
                     checkBoxes(c, a, 0);
                     movies(c).stopShowtimes(0);
                 }};
    t["matinee"] = {1, 1, [](CommandContext& c, const Args& a) {
                        movies(c).showtimeAt(showtimeNumber(a, 0)).toggleMatinee();
                    }};
    // A ticket price box: its text through digitsValue (no digits give 0).
    t["ticket"] = {1, -1, [](CommandContext& c, const Args& a) {
                       movies(c).setTicketPrice(a.integer(0), digitsValue(a.textFrom(1)));
                   }};
    // A double click on a row of the ads grid with N typed into the input box.
    t["ads"] = {2, 2, [](CommandContext& c, const Args& a) {
                    const int s = showtimeNumber(a, 0);
                    movies(c).setShowtimeAds(s, floorInt16(a.integer(1)));
                }};
}

void addMovieState(Game& game, json& state) {
    const MovieManager& m = game.movies;
    state["ticketPrice"] = {m.getTicketPrice(0), m.getTicketPrice(1), m.getTicketPrice(2)};
    json buy = json::array();
    for (int i = 1; i <= m.buyMoviesCount(); ++i)
        buy.push_back(movieState(m.buyMovieAt(i)));
    state["buyMovies"] = buy;
    json mine = json::array();
    for (int i = 1; i <= m.myMoviesCount(); ++i)
        mine.push_back(movieState(m.myMovieAt(i)));
    state["myMovies"] = mine;
    state["myMoviesSelected"] = m.selectedMyMovie();
    json shows = json::array();
    for (int s = 1; s <= 8; ++s)
        shows.push_back(showtimeState(m.showtimeAt(s)));
    state["showtimes"] = shows;
}

} // namespace zorvane::sim
