#include "Subsystems.h"

namespace zorvane::sim {

// `goal N`: the main screen's Goal menu. The title screen comes up, the player clicks goal N
// in its list and presses "Play !" again, which re-applies that goal's starting figures;
// then the details box of the selected goal.
void addGoalCommands(CommandTable& t) {
    t["goal"] = {1, 1, [](CommandContext& c, const Args& a) {
                     const int n = a.integer(0);
                     if (n < 0 || n > c.game.goals.getLastGoal())
                         throw ScriptError("there is no goal " + std::to_string(n) +
                                           " in the list");
                     goalManager& goals = c.game.goals;
                     goals.selectGoal(n);
                     goals.startGoal(n);
                     goals.popUpInfo();
                 }};
}

void addGoalState(Game& game, nlohmann::json& state) {
    static const goal none{}; // before the goals are loaded
    const goalManager& goals = game.goals;
    const goal& g = goals.getGoals().empty() ? none : goals.getGoal(goals.getSelected());
    state["goal"] = {{"selected", goals.getSelected()},
                     {"achieved", g.getAchieved()},
                     {"type", g.getType()},
                     {"value", g.getValue()},
                     {"deadline", g.getDeadline()}};
    state["goalShown"] = game.goalShown;
}

} // namespace zorvane::sim
