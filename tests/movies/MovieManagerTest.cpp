#include "MovieFixture.h"

#include "core/GameError.h"

using namespace zorvane;
using namespace zorvane::test;

namespace {

using Booker = MovieFixture;

// The container has read the open tag: the reader starts on the next line.
void loadSection(const std::string& text, void (MovieManager::*load)(LineReader&),
                 MovieManager& mm) {
    std::istringstream in(text.substr(text.find('\n') + 1));
    LineReader reader(in, "test.zvn");
    (mm.*load)(reader);
}

} // namespace

// ---------------------------------------------------------------- catalogue

TEST_F(Booker, CatalogueTakesEveryLineAsATitleAndAnEmptyOneFailsAtTheRelease) {
    setUpWith("One\n\nThree\r\nFour");
    ASSERT_EQ(mm().allMoviesCount(), 4);
    EXPECT_EQ(mm().catalogueMovie(2).getMyTitle(), ""); // a blank line is a title too
    EXPECT_EQ(mm().catalogueMovie(3).getMyTitle(), "Three");
    EXPECT_EQ(mm().catalogueMovie(4).getMyNum(), 4);
    for (int i = 1; i <= 4; ++i) {
        const int pop = mm().catalogueMovie(i).getMyPopularity();
        EXPECT_GE(pop, 1);
        EXPECT_LE(pop, 100);
        EXPECT_EQ(mm().catalogueMovie(i).getMyPrice(), pop * 100.0);
    }
    setUpWith(""); // an empty catalogue fails at the release
    EXPECT_EQ(mm().allMoviesCount(), 0);
    math().movieminreleases = 1;
    g().rng.force({0.0, 0.5}); // one draw: Int(0 * u + 1) = 1, a title that is not there
    EXPECT_THROW(mm().releaseMovies(), GameError);
}

TEST_F(Booker, PopularityIsRolledUntilItLiesWithinTheBounds) {
    math().movieminpop = 10; // rolls run from 10 to 109
    dir.write("movies.lst", "Solo\n");
    g().rng.force({0.0, 0.95, 0.25}); // classic level; 105 rolled again; 35
    MovieManager fresh(g());
    fresh.loadMovieList();
    EXPECT_EQ(fresh.catalogueMovie(1).getClassic(), 5);
    EXPECT_EQ(fresh.catalogueMovie(1).getMyPopularity(), 35);
    EXPECT_EQ(g().rng.forcedLeft(), 0u);
    math().movieminpop = 0; // a zero within the bounds is taken without a roll
    const auto draws = g().rng.draws();
    MovieManager zero(g());
    zero.loadMovieList();
    EXPECT_EQ(zero.catalogueMovie(1).getMyPopularity(), 0);
    EXPECT_EQ(g().rng.draws(), draws + 1); // the classic level only
    std::filesystem::remove(dir.file("movies.lst"));
    EXPECT_THROW(zero.loadMovieList(), GameError); // a missing catalogue is fatal
}

// ---------------------------------------------------------------- weekly release

TEST_F(Booker, ReleaseCountsEveryDrawAndOffersWhatTheFundsCanPayExactly) {
    pops({50, 50, 50, 90, 91});
    g().finances.setFunds(4999);
    offer({1, 2, 3});
    EXPECT_EQ(offered(), Titles{});
    EXPECT_EQ(logged("3 new movies have been released this week."), 1);
    EXPECT_EQ(g().rng.forcedLeft(), 0u); // no second draw for a rejection
    g().finances.setFunds(9000);
    offer({4, 5});
    EXPECT_EQ(offered(), Titles{"Delta"});
}

TEST_F(Booker, ReleaseTurnsAwayRepeatsAndTitlesOnOfferAndDrawsMinUpToShortOfMinPlusMax) {
    setUpWith("Alpha\nBeta\nALPHA\nDelta\n");
    pops({50, 50, 50, 50}); // ties keep the order of the draws
    offer({1, 1, 3, 2});
    EXPECT_EQ(logged("4 new movies have been released this week."), 1);
    EXPECT_EQ(offered(), Titles({"Alpha", "Beta"}));
    offer({4});
    EXPECT_EQ(offered(), Titles{"Delta"});
    // The count runs from the minimum up to just short of the minimum plus the maximum.
    math().movieminreleases = 3;
    math().moviemaxreleases = 5;
    g().rng.force(0.999); // Int(4.995 + 3) = 7
    for (int i = 0; i < 7; ++i)
        g().rng.force(0.0); // always Alpha: one offer, six repeats
    mm().releaseMovies();
    EXPECT_EQ(logged("7 new movies have been released this week."), 1);
    EXPECT_EQ(offered(), Titles{"Alpha"});
}

