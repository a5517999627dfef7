#include "movies/MovieManager.h"

namespace zorvane {

void MovieManager::initShowtimes() { }
void MovieManager::loadMovieList() { }
void MovieManager::releaseMovies() { }
void MovieManager::nextDayMovies() { }
void MovieManager::nextYearMovies() { }

} // namespace zorvane
