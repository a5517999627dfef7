#include "MovieFixture.h"

#include "core/GameError.h"

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct Sections : MovieFixture {
    std::string saveMovies() {
        std::ostringstream text;
        LineWriter out(text);
        mm().saveMovies(out);
        return text.str();
    }
    std::string saveShowtimes() {
        std::ostringstream text;
        LineWriter out(text);
        mm().saveShowtimes(out);
        return text.str();
    }
    // The container has read the open tag: the reader starts on the next line.
    void loadMovies(const std::string& text) {
        std::istringstream in(text.substr(text.find('\n') + 1));
        LineReader reader(in, "test.zvn");
        mm().loadMovies(reader);
    }
    void loadShowtimes(const std::string& text) {
        std::istringstream in(text.substr(text.find('\n') + 1));
        LineReader reader(in, "test.zvn");
        mm().loadShowtimes(reader);
    }
    // A game with a bit of everything: an offer, three own movies with sales, booked
    // showtimes with ads, a changed price.
    void play() {
        g().building.seating = 150;
        own({1, 2, 3});
        offer({4, 5});
        book(1, {1, 3});
        book(3, {6});
        mm().setShowtimeAds(3, 2);
        mm().setShowtimeAds(8, 1);
        mm().setTicketPrice(0, 6.75);
        mm().showtimeAt(4).toggleMatinee();
        for (int s : {1, 3, 6})
            mm().showtimeAt(s).doBusiness();
    }
};

} // namespace

TEST_F(Sections, MoviesSaveThenLoadGivesTheSameSection) {
    play();
    const std::string first = saveMovies();
    loadMovies(first);
    EXPECT_EQ(saveMovies(), first);
    EXPECT_EQ(mm().buyMoviesCount(), 2);
    EXPECT_EQ(mm().myMoviesCount(), 3);
    EXPECT_EQ(mm().getTicketPrice(0), 6.75);
}

TEST_F(Sections, MoviesSectionHeadIsPlainDecimal) {
    mm().setTicketPrice(1, 4.25);
    EXPECT_EQ(saveMovies(), "<movies>\r\nticketPriceStandard=6\r\nticketPriceMatinee=4.25\r\n"
                            "ticketPriceSenior=4\r\n</movies>\r\n");
}

TEST_F(Sections, LoadedMoviesAreNewObjects) {
    play();
    EXPECT_TRUE(mm().sharesObject(1, 1));
    const double income = mm().myMovieAt(1).getMyIncome();
    ASSERT_GT(mm().myMovieAt(1).getMySold(), 0);
    loadMovies(saveMovies());
    EXPECT_FALSE(mm().sharesObject(1, 1));
    EXPECT_EQ(mm().myMovieAt(1).getMyIncome(), income);
    EXPECT_EQ(mm().myMovieAt(1).getMySold(), 0); // not in the file
    // A later release of the same title brings the catalogue's object, not the loaded one.
    offer({1});
    EXPECT_NE(&mm().buyMovieAt(1), &mm().myMovieAt(1));
}

TEST_F(Sections, LoadingEmptiesBothListsAndRebuildsTheOwnList) {
    play();
    loadMovies(
        "<movies>\r\n<movie_my>\r\nNum=7\r\nTitle=Lone\r\nPop=40\r\n</movie_my>\r\n</movies>\r\n");
    EXPECT_EQ(mm().buyMoviesCount(), 0);
    ASSERT_EQ(mm().myMoviesCount(), 1);
    EXPECT_EQ(mm().myMovieAt(1).getMyNum(), 7); // as the file says
    EXPECT_EQ(mm().myMovieAt(1).getMyListPos(), 0);
    EXPECT_EQ(mm().selectedMyMovie(), 0);
    EXPECT_EQ(mm().getTicketPrice(0), 6.75); // missing keys keep their value
}

TEST_F(Sections, MoviesSectionEndsOnlyAtItsOwnClosingTag) {
    loadMovies("<movies>\r\n</junk>\r\n<MOVIE_BUY>\r\nTitle=Late\r\nPop=30\r\n</MOVIE_BUY>\r\n"
               "TicketPriceSenior=3.5 dollars\r\n</MOVIES>\r\nticketPriceMatinee=1\r\n");
    ASSERT_EQ(mm().buyMoviesCount(), 1);
    EXPECT_EQ(mm().buyMovieAt(1).getMyTitle(), "Late");
    EXPECT_EQ(mm().getTicketPrice(2), 3.5);
    EXPECT_EQ(mm().getTicketPrice(1), 4.5);
}

TEST_F(Sections, LoadedOfferIsSortedAndLosesPopularityOutsideOneToHundred) {
    loadMovies("<movies>\r\n<movie_buy>\r\nTitle=Low\r\nPop=20\r\n</movie_buy>\r\n"
               "<movie_buy>\r\nTitle=Zero\r\nPop=0\r\n</movie_buy>\r\n"
               "<movie_buy>\r\nTitle=High\r\nPop=70\r\n</movie_buy>\r\n</movies>\r\n");
    ASSERT_EQ(mm().buyMoviesCount(), 2);
    EXPECT_EQ(mm().buyMovieAt(1).getMyTitle(), "High");
    EXPECT_EQ(mm().buyMovieAt(2).getMyTitle(), "Low");
}

