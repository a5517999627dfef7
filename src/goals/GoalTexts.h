#pragma once
#include <string>
#include <vector>

namespace zorvane {

class goalManager;

// What the title screen's goal list shows (lstGoals): the goals' names, list index = goal
// index, Free Play first.
const std::vector<std::string>& goalList(const goalManager& goals);

} // namespace zorvane
