#include "Strategy.h"

namespace zorvane::lab {

namespace {

// Does nothing after "Play !": the theater nobody runs.
class IdleStrategy : public Strategy {
public:
    void beforeDay(Game&) override {}
};

} // namespace

std::vector<std::string> strategyNames() { return {"idle"}; }

std::unique_ptr<Strategy> makeStrategy(const std::string& name) {
    if (name == "idle")
        return std::make_unique<IdleStrategy>();
    return nullptr;
}

} // namespace zorvane::lab