TEST_F(Booker, OfferIsSortedByPopularityAndDropsOutOfRangeOnes) {
    pops({30, 80, 30, 0, 150});
    offer({1, 2, 3, 4, 5});
    EXPECT_EQ(offered(), Titles({"Beta", "Alpha", "Gamma"})); // ties keep their order
    EXPECT_EQ(mm().buyMovieAt(1).getMyNum(), 2);              // numbered before the sort, not after
    EXPECT_EQ(mm().buyMovieAt(3).getMyNum(), 3);
}

// ---------------------------------------------------------------- buying

TEST_F(Booker, BuyingIsRefusedAtFundsOfPricePlus99CentsAndSucceedsAtPricePlusOne) {
    pops({50, 40}); // Beta: $4,000
    offer({2});
    g().finances.setFunds(4000.99);
    mm().buyMovie(1);
    EXPECT_EQ(logged("You cannot afford this movie!"), 1);
    EXPECT_EQ(offered(), Titles{"Beta"});
    EXPECT_EQ(owned(), Titles{});
    EXPECT_EQ(g().finances.getFunds(), 4000.99);
    EXPECT_EQ(g().finances.depmovie, 0);
    g().finances.setFunds(4001);
    mm().buyMovie(1);
    EXPECT_EQ(logged("You cannot afford this movie!"), 1);
    EXPECT_EQ(g().finances.getFunds(), 1);
    EXPECT_EQ(g().finances.depmovie, 4000);
    EXPECT_EQ(offered(), Titles{});
    ASSERT_EQ(owned(), Titles{"Beta"});
    EXPECT_EQ(mm().myMovieAt(1).getFirstPrice(), 4000);
    EXPECT_EQ(mm().myMovieAt(1).getMyProfit(), 0);
    EXPECT_EQ(mm().selectedMyMovie(), 0); // the list shows it and selects the last line
    EXPECT_NO_THROW(mm().buyMovie(3));    // an empty offer: nothing
    EXPECT_EQ(owned(), Titles{"Beta"});
}

TEST_F(Booker, BuyingTakesTheRowOutWithoutRenumbering) {
    pops({90, 80, 70});
    own({4});
    offer({1, 2, 3});
    mm().buyMovie(2);
    EXPECT_EQ(offered(), Titles({"Alpha", "Gamma"}));
    EXPECT_EQ(mm().buyMovieAt(1).getMyNum(), 1);
    EXPECT_EQ(mm().buyMovieAt(2).getMyNum(), 3);
    EXPECT_EQ(owned(), Titles({"Delta", "Beta"}));
    EXPECT_EQ(mm().myMovieAt(2).getMyNum(), 2); // its place in the own list
}

// ---------------------------------------------------------------- selling

TEST_F(Booker, SellingFromTheMiddleRenumbersAndBlanksTodaysFigures) {
    g().building.seating = 100;
    own({1, 2, 3});
    book(1, {1});
    book(2, {2});
    book(3, {3, 4});
    for (int s = 1; s <= 4; ++s)
        mm().showtimeAt(s).doBusiness(g().building.getSeating());
    ASSERT_GT(mm().showtimeAt(1).getTodaysTicketSales(), 0);
    const double price = mm().myMovieAt(2).getMyPrice();
    const double funds = g().finances.getFunds();
    const double movieIncome = g().finances.incdepmovie;

    mm().selectMyMovie(1);
    mm().sellMovie();

    EXPECT_DOUBLE_EQ(g().finances.getFunds(), funds + price);
    EXPECT_EQ(g().finances.incdepmovie, movieIncome); // the sale counts for no department
    EXPECT_EQ(owned(), Titles({"Alpha", "Gamma"}));
    EXPECT_EQ(mm().myMovieAt(2).getMyNum(), 3); // Num is not renumbered
    EXPECT_EQ(booked(), Ints({1, 0, 2, 2, 0, 0, 0, 0}));
    for (int s = 1; s <= 4; ++s) { // also showtime 1, whose number stayed the same
        EXPECT_EQ(mm().showtimeAt(s).getTodaysTicketSales(), 0) << s;
        EXPECT_EQ(mm().showtimeAt(s).getTodaysIncome(), 0) << s;
    }
    EXPECT_EQ(mm().selectedMyMovie(), 1);
    EXPECT_FALSE(mm().catalogueMovie(2).getRunning()); // the sold movie's showtimes stopped
    mm().selectMyMovie(-1);
    mm().sellMovie(); // nothing selected: nothing sold
    EXPECT_EQ(mm().myMoviesCount(), 2);
    EXPECT_DOUBLE_EQ(g().finances.getFunds(), funds + price);
    EXPECT_THROW(mm().selectMyMovie(2), GameError); // no such line
}

