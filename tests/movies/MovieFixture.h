#pragma once
#include "core/LineReader.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace zorvane::test {

// A game whose movie side is set up from chosen math values and a six-title catalogue (no
// start-up, so no other manager rolls or pays): funds of $100,000, eight showtimes, the first
// two at matinee prices.
struct MovieFixture : ::testing::Test {
    TempDir dir;
    std::unique_ptr<TestGame> tg;

    static constexpr const char* catalogue = "Alpha\nBeta\nGamma\nDelta\nEpsilon\nZeta\n";

    Game& g() { return **tg; }
    MovieManager& mm() { return g().movies; }
    MathVars& math() { return g().math; }

    void SetUp() override { setUpWith(catalogue); }

    void setUpWith(const std::string& movies) {
        dir.write("movies.lst", movies);
        tg = std::make_unique<TestGame>(dir.path().string(), 11);
        MathVars& m = math();
        m.moviemaxprice = 10000;
        m.moviepopdropdays = 7;
        m.moviepopdrop = 8;
        m.movieclassicmin = 5;
        m.movieclassicmax = 10;
        m.movieminreleases = 3;
        m.moviemaxreleases = 1;
        m.movieminpop = 1;
        m.moviemaxpop = 100;
        m.resalemin = 250;
        m.inflation = 3;
        m.showtimes = 8;
        m.showtimename = {"", "10 AM", "Noon", "2 PM", "4 PM", "6 PM", "8 PM", "10 PM", "Midnight"};
        m.showtimeadincome = 15;
        m.showtimeadsmaxtotal = 24;
        m.showtimeadsmax = 5;
        m.showtimeadpop = 2;
        m.ticketsstandard = 6;
        m.ticketsmatinee = 4.5;
        m.ticketsseniors = 4;
        m.percentseniors = 15;
        m.percentarcade = 0;
        m.percentconcessions = 0;
        m.demandbase = 15;
        m.demandprice = 0.06;
        m.demandshowtime = {0, -6, -4, -2, 0, 8, 12, 6, -4};
        m.demandpromotion = 0.2;
        m.demandrating = 0.3;
        m.demandpop = 0.6;
        m.demanddupe = 12;
        g().finances.setFunds(100000);
        mm().initShowtimes();
        mm().loadMovieList();
    }

    // The distributor offers exactly these catalogue numbers this week (drives the rolls).
    void offer(const std::vector<int>& numbers) {
        math().movieminreleases = static_cast<double>(numbers.size());
        math().moviemaxreleases = 1;
        g().rng.force(0.0);
        const double count = mm().allMoviesCount();
        for (int i : numbers)
            g().rng.force((i - 0.5) / count);
        mm().releaseMovies();
    }

    // Buys these catalogue titles one by one; they become own movies 1, 2, ... in this order.
    void own(const std::vector<int>& numbers) {
        for (int i : numbers) {
            offer({i});
            mm().buyMovie(1);
        }
    }

    // Books own movie `movie` on these showtimes, as the player ticks boxes and assigns.
    void book(int movie, const std::vector<int>& showtimes) {
        for (int s : showtimes)
            mm().checkShowtime(s, true);
        mm().assignShowtimes(movie);
    }

    int logged(const std::string& line) const { return tg->screen.count(line); }
};

// Gives a Movie any state, as a saved game would: the lines of a block after its open tag.
inline void loadInto(Movie& movie, const std::string& lines) {
    std::istringstream in(lines + "</movie_my>\r\n");
    LineReader reader(in, "test");
    movie.loadSelf(reader);
}

} // namespace zorvane::test
