#include "goals/GoalTexts.h"

#include "goals/goalManager.h"

namespace zorvane {

const std::vector<std::string>& goalList(const goalManager& goals) {
    return goals.listedNames();
}

} // namespace zorvane
