#include "goals/goal.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "goals/goalManager.h"
#include "session/Game.h"

namespace zorvane {

void goal::init(goalManager& list, const std::string& goalName, const std::string& goalType,
                double goalValue, int goalDeadline, const std::string& goalDesc) {
    name = goalName;
    type = goalType;
    value = goalValue;
    deadline = goalDeadline;
    desc = goalDesc;
    addToGoalList(list);
}

// Lines are key=value with the key before the first "=" (at least one character long);
// other lines and unknown keys are skipped. Any line beginning with "</" ends the goal.
// Bad numbers read as 0, so a mistyped deadline fails the goal in the second year.
void goal::loadSelf(goalManager& list, LineReader& in) {
    std::string line, key, text;
    while (in.readLine(line)) {
        if (line.rfind("</", 0) == 0)
            break;
        if (!splitKeyValue(line, key, text))
            continue;
        key = toLower(key);
        if (key == "name") {
            name = text;
        } else if (key == "type") {
            type = toLower(text);
        } else if (key == "value") {
            value = leadingNumber(text);
        } else if (key == "deadline") {
            const double d = roundHalfEven(leadingNumber(text));
            if (!(d >= -32768.0 && d <= 32767.0))
                throw GameError(GameError::Kind::Overflow, in.where() + "overflow: deadline " +
                                                               text + " does not fit 16 bits");
            deadline = static_cast<int>(d);
        } else if (key == "desc") {
            desc = text;
        } else if (key == "debt") {
            debt = text;
        } else if (key == "funds") {
            funds = text;
        } else if (key == "cs") {
            cs = numberText(leadingNumber(text));
        } else if (key == "payplan") {
            payplan = numberText(leadingNumber(text));
        }
    }
    addToGoalList(list);
}

bool goal::isGiven(const std::string& text) {
    return leadingNumber(text) > 0 || text == "0";
}

// Each figure goes through the operation the player would use: funds are set outright, the
// debt, score and payments fill in the bank's offer, one after the other, so an amount above
// the bank's maximum is cut by the score that stands at that moment.
void goal::setInitValues(Game& game) const {
    if (isGiven(funds))
        game.finances.setFunds(leadingNumber(funds));
    if (isGiven(debt))
        game.loans.setupLoan(leadingNumber(debt), 0, 0);
    if (isGiven(cs))
        game.loans.setupLoan(0, leadingNumber(cs), 0);
    if (isGiven(payplan) && leadingNumber(payplan) > 0)
        game.loans.setupLoan(0, 0, toInt16(leadingNumber(payplan)));
    // A cs or payplan key with an empty value counts here: it was read as the text "0".
    if (!cs.empty() && !debt.empty() && !payplan.empty())
        game.loans.startLoan();
}

void goal::showDetails(Game& game) const {
    game.screen().titleDetails(desc);
}

void goal::popUpInfo(Game& game) const {
    // The box's title, "Goal Details", has no place in the dialog port's message box.
    game.dialogs().ask(popUpText(), Buttons::Ok);
}

std::string goal::popUpText() const {
    const std::string nl = "\r\n";
    return "Goal name: " + name + nl + "Type: " + type + nl +
           "Value: " + digitsOnly(numberText(value)) + nl +
           "Deadline: " + digitsOnly(std::to_string(deadline)) + nl +
           "Achieved: " + (achieved ? "True" : "False") + nl + "Description:" + nl + desc;
}

void goal::addToGoalList(goalManager& list) const {
    list.addToList(name);
}

} // namespace zorvane
