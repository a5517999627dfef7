#pragma once
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class MovieManager {
public:
    explicit MovieManager(Game& game) : game_(game) {}

    void initShowtimes();
    void loadMovieList();
    void releaseMovies();
    void nextDayMovies();
    void nextYearMovies();
    double getDemand(int) { return 0; }
    int getAds(int) const { return 0; }

    void saveMovies(LineWriter& out) const;
    void loadMovies(LineReader& in);
    void saveShowtimes(LineWriter& out) const;
    void loadShowtimes(LineReader& in);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
