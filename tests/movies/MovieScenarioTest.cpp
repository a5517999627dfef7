#include "Simulator.h"
#include "StateJson.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include "core/GameError.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct MovieScript : SimScenario {
    void SetUp() override {
        data.setMath({{"moviepopdropdays", "1"}});
        start(5);
    }
    Game& g() { return game(); }
    MovieManager& mm() { return g().movies; }
};

} // namespace

TEST_F(MovieScript, OwnMoviesAgeEvenOnAClosedDay) {
    ASSERT_GT(mm().buyMoviesCount(), 0); // start-up's release
    run("buymovie 1");
    ASSERT_EQ(mm().myMoviesCount(), 1);
    mm().myMovieAt(1).setMyPopularity(90);
    run("show 1 3");
    g().building.seating = 100;
    mm().showtimeAt(3).doBusiness(g().building.getSeating());
    const int sold = mm().showtimeAt(3).getTodaysTicketSales();
    ASSERT_GT(sold, 0);
    ASSERT_GT(mm().myMovieAt(1).getTodaysTickets(), 0);

    run("day"); // no staff: no business today
    EXPECT_FALSE(g().calendar.canDoBusiness());
    const Movie& movie = mm().myMovieAt(1);
    EXPECT_EQ(movie.getMyDays(), 1);
    EXPECT_EQ(movie.getTodaysTickets(), 0);
    EXPECT_LT(movie.getMyPopularity(), 90);
    EXPECT_GE(movie.getMyPopularity(), 82);
    // The showtime keeps the figures of the last day it ran.
    EXPECT_EQ(mm().showtimeAt(3).getTodaysTicketSales(), sold);
}
