#include "money/Finances.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

namespace zorvane {

void Finances::setFunds(double amount) {
    funds = amount;
    game_.screen().refresh(View::Finances);
}

bool Finances::spend(double amount, std::string_view department) {
    if (funds - amount < 1) {
        game_.screen().refresh(View::Finances);
        return false;
    }
    funds -= amount; // the summary is marked stale once, below
    if (sameText(department, "promotions"))
        deppromo += amount;
    else if (sameText(department, "labor"))
        deplabor += amount;
    else if (sameText(department, "movie"))
        depmovie += amount;
    else if (sameText(department, "arcades"))
        deparcade += amount;
    else if (sameText(department, "concessions"))
        depconcessions += amount;
    else if (sameText(department, "loan"))
        deploan += amount;
    totalspent += amount;
    game_.screen().refresh(View::Finances);
    return true;
}

void Finances::earn(double amount, std::string_view department) {
    funds += amount; // the summary is marked stale once, below
    totalincome += amount;
    // Picked by length first: earn runs for every play and every snack sold.
    switch (department.size()) {
    case 5:
        if (sameText(department, "movie"))
            incdepmovie += amount;
        break;
    case 6:
        if (sameText(department, "arcade"))
            incdeparcade += amount;
        break;
    case 11:
        if (sameText(department, "concessions"))
            incdepconcessions += amount;
        break;
    default:
        break;
    }
    game_.screen().refresh(View::Finances);
}

void Finances::financesNextMonth(int month) {
    // The month comes as 1 to 12, so the year's month ends land on 0 to 11; a 0 wraps to 11.
    const int index = month - 1 < 0 ? 11 : month - 1;
    histfunds.at(static_cast<std::size_t>(index)) = funds;
}

double Finances::getHistFunds(int index) const {
    if (index < 0 || index > 12)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: histfunds(" + std::to_string(index) + ")");
    return histfunds[static_cast<std::size_t>(index)];
}

std::string Finances::getProfit() const {
    return formatMoney(totalincome - totalspent);
}

void Finances::saveFinances(LineWriter& out) const {
    out << "<finances>";
    out << "funds=" + numberText(funds);
    out << "totalspent=" + numberText(totalspent);
    out << "totalincome=" + numberText(totalincome);
    // Index 0 is not written and index 12 is: after a load the first month of the year
    // keeps whatever stood there before. Saved games depend on this, so it stays.
    for (int i = 1; i <= 12; ++i)
        out << "histfunds(" + digitsOnly(std::to_string(i)) + ")=" + numberText(histfunds[i]);
    out << "deppromo=" + numberText(deppromo);
    out << "deplabor=" + numberText(deplabor);
    out << "depmovie=" + numberText(depmovie);
    out << "deparcade=" + numberText(deparcade);
    out << "depconcessions=" + numberText(depconcessions);
    out << "deploan=" + numberText(deploan);
    out << "incdepmovie=" + numberText(incdepmovie);
    out << "incdeparcade=" + numberText(incdeparcade);
    out << "incdepconcessions=" + numberText(incdepconcessions);
    out << "</finances>";
}

void Finances::loadFinances(LineReader& in) {
    readSection(in, [this, &in](const std::string& key, const std::string& value) {
        // Unlike the other sections, keys are case sensitive here.
        const auto v = [&value] { return leadingNumber(value); };
        if (key.compare(0, 9, "histfunds") == 0) {
            const std::size_t open = key.find('(');
            const std::string inside = open == std::string::npos
                                           ? ""
                                           : key.substr(open + 1, key.find(')', open) - open - 1);
            const int index = toInt16(leadingNumber(inside));
            if (index < 0 || index > 12)
                throw GameError(GameError::Kind::Bounds, in.where() + "histfunds index " +
                                                             std::to_string(index) +
                                                             " out of range");
            histfunds[static_cast<std::size_t>(index)] = v();
        } else if (key == "funds") {
            funds = v();
        } else if (key == "totalspent") {
            totalspent = v();
        } else if (key == "totalincome") {
            totalincome = v();
        } else if (key == "deppromo") {
            deppromo = v();
        } else if (key == "deplabor") {
            deplabor = v();
        } else if (key == "depmovie") {
            depmovie = v();
        } else if (key == "deparcade") {
            deparcade = v();
        } else if (key == "depconcessions") {
            depconcessions = v();
        } else if (key == "deploan") {
            deploan = v();
        } else if (key == "incdepmovie") {
            incdepmovie = v();
        } else if (key == "incdeparcade") {
            incdeparcade = v();
        } else if (key == "incdepconcessions") {
            incdepconcessions = v();
        }
    });
    game_.screen().refresh(View::Finances);
}

} // namespace zorvane