TEST_F(Booker, OwnMoviesAgeEvenOnAClosedDayAndADropSelectsTheLastLineAgain) {
    math().moviepopdropdays = 1;
    g().building.seating = 100;
    own({1, 2});
    mm().myMovieAt(1).setMyPopularity(90);
    book(1, {3});
    mm().showtimeAt(3).doBusiness(g().building.getSeating());
    const int sold = mm().showtimeAt(3).getTodaysTicketSales();
    ASSERT_GT(sold, 0);
    mm().selectMyMovie(0);
    g().rng.force({0.5, 0.5}); // drops of Int(8 * 0.5 + 1) = 5
    mm().nextDayMovies();      // nobody on the staff: no business today
    EXPECT_FALSE(g().calendar.canDoBusiness());
    EXPECT_EQ(mm().myMovieAt(1).getMyDays(), 1);
    EXPECT_EQ(mm().myMovieAt(1).getTodaysTickets(), 0);
    EXPECT_EQ(mm().myMovieAt(1).getMyPopularity(), 85);
    EXPECT_EQ(mm().showtimeAt(3).getTodaysTicketSales(), sold); // the last day it ran
    EXPECT_EQ(mm().selectedMyMovie(), 1); // the resale price asks for the own list
}

// ---------------------------------------------------------------- showtimes

TEST_F(Booker, AssigningOverwritesAndStoppingMarksTheMovieNotRunningEvenIfItStillPlays) {
    own({1, 2});
    book(1, {1, 2, 3, 4});
    EXPECT_TRUE(mm().myMovieAt(1).getRunning());
    EXPECT_FALSE(mm().isShowtimeChecked(1)); // the boxes are cleared
    book(2, {2});
    EXPECT_EQ(booked(), Ints({1, 2, 1, 1, 0, 0, 0, 0}));
    EXPECT_TRUE(mm().myMovieAt(1).getRunning()); // stale, as the game has it
    mm().checkShowtime(3, true);
    mm().stopShowtimes(0);
    EXPECT_EQ(booked(), Ints({1, 2, 0, 1, 0, 0, 0, 0}));
    EXPECT_FALSE(mm().myMovieAt(1).getRunning());
    EXPECT_FALSE(mm().isShowtimeChecked(3));
}

TEST_F(Booker, NewGameShowtimesAndTicketPricesThenAssigningTheSelectedLineOrAllShowtimes) {
    EXPECT_EQ(booked(), Ints(8, 0));
    for (int s = 1; s <= 8; ++s) {
        const showtime& st = mm().showtimeAt(s);
        EXPECT_EQ(st.isMatinee(), s <= 2) << s;
        EXPECT_EQ(st.getName(), math().showtimename[static_cast<std::size_t>(s)]);
        EXPECT_EQ(st.getAds(), 0);
    }
    EXPECT_EQ(mm().getTicketPrice(0), 6);
    EXPECT_EQ(mm().getTicketPrice(2), 4);
    mm().setTicketPrice(1, 3.25);
    mm().setTicketPrice(3, 9);
    mm().setTicketPrice(-1, 9);
    EXPECT_EQ(mm().getTicketPrice(1), 3.25);
    EXPECT_EQ(mm().getTicketPrice(3), 0);
    EXPECT_EQ(mm().getTicketPrice(-1), 0);
    EXPECT_EQ(mm().getTicketPrice(0), 6);
    // Assigning the selected line or all showtimes.
    own({1, 2});
    mm().selectMyMovie(0);
    mm().assignOnly(5);
    mm().selectMyMovie(-1);
    mm().assignOnly(6); // no line selected: nothing but the boxes cleared
    EXPECT_EQ(booked(), Ints({0, 0, 0, 0, 1, 0, 0, 0}));
    EXPECT_FALSE(mm().isShowtimeChecked(6));
    mm().checkAllShowtimes(true);
    EXPECT_TRUE(mm().allShowtimesChecked());
    mm().assignShowtimes(2);
    EXPECT_EQ(booked(), Ints(8, 2));
    for (int s = 1; s <= 8; ++s)
        EXPECT_FALSE(mm().isShowtimeChecked(s));
    EXPECT_FALSE(mm().allShowtimesChecked());
}

