// Fuzz target of goals.cfg: the goals read at start-up, each one picked and played.
//
// The input is the program folder's goals.cfg, read as the game reads it at start-up: after
// the math file, the default values, the promotions and the job positions, before the
// concessions and the lists of movies, employees and arcade games. Every goal of the list
// is then picked on the title screen, started (its starting funds, debt, credit score and
// payments go through the bank as "Play !" applies them), tested for a day and shown in the
// "Goal Details" box.
#include "FuzzSupport.h"

using namespace zorvane;
using namespace zorvane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzFolder& folder = FuzzFolder::instance();
    folder.write("goals.cfg", data, size);
    FuzzGame game;
    return runInput([&] {
        Game& g = *game;
        g.math = shippedMath();
        g.finances.setFunds(g.math.initfunds);
        g.loans.loansSetDefaults();
        g.building.initBuilding();
        g.rating.ratingSetDefaults();
        g.goals.loadGoals();
        for (int index = 0; index <= g.goals.getLastGoal(); ++index) {
            g.goals.selectGoal(index);
            g.goals.startGoal(index);
            g.goals.goalsNextDay();
            g.goals.popUpInfo();
            g.goals.showGoalInfo();
        }
    });
}
