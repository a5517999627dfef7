#include "staff/position.h"

#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

namespace zorvane {

// No post pays less than the minimum wage: a lower wage is raised to it, with a message.
// This is the only guard; a saved game's wage is taken as it stands.
void position::setWage(double newWage) {
    const double minimum = game_->employees.getMinWage();
    if (newWage < minimum) {
        game_->gameLog("Cannot set wage below minimum wage, so set wage to minimum instead.", 0);
        newWage = minimum;
    }
    wage = newWage;
}

// The player's wage change. An empty answer (Cancel too) changes nothing; a text with no
// leading number is a wish for 0, which the clamp turns into the minimum.
void position::setWageInput() {
    const std::string answer = game_->dialogs().input("Enter new wage for position of " +
                                                          game_->employees.positionName(myNum),
                                                      "Set position wage", numberText(wage));
    if (!answer.empty())
        setWage(leadingNumber(answer));
    game_->employees.refreshPositions();
}

// The <position> block holds the wage only: holders come back through the employees' jobs,
// numbers from the order of the blocks.
void position::saveSelf(LineWriter& out) const {
    out << "<position>";
    out << "wage=" + numberTextSigned(wage);
    out << "</position>";
}

void position::loadSelf(LineReader& in) {
    std::string line, key, value;
    while (in.readLine(line)) {
        if (line.rfind("</", 0) == 0)
            break;
        if (!splitKeyValue(line, key, value))
            continue;
        if (toLower(key) == "wage")
            wage = leadingNumber(value);
    }
}

} // namespace zorvane