// Showtimes beyond `showtimes` are never set up: no name, yet they play. They save their own
// number, 0, and no name; reading that back names showtime 0, which does not exist: the load
// stops there.
TEST_F(Booker, ShowtimesBeyondTheMathCountHaveNoNameButPlayAndFailTheLoad) {
    math().showtimes = 6;
    math().showtimename = {"", "a", "b", "c", "d", "e", "f", "g", "h"};
    MovieManager fresh(g());
    fresh.initShowtimes();
    EXPECT_EQ(fresh.showtimeAt(6).getName(), "f");
    EXPECT_EQ(fresh.showtimeAt(7).getName(), "");
    EXPECT_EQ(fresh.showtimeAt(7).labelCaption(), "10 PM"); // the label's own text
    std::ostringstream text;
    LineWriter out(text);
    fresh.saveShowtimes(out);
    EXPECT_NE(text.str().find("</showtime>\r\n<showtime num=0>\r\nmatinee=0\r\nmovie= 0\r\n"
                              "todaysticketsales= 0\r\ntodaysincome= 0\r\nads= 0\r\nname=\r\n"
                              "</showtime>\r\n<showtime num=0>"),
              std::string::npos)
        << text.str();
    fresh.showtimeAt(6).setName("changed");
    EXPECT_THROW(loadSection(text.str(), &MovieManager::loadShowtimes, fresh), GameError);
    EXPECT_EQ(fresh.showtimeAt(6).getName(), "f"); // read before the failure
    fresh.showtimeAt(7).toggleMatinee();
    EXPECT_EQ(logged("10 PM is now at matinee prices"), 1);
}

// ---------------------------------------------------------------- ads

TEST_F(Booker, AdsCapTestsTheTotalPlusTheNewCount) {
    const std::string refused =
        "You are not allowed to show any more ads than you already are in your theater!";
    for (int s = 1; s <= 4; ++s)
        mm().setShowtimeAds(s, 5);
    mm().setShowtimeAds(5, 4);
    EXPECT_EQ(mm().getTotalAds(), 24);
    // Lowering showtime 1 to 1 ad is tested as 24 + 1 and refused.
    mm().setShowtimeAds(1, 1);
    EXPECT_EQ(logged(refused), 1);
    EXPECT_EQ(mm().getAds(1), 5);
    mm().setShowtimeAds(1, 0);
    EXPECT_EQ(mm().getAds(1), 0);
    // 19 + 5 is allowed, 19 + 6 is not, although showtime 2 holds 5 already.
    mm().setShowtimeAds(2, 6);
    EXPECT_EQ(logged(refused), 2);
    EXPECT_EQ(mm().getAds(2), 5);
}

TEST_F(Booker, AShowtimeTakesAtMostShowtimeadsmaxAndNoLowerBoundAndOnlyUpToTheCount) {
    mm().setShowtimeAds(1, 9);
    EXPECT_EQ(mm().getAds(1), 5);
    mm().setShowtimeAds(2, -3);
    EXPECT_EQ(mm().getAds(2), -3);
    EXPECT_EQ(mm().getTotalAds(), 2);
    math().showtimes = 6; // ads beyond the count are not set nor counted
    mm().setShowtimeAds(7, 3);
    EXPECT_EQ(mm().getAds(7), 0);
    int ads = 4;
    mm().showtimeAt(7).setAds(ads); // as a saved game may hold them
    EXPECT_EQ(mm().getTotalAds(), 2);
    math().showtimes = 0;
    EXPECT_EQ(mm().getTotalAds(), 0);
}

// ---------------------------------------------------------------- year and saved games

TEST_F(Booker, InflationReachesOwnedTitlesThroughTheCatalogue) {
    pops({50});
    own({1});
    const double other = mm().catalogueMovie(2).getMyPrice();
    mm().nextYearMovies();
    EXPECT_DOUBLE_EQ(mm().myMovieAt(1).getMyPrice(), 5150);
    EXPECT_EQ(mm().myMovieAt(1).getFirstPrice(), 5000);
    EXPECT_DOUBLE_EQ(mm().catalogueMovie(2).getMyPrice(), other * 1.03);
}

TEST_F(Booker, OwnedTitlesShareTheCatalogueObjectLoadedOnesAreNewWithoutTodaysSales) {
    g().building.seating = 150;
    own({1});
    book(1, {3});
    mm().showtimeAt(3).doBusiness(g().building.getSeating());
    EXPECT_TRUE(mm().sharesObject(1, 1));
    offer({1}); // an owned title may come up again, as the same object
    EXPECT_EQ(&mm().buyMovieAt(1), &mm().myMovieAt(1));
    const double income = mm().myMovieAt(1).getMyIncome();
    ASSERT_GT(mm().myMovieAt(1).getMySold(), 0);
    std::ostringstream text;
    LineWriter out(text);
    mm().saveMovies(out);
    loadSection(text.str(), &MovieManager::loadMovies, mm());
    EXPECT_FALSE(mm().sharesObject(1, 1));
    EXPECT_EQ(mm().myMovieAt(1).getMyIncome(), income);
    EXPECT_EQ(mm().myMovieAt(1).getMySold(), 0); // not in the file
    // A later release of the same title brings the catalogue's object, not the loaded one.
    offer({1});
    EXPECT_NE(&mm().buyMovieAt(1), &mm().myMovieAt(1));
}
