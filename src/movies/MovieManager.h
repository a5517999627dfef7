#pragma once
#include "core/Numbers.h"
#include "movies/Movie.h"
#include "movies/showtime.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The theater's film booker: the catalogue, this week's offer from the distributor, the
// movies the theater owns, the eight showtimes and the three ticket prices. It buys, sells,
// assigns and stops, and carries the daily, weekly and yearly steps of the movie side.
//
// The three lists count from 1; entry 0 is an empty Movie, the one a showtime with movie
// number 0 points to. They share Movie objects with the catalogue until a game is loaded.
class MovieManager {
  public:
    using MovieRef = std::shared_ptr<Movie>;

    explicit MovieManager(Game& game);

    // --- start-up and the calendar's steps ---
    void initShowtimes();
    void loadMovieList();
    void releaseMovies();
    void nextDayMovies();
    void nextYearMovies();

    // --- what the player does ---
    void buyMovie(int row);
    void sellMovie();
    void assignShowtimes(int movieNumber);
    void stopShowtimes(int number);
    void setTicketPrice(int index, double price);
    double getTicketPrice(int index) const;
    void setShowtimeAds(int num, int ads);
    int getTotalAds() const;

    // --- what the showtimes and the rating read ---
    int getMyMoviePopularity(int movieNumber) const;
    void sellMovieTickets(int movieNumber, double income, int tickets);
    double getDemand(int num);
    int getAds(int num) const;

    // --- state the Movies screen's controls hold, kept here so a headless game plays alike ---
    void checkShowtime(int s, bool on);
    bool isShowtimeChecked(int s) const;
    void checkAllShowtimes(bool on); // the box for all showtimes: each box takes its value
    bool allShowtimesChecked() const { return checkAll_; }
    void selectMyMovie(int line); // -1: no line
    int selectedMyMovie() const { return selectedLine_; }
    void assignOnly(int s); // right button on a box: book the selected movie there

    // --- refreshes of the Movies screen (the game-state part runs here, at once) ---
    void showBuyMovies();
    void showMyMovies();
    void showTicketPrice(int index);
    void showShowtimes();
    void showAds();
    void clearShowtimeRow(int s);

    // --- the lists ---
    int allMoviesCount() const { return count(allMovies_); }
    int buyMoviesCount() const { return count(buyMovies_); }
    int myMoviesCount() const { return count(myMovies_); }
    Movie& catalogueMovie(int i) { return at(allMovies_, i, "allMovies"); }
    const Movie& buyMovieAt(int i) const { return at(buyMovies_, i, "buyMovies"); }
    const Movie& myMovieAt(int i) const { return at(myMovies_, i, "myMovies"); }
    Movie& myMovieAt(int i) { return at(myMovies_, i, "myMovies"); }
    bool sharesObject(int myIndex, int catalogueIndex) const; // the same object, not a copy
    showtime& showtimeAt(int num);
    const showtime& showtimeAt(int num) const;

    // --- saved game ---
    void saveMovies(LineWriter& out) const;
    void loadMovies(LineReader& in);
    void saveShowtimes(LineWriter& out) const;
    void loadShowtimes(LineReader& in);

  private:
    static int count(const std::vector<MovieRef>& list) {
        return static_cast<int>(list.size()) - 1;
    }
    static Movie& at(const std::vector<MovieRef>& list, int i, const char* name);
    void append(std::vector<MovieRef>& list, MovieRef movie);
    std::vector<MovieRef> emptyList() const;

    int rollPopularity();
    void addBuyMovie(int i);
    void removeBuyMovie(int row);
    void addMyMovie(int row, double price);
    void removeMyMovie(int i);
    void sortBuyMovies();
    void stopShowtime(int s);
    void doShowtimes();
    int duplicatesOf(int num) const;

    Game& game_;
    MovieRef empty_;
    std::vector<MovieRef> allMovies_;
    std::vector<MovieRef> buyMovies_;
    std::vector<MovieRef> myMovies_;
    std::vector<showtime> showtimeList_; // 1 to 8; entry 0 is never used
    std::array<double, 3> ticketPrice_{};

    std::array<bool, 9> checked_{}; // chkShowtimeAssign 1 to 8
    bool checkAll_ = false;         // chkShowtimeAssignAll
    int selectedLine_ = -1;         // lstMyMovies' selected line
};

} // namespace zorvane
