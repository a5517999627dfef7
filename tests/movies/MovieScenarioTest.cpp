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
    mm().showtimeAt(3).doBusiness();
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

TEST_F(MovieScript, AWeekBringsANewOffer) {
    const std::string message = " new movies have been released this week.";
    auto releases = [&] {
        int n = 0;
        const std::string& box = g().logBox;
        for (std::size_t p = box.find(message); p != std::string::npos;
             p = box.find(message, p + 1))
            ++n;
        return n;
    };
    const int before = releases();
    run("day 6");
    EXPECT_EQ(releases(), before + 1);
}

TEST_F(MovieScript, Commands) {
    run("ticket 0 $7.25");
    run("ticket 1 abc");
    run("ticket 2");
    run("ticket 4 9");
    auto s = state();
    EXPECT_EQ(s["ticketPrice"], (nlohmann::json{7.25, 0.0, 0.0}));

    const std::string title = mm().buyMovieAt(1).getMyTitle();
    run("buymovie 1");
    run("buymovie 1");
    run("select 0");
    run("show 0 3 4");
    run("show 2 5");
    run("stop 4");
    run("matinee 3");
    run("ads 3 2");
    s = state();
    ASSERT_EQ(s["myMovies"].size(), 2u);
    EXPECT_EQ(s["myMovies"][0]["Title"], title);
    EXPECT_EQ(s["myMovies"][0]["Num"], 1);
    EXPECT_EQ(s["myMovies"][1]["Running"], true);
    EXPECT_EQ(s["myMoviesSelected"], 0);
    EXPECT_EQ(s["myMovies"][0]["Running"], false); // stopped on 4, though 3 still shows it
    const auto& shows = s["showtimes"];
    ASSERT_EQ(shows.size(), 8u);
    EXPECT_EQ(shows[2]["num"], 3);
    EXPECT_EQ(shows[2]["movie"], 1);
    EXPECT_EQ(shows[2]["matinee"], true);
    EXPECT_EQ(shows[2]["ads"], 2);
    EXPECT_EQ(shows[2]["name"], g().math.showtimename[3]);
    EXPECT_EQ(shows[3]["movie"], 0);
    EXPECT_EQ(shows[4]["movie"], 2);
    for (const char* key : {"todaysticketsales", "todaysincome"})
        EXPECT_TRUE(shows[0].contains(key)) << key;
    for (const char* key : {"Income", "todaysIncome", "todaysTickets", "Profit", "Days", "Pop",
                            "Classic", "Price", "firstPrice"})
        EXPECT_TRUE(s["myMovies"][0].contains(key)) << key;
    EXPECT_TRUE(s["buyMovies"].is_array());

    run("select 0");
    run("sellmovie");
    s = state();
    ASSERT_EQ(s["myMovies"].size(), 1u);
    EXPECT_EQ(s["showtimes"][2]["movie"], 0);
    EXPECT_EQ(s["showtimes"][4]["movie"], 1);
}

TEST_F(MovieScript, BadLinesAreScriptErrors) {
    EXPECT_THROW(run("select 0"), sim::ScriptError); // no own movie yet
    EXPECT_THROW(run("buymovie 99"), sim::ScriptError);
    EXPECT_THROW(run("show 3 1"), sim::ScriptError); // no own movie 3
    EXPECT_THROW(run("show 0 9"), sim::ScriptError);
    EXPECT_THROW(run("stop 0"), sim::ScriptError);
    EXPECT_THROW(run("matinee 9"), sim::ScriptError);
    EXPECT_THROW(run("ads 0 1"), sim::ScriptError);
    EXPECT_THROW(run("ads 1 x"), sim::ScriptError);
}

TEST_F(MovieScript, AHugeAdCountIsAnOverflow) {
    EXPECT_THROW(run("ads 1 40000"), GameError);
}
