// Fuzz target of movies.lst: the catalogue read at start-up, then booked and sold.
//
// The input is the program folder's movies.lst. A rich game starts on it (the catalogue is
// read and rolled, the first week's offer released), every movie on offer is bought and
// booked, the screens' texts are built, a day is played, the year's inflation runs, one
// movie is sold and the next week released. The movie sections are then saved, read into a
// fresh game and saved again, and must not change: the titles travel through the save.
#include "FuzzSupport.h"

using namespace zorvane;
using namespace zorvane::fuzz;

namespace {

void bookEverything(Game& game) {
    MovieManager& movies = game.movies;
    while (movies.buyMoviesCount() > 0)
        movies.buyMovie(1);
    for (int s = 1; s <= 8; ++s) {
        if (movies.myMoviesCount() == 0)
            break;
        movies.checkShowtime(s, true);
        movies.assignShowtimes((s - 1) % movies.myMoviesCount() + 1);
    }
    movies.showBuyMovies();
    movies.showMyMovies();
    movies.showShowtimes();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput("movies.lst", data, size);
    FuzzGame game;
    bool played = false;
    runInput([&] {
        startRichGame(*game);
        bookEverything(*game);
        game->calendar.nextDay();
        game->movies.nextYearMovies();
        if (game->movies.myMoviesCount() > 0) {
            game->movies.selectMyMovie(0);
            game->movies.sellMovie();
        }
        game->movies.releaseMovies();
        bookEverything(*game);
        played = true;
    });
    if (played)
        checkSectionsRoundTrip(*game, {"<movies>", "<showtimes>"}, "movie sections");
    return 0;
}
