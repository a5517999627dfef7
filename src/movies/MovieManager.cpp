#include "movies/MovieManager.h"

namespace zorvane {

void MovieManager::initShowtimes() { }
void MovieManager::loadMovieList() { }
void MovieManager::releaseMovies() { }
void MovieManager::nextDayMovies() { }
void MovieManager::nextYearMovies() { }
void MovieManager::saveMovies(LineWriter&) const { }
void MovieManager::loadMovies(LineReader&) { }
void MovieManager::saveShowtimes(LineWriter&) const { }
void MovieManager::loadShowtimes(LineReader&) { }

} // namespace zorvane
