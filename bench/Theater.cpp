#include "Theater.h"

namespace zorvane::bench {

Theater::Theater(std::uint64_t seed) {
    sim::SimOptions options;
    options.dataDir = ZORVANE_SOURCE_DATA;
    options.seed = seed;
    options.quiet = true;
    simulator_ = std::make_unique<sim::Simulator>(options, nowhere_);
    simulator_->startup();
    Game& g = game();
    run("loan 20000 24");
    g.finances.setFunds(1e8);
    // The markets offer a few titles a week or a month: buy over the first months until
    // the room is full and five movies are owned.
    auto full = [&] {
        return g.arcades.getMachineCount() >= g.math.arcademax && g.movies.myMoviesCount() >= 5;
    };
    while (!full()) {
        while (!g.arcades.buyGames.empty() && g.arcades.getMachineCount() < g.math.arcademax)
            run("buygame 1");
        while (g.movies.buyMoviesCount() > 0 && g.movies.myMoviesCount() < 5)
            run("buymovie 1");
        if (!full())
            for (int d = 0; d < 7; ++d)
                g.calendar.nextDay();
        g.finances.setFunds(1e8);
    }
    for (int i = 0; i < 10; ++i)
        run("hire 1");
    // Fill every post still empty with an idle member of staff.
    for (int post = 1; post <= 7; ++post) {
        if (g.employees.getPosition(post).getMyEmployee() >= 1)
            continue;
        for (int e = 1; e <= g.employees.employeeCount(); ++e) {
            if (g.employees.getEmployee(e).getMyJob() == 0) {
                run("assign " + std::to_string(e) + " " + std::to_string(post));
                break;
            }
        }
    }
    run("show 1 1 6");
    run("show 2 2 7");
    run("show 3 3 8");
    run("show 4 4");
    run("show 5 5");
    for (int item = 0; item < 5; ++item) // double orders, as the advisor teaches
        run("stock " + std::to_string(item) + " " + std::to_string(2 * g.math.concessbuy[item]));
    for (int medium = 4; medium >= 0; --medium)
        for (int n = 0; n < 50; ++n)
            run("promo add " + std::to_string(medium));
    g.calendar.nextDay(); // the month's stock and the first promotion charge
    g.finances.setFunds(1e8);
}

void Theater::singleTicketDays() {
    run("ticket 0 9999");
    run("ticket 1 9999");
    run("ticket 2 9999");
}

} // namespace zorvane::bench
