#pragma once
#include "core/Numbers.h"
#include "goals/goal.h"

#include <string>
#include <vector>

namespace zorvane {

class Game;

// The goals of goals.cfg below the Free Play entry 0, the one selected for this session and
// its daily test. The selected goal is not part of a saved game: it lives with the process.
class goalManager {
  public:
    explicit goalManager(Game& game) : game_(game) {}

    // Start-up: Free Play, then every <goal> block of goals.cfg in file order.
    void loadGoals();
    // A click on the title screen's goal list.
    void selectGoal(int index);
    // The title screen's "Play !": the goal's starting figures.
    void startGoal(int index);
    // Every day: the selected goal's deadline, then its test.
    void goalsNextDay();
    // The main screen's Goal menu: the title screen, then the details of the selected goal.
    void showGoalInfo();
    // The "Goal Details" box of the selected goal.
    void popUpInfo();

    // goal::addToGoalList: a name joins the title screen's list.
    void addToList(const std::string& name);

    const std::vector<goal>& getGoals() const { return goals; }
    const goal& getGoal(int index) const;
    goal& selected() { return goalAt(selectedGoal); }
    int getSelected() const { return selectedGoal; }
    int getLastGoal() const { return lastGoal; }
    // The names added to the title screen's list, in order.
    const std::vector<std::string>& listedNames() const { return lstGoals; }

  private:
    void checkGoal();
    bool targetMet(const goal& g);
    void goalAchieved();
    goal& goalAt(int index);

    Game& game_;
    std::vector<goal> goals; // 0 is always Free Play
    Int16 lastGoal;          // the number of the last goal
    Int16 selectedGoal;      // 0 at start
    std::vector<std::string> lstGoals;
};

} // namespace zorvane
