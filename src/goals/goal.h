#pragma once
#include "core/Numbers.h"

#include <string>

namespace zorvane {

class Game;
class LineReader;
class goalManager;

// One goal of goals.cfg: which figure of the game is tested ("funds", "rating", "purchase",
// "debt", "creditscore", or none), its target, the last year in which it can be reached,
// and the figures the game may start with.
class goal {
  public:
    void setAchieved(bool reached) { achieved = reached; }
    bool getAchieved() const { return achieved; }
    const std::string& getType() const { return type; }
    double getValue() const { return value; }
    int getDeadline() const { return deadline; }
    const std::string& getName() const { return name; }
    const std::string& getDesc() const { return desc; }
    const std::string& getDebt() const { return debt; }
    const std::string& getFunds() const { return funds; }
    const std::string& getCs() const { return cs; }
    const std::string& getPayplan() const { return payplan; }

    // Fills the goal in (the Free Play entry) and puts it on the title screen's list.
    void init(goalManager& list, const std::string& goalName, const std::string& goalType,
              double goalValue, int goalDeadline, const std::string& goalDesc);
    // Reads the lines of one <goal> block up to its closing line, then lists the goal.
    void loadSelf(goalManager& list, LineReader& in);
    // Applies the starting figures that were really given: funds, debt, credit score and
    // number of payments; with debt, score and payments all present the loan starts at once.
    void setInitValues(Game& game) const;
    // The title screen's status box shows the description of the picked goal.
    void showDetails(Game& game) const;
    // The "Goal Details" box.
    void popUpInfo(Game& game) const;
    // The text of that box, line by line with CR LF between.
    std::string popUpText() const;

    // A starting figure counts as given when its leading number is above 0 or it is exactly
    // the text "0": empty texts, negative numbers and other spellings of zero are skipped.
    static bool isGiven(const std::string& text);

  private:
    void addToGoalList(goalManager& list) const;

    std::string name;
    std::string type; // lower-cased on reading; empty: nothing is tested
    double value = 0;
    Int16 deadline; // the last currentyear in which the goal can be reached
    std::string desc;
    bool achieved = false;
    std::string debt;    // empty: none given
    std::string funds;   // empty: none given
    std::string cs;      // the leading number printed back to text; empty when absent
    std::string payplan; // the same
};

} // namespace zorvane
