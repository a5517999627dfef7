// Fuzz target of movies.lst: the catalogue read at start-up, then booked and sold.
//
// The input is the program folder's movies.lst. A rich game starts on it (the catalogue is
// read and rolled, the first week's offer released), every movie on offer is bought and
// booked, the screens' texts are built, a day is played, the year's inflation runs, one
// movie is sold and the next week released. The movie sections are then saved, read into a
// fresh game and saved again, and must not change.
#include "FuzzSupport.h"
#include "SaveCompare.h"

#include "core/LineReader.h"

#include <sstream>

using namespace zorvane;
using namespace zorvane::fuzz;

namespace {

std::string saveMovieSections(const Game& game) {
    std::ostringstream text;
    LineWriter out(text);
    game.movies.saveMovies(out);
    game.movies.saveShowtimes(out);
    return text.str();
}

void loadMovieSections(Game& game, const std::string& text) {
    std::istringstream file(text);
    LineReader in(file, "movies section");
    std::string line;
    while (in.readLine(line)) {
        if (line == "<movies>")
            game.movies.loadMovies(in);
        else if (line == "<showtimes>")
            game.movies.loadShowtimes(in);
    }
}

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
    const FuzzFolder& folder = FuzzFolder::instance();
    static const bool trimmed = (folder.trimCatalogues(40), true);
    (void)trimmed;
    folder.write("movies.lst", data, size);
    std::string saved;
    FuzzGame game;
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
        saved = saveMovieSections(*game);
    });
    if (saved.empty())
        return 0;
    FuzzGame again;
    std::string savedAgain;
    try {
        startWithShippedMath(*again);
        loadMovieSections(*again, saved);
        savedAgain = saveMovieSections(*again);
    } catch (const std::exception& e) {
        finding(std::string("the movie sections the game saved do not load: ") + e.what());
    }
    const std::string difference = firstDifference(saved, savedAgain);
    if (!difference.empty())
        finding("movies saved, loaded and saved again differ: " + difference);
    return 0;
}
