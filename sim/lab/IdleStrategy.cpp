#include "Strategy.h"

namespace zorvane::lab {

namespace {

// Does nothing after "Play !": the theater nobody runs. Rent and the snack stock eat the
// starting money until the landlord ends the game.
class IdleStrategy : public Strategy {
  public:
    void beforeDay(Game&) override {}
};

} // namespace

std::unique_ptr<Strategy> makeIdleStrategy() {
    return std::make_unique<IdleStrategy>();
}

} // namespace zorvane::lab
