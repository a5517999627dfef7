#pragma once
#include "Simulator.h"

#include <memory>
#include <ostream>
#include <string>

namespace zorvane::bench {

// A full theater for the benchmarks, built through the simulator's commands as a player
// would: seven positions filled plus three idle staff, 8 showtimes booked with 5 movies,
// the room full of machines, every concession item stocked, promotions at the cap and a
// running loan. Funds are set high so that no purchase is refused.
class Theater {
  public:
    explicit Theater(std::uint64_t seed = 1);
    Game& game() { return simulator_->game(); }
    void run(const std::string& line) { simulator_->runLine(line, 0); }
    // Every show sells one ticket: the price drives demand to its floor, which sends the
    // largest crowd to the arcade and the stand (visitors fall as the audience grows).
    void singleTicketDays();

  private:
    std::ostream nowhere_{nullptr};
    std::unique_ptr<sim::Simulator> simulator_;
};

} // namespace zorvane::bench
