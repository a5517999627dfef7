#include "Strategy.h"

namespace zorvane::lab {

std::vector<std::string> strategyNames() {
    return {"idle", "advisor", "random"};
}

std::unique_ptr<Strategy> makeStrategy(const std::string& name, std::uint64_t seed) {
    if (name == "idle")
        return makeIdleStrategy();
    if (name == "advisor")
        return makeAdvisorStrategy();
    if (name == "random")
        return makeRandomStrategy(seed);
    return nullptr;
}

} // namespace zorvane::lab
