#pragma once
#include "core/LineFile.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace zorvane::test {

using Ints = std::vector<int>;
using Titles = std::vector<std::string>;

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
        tg->math("moviemaxprice=10000; moviepopdropdays=7; moviepopdrop=8; movieclassicmin=5;"
                 "movieclassicmax=10; movieminreleases=3; moviemaxreleases=1; movieminpop=1;"
                 "moviemaxpop=100; resalemin=250; inflation=3; showtimes=8;"
                 "showtimename1=10 AM; showtimename2=Noon; showtimename3=2 PM; showtimename4=4 PM;"
                 "showtimename5=6 PM; showtimename6=8 PM; showtimename7=10 PM;"
                 "showtimename8=Midnight; showtimeadincome=15; showtimeadsmaxtotal=24;"
                 "showtimeadsmax=5; showtimeadpop=2; ticketsstandard=6; ticketsmatinee=4.5;"
                 "ticketsseniors=4; percentseniors=15; percentarcade=0; percentconcessions=0;"
                 "demandbase=15; demandprice=0.06; demandshowtime1=-6; demandshowtime2=-4;"
                 "demandshowtime3=-2; demandshowtime4=0; demandshowtime5=8; demandshowtime6=12;"
                 "demandshowtime7=6; demandshowtime8=-4; demandpromotion=0.2; demandrating=0.3;"
                 "demandpop=0.6; demanddupe=12");
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

    // Popularities of catalogue titles 1, 2, ... (their prices follow at $100 a point).
    void pops(const std::vector<int>& values) {
        for (std::size_t i = 0; i < values.size(); ++i)
            mm().catalogueMovie(static_cast<int>(i) + 1).setMyPopularity(values[i]);
    }
    // The titles on offer and owned, in list order; the movie booked on showtimes 1 to 8.
    std::vector<std::string> offered() {
        std::vector<std::string> t;
        for (int i = 1; i <= mm().buyMoviesCount(); ++i)
            t.push_back(mm().buyMovieAt(i).getMyTitle());
        return t;
    }
    std::vector<std::string> owned() {
        std::vector<std::string> t;
        for (int i = 1; i <= mm().myMoviesCount(); ++i)
            t.push_back(mm().myMovieAt(i).getMyTitle());
        return t;
    }
    std::vector<int> booked() {
        std::vector<int> b;
        for (int s = 1; s <= 8; ++s)
            b.push_back(mm().showtimeAt(s).getMyMovie());
        return b;
    }
};

// Gives a Movie any state, as a saved game would: the lines of a block after its open tag.
inline void loadInto(Movie& movie, const std::string& lines) {
    std::istringstream in(lines + "</movie_my>\r\n");
    LineReader reader(in, "test");
    movie.loadSelf(reader);
}

} // namespace zorvane::test