TEST_F(Sections, ShowtimesSaveThenLoadGivesTheSameSection) {
    play();
    const std::string first = saveShowtimes();
    for (int s = 1; s <= 8; ++s)
        mm().showtimeAt(s).setMyMovie(0);
    loadShowtimes(first);
    EXPECT_EQ(saveShowtimes(), first);
    EXPECT_EQ(mm().showtimeAt(3).getMyMovie(), 1);
    EXPECT_GT(mm().showtimeAt(3).getTodaysTicketSales(), 0);
    EXPECT_TRUE(mm().showtimeAt(4).isMatinee());
    EXPECT_EQ(mm().showtimeAt(8).getAds(), 1);
}

TEST_F(Sections, ShowtimeBlockForm) {
    own({2});
    book(1, {2});
    mm().setShowtimeAds(2, 3);
    const std::string text = saveShowtimes();
    EXPECT_NE(text.find("<showtime num=2>\r\nmatinee=1\r\nmovie= 1\r\ntodaysticketsales= 0\r\n"
                        "todaysincome= 0\r\nads= 3\r\nname=Noon\r\n</showtime>\r\n"),
              std::string::npos)
        << text;
    EXPECT_EQ(text.rfind("<showtimes>\r\n", 0), 0u);
    EXPECT_NE(text.find("</showtime>\r\n</showtimes>\r\n"), std::string::npos);
}

TEST_F(Sections, ASavedGameKeepsItsOwnShowtimeNames) {
    const std::string text = saveShowtimes();
    math().showtimename[3] = "Teatime";
    loadShowtimes(text);
    EXPECT_EQ(mm().showtimeAt(3).getName(), "2 PM");
    EXPECT_EQ(mm().showtimeAt(3).labelCaption(), "2 PM");
}

TEST_F(Sections, ShowtimeLoaderReadsAnyCaseAndOnlyAMatineeOfOne) {
    loadShowtimes("<showtimes>\r\n<SHOWTIME NUM=5>\r\nMATINEE=-1\r\nAds=2.5\r\nName=Late Show\r\n"
                  "</showtime>\r\n<showtime num=6>\r\nmatinee=1\r\n</showtime>\r\n</showtimes>\r\n"
                  "<showtime num=7>\r\nads=4\r\n</showtime>\r\n");
    EXPECT_FALSE(mm().showtimeAt(5).isMatinee());
    EXPECT_EQ(mm().showtimeAt(5).getAds(), 2); // ties to even
    EXPECT_EQ(mm().showtimeAt(5).getName(), "Late Show");
    EXPECT_TRUE(mm().showtimeAt(6).isMatinee());
    EXPECT_TRUE(mm().showtimeAt(6).labelGrey());
    EXPECT_EQ(mm().showtimeAt(7).getAds(), 0); // after the section's end
}

TEST_F(Sections, ShowtimeNumbersOutsideOneToEightAreABoundsError) {
    EXPECT_THROW(
        loadShowtimes("<showtimes>\r\n<showtime num=9>\r\n</showtime>\r\n</showtimes>\r\n"),
        GameError);
}

TEST_F(Sections, AMovieNumberBeyondTheOwnListIsStoredThenFailsTheTable) {
    // The loader does not check; the showtime table, which reads the movie, does.
    EXPECT_THROW(loadShowtimes("<showtimes>\r\n<showtime num=2>\r\nmovie=4\r\n</showtime>\r\n"
                               "</showtimes>\r\n"),
                 GameError);
    EXPECT_EQ(mm().showtimeAt(2).getMyMovie(), 4);
}

TEST_F(Sections, UnsetShowtimesSaveNumberZeroAndFailTheLoad) {
    // Showtimes beyond `showtimes` were never set up: they write their own number, 0, and no
    // name. Reading them back names showtime 0, which does not exist: the load stops there.
    math().showtimes = 6;
    MovieManager fresh(g());
    fresh.initShowtimes();
    std::ostringstream text;
    LineWriter out(text);
    fresh.saveShowtimes(out);
    EXPECT_NE(text.str().find("</showtime>\r\n<showtime num=0>\r\nmatinee=0\r\nmovie= 0\r\n"
                              "todaysticketsales= 0\r\ntodaysincome= 0\r\nads= 0\r\nname=\r\n"
                              "</showtime>\r\n<showtime num=0>"),
              std::string::npos)
        << text.str();
    fresh.showtimeAt(6).setName("changed");
    std::istringstream in(text.str().substr(text.str().find('\n') + 1));
    LineReader reader(in, "test.zvn");
    EXPECT_THROW(fresh.loadShowtimes(reader), GameError);
    EXPECT_EQ(fresh.showtimeAt(6).getName(), "8 PM"); // read before the failure
}
