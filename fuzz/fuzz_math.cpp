// Fuzz target of the math reader: the input is the math file the whole session runs on.
//
// The input is the program folder's math.txt. The real start-up reads it (a version question
// is answered Yes, so the rest of the file is read) and brings every subsystem up on its
// values, including the first day. Then a rich player hires the day's applicants, buys and
// books a movie, buys an arcade machine and a promotion, and plays three days, and "Reload
// math" reads the file again.
#include "FuzzSupport.h"

using namespace zorvane;
using namespace zorvane::fuzz;

namespace {

void playABit(Game& game) {
    game.startPlay(0);
    game.finances.setFunds(1e9);
    while (game.employees.candidateCount() > 0 && game.employees.employeeCount() < 7)
        game.employees.hireEmployee(1);
    game.employees.fillVacancies();
    if (game.movies.buyMoviesCount() > 0) {
        game.movies.buyMovie(1);
        for (int s = 1; s <= 8; ++s)
            game.movies.checkShowtime(s, true);
        game.movies.assignShowtimes(1);
    }
    if (!game.arcades.buyGames.empty())
        game.arcades.buyGame(1);
    game.promos.addPromo(0);
    for (int day = 0; day < 3; ++day)
        game.calendar.nextDay();
    game.reloadMath();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput("math.txt", data, size);
    FuzzGame game;
    game.dialogs.yesNo = Answer::Yes;
    return runInput([&] {
        game->startup();
        playABit(*game);
    });
}
