#include "goals/goalManager.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

#include <fstream>

namespace zorvane {

// Free Play first, then the goals of goals.cfg in file order, so that the list index on the
// title screen is the goal's index. A missing goals.cfg is fatal: there is no fallback.
void goalManager::loadGoals() {
    lstGoals.clear();
    goals.assign(1, goal{});
    lastGoal = 0;
    goals[0].init(*this, "Free Play", "", 0, 0, "Play without any goals");
    const std::string path = game_.dataPath("goals.cfg");
    std::ifstream file = openTextFile(path);
    LineReader in(file, path);
    std::string line;
    while (in.readLine(line)) {
        if (toLower(line) != "<goal>")
            continue; // everything outside a goal is a comment
        lastGoal += 1;
        goals.emplace_back();
        goals.back().loadSelf(*this, in);
    }
}

void goalManager::addToList(const std::string& name) {
    lstGoals.push_back(name);
    game_.screen().refresh(View::GoalList);
}

namespace {

std::size_t checkedGoalIndex(int index, std::size_t count) {
    if (index < 0 || static_cast<std::size_t>(index) >= count)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: goal " + std::to_string(index));
    return static_cast<std::size_t>(index);
}

} // namespace

const goal& goalManager::getGoal(int index) const {
    return goals[checkedGoalIndex(index, goals.size())];
}

goal& goalManager::goalAt(int index) {
    return goals[checkedGoalIndex(index, goals.size())];
}

// Picking a goal in the list makes it the selected one and shows its description. A list
// with no line picked (-1) selects nothing, so "Play !" then keeps the goal in force.
void goalManager::selectGoal(int index) {
    if (index < 0 || index > lastGoal)
        return;
    selectedGoal = index;
    goalAt(index).showDetails(game_);
}

// "Play !" applies the starting figures of the goal at the list index (-1, no selection,
// does nothing). Pressed again through the Goal menu it re-applies them to the running game.
void goalManager::startGoal(int index) {
    if (index < 0 || index > lastGoal)
        return;
    goalAt(index).setInitValues(game_);
}

void goalManager::goalsNextDay() {
    checkGoal();
}

// The daily test. The deadline comes before the target: the last day of the deadline year is
// the last chance. Failing only drops the game back to Free Play; it is no loss.
void goalManager::checkGoal() {
    goal& g = goalAt(selectedGoal);
    if (g.getType().empty() || g.getAchieved())
        return;
    if (game_.calendar.getCurrentYear() > g.getDeadline()) {
        game_.gameLog("You have failed to achieve your goal in time", 0);
        selectedGoal = 0;
        return;
    }
    if (targetMet(g))
        goalAchieved();
}

// "purchase" reads the rent due, which is 0 once the building is bought. An unknown type
// matches nothing: such a goal can only run out of time.
bool goalManager::targetMet(const goal& g) {
    const std::string& type = g.getType();
    const double target = g.getValue();
    if (type == "funds")
        return game_.finances.getFunds() >= target;
    if (type == "rating")
        return game_.rating.getRating() >= target;
    if (type == "purchase")
        return game_.building.getRent() <= target;
    if (type == "debt")
        return game_.loans.getBalance() <= target;
    if (type == "creditscore")
        return game_.loans.getCreditScore() >= target;
    return false;
}

// The goal is reached: the picture, then the choice to play on. No leads to the quit
// question, whose Cancel still plays on; Yes plays on as free play with the goal kept reached.
void goalManager::goalAchieved() {
    goalAt(selectedGoal).setAchieved(true);
    game_.gameLog("You have achieved your goal!", 0);
    ++game_.goalShown;
    game_.screen().showGoal();
    if (game_.dialogs().ask("Would you like to continue playing?", Buttons::YesNo) == Answer::No)
        game_.quitGame();
}

// The clock does not stop for any of this: days may pass while the title screen stands.
void goalManager::showGoalInfo() {
    game_.screen().showTitle();
    popUpInfo();
}

void goalManager::popUpInfo() {
    goalAt(selectedGoal).popUpInfo(game_);
}

} // namespace zorvane
