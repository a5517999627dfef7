#include "Subsystems.h"

namespace zorvane::sim {

namespace {

using nlohmann::json;

employeeManager& staff(CommandContext& c) {
    return c.game.employees;
}

json employeeState(const employee& e) {
    return {{"num", static_cast<int>(e.num)},
            {"name", e.name},
            {"exp", static_cast<int>(e.exp)},
            {"rel", static_cast<int>(e.rel)},
            {"amb", static_cast<int>(e.amb)},
            {"anger", static_cast<int>(e.anger)},
            {"angerreason", e.angerreason},
            {"job", static_cast<int>(e.job)},
            {"trainingcost", e.trainingcost},
            {"seniority", static_cast<int>(e.seniority)},
            {"paid", e.paid},
            {"sickdays", static_cast<int>(e.sickdays)},
            {"daysworked", e.daysworked},
            {"daysemployed", e.daysemployed},
            {"fillingin", e.fillingin},
            {"myPicSkin", static_cast<int>(e.myPicSkin)},
            {"myPicGlasses", static_cast<int>(e.myPicGlasses)},
            {"myPicHair", static_cast<int>(e.myPicHair)}};
}

} // namespace

void addStaffCommands(CommandTable& t) {
    // The "Hire" button of a row of the hire table (rows 1 to 10; an empty row has none).
    t["hire"] = {1, 1, [](CommandContext& c, const Args& a) {
                     const int row = a.integer(0);
                     if (row < 1 || row > 10)
                         throw ScriptError("the hire table has rows 1 to 10");
                     const int filled = staff(c).candidateCount();
                     if (filled > 0 && row > filled)
                         throw ScriptError("row " + std::to_string(row) +
                                           " of the hire table is empty today");
                     staff(c).hireEmployee(row);
                 }};
    t["fire"] = {1, 1,
                 [](CommandContext& c, const Args& a) { staff(c).fireEmployee(a.integer(0)); }};
    // Select entry POS of the details panel's position list, then "Assign to position".
    t["assign"] = {2, 2, [](CommandContext& c, const Args& a) {
                       const int emp = a.integer(0);
                       const int pos = a.integer(1);
                       if (pos < 0 || pos > 7)
                           throw ScriptError("the position list has entries 0 to 7");
                       if (emp < 0 || emp > staff(c).employeeCount())
                           throw ScriptError("there is no employee " + std::to_string(emp) +
                                             " on the staff");
                       staff(c).selectPosition(pos);
                       staff(c).assignEmployee(emp, pos);
                   }};
    // A click on the pay rate of a post: the input box takes the queued `input`.
    t["wage"] = {1, 1, [](CommandContext& c, const Args& a) {
                     const int pos = a.integer(0);
                     if (pos < 1 || pos > 7)
                         throw ScriptError("the chart has pay rates 1 to 7");
                     staff(c).getPosition(pos).setWageInput();
                 }};
}

void addStaffState(Game& game, json& state) {
    const employeeManager& s = game.employees;
    state["minWage"] = s.minWage;
    state["monthsSinceRaise"] = static_cast<int>(s.monthsSinceRaise);
    json positions = json::array();
    for (int p = 1; p <= 7; ++p)
        positions.push_back({{"myEmployee", s.getPosition(p).getMyEmployee()},
                             {"wage", s.getPosition(p).getWage()}});
    state["positions"] = positions;
    json employees = json::array();
    for (int i = 1; i <= s.employeeCount(); ++i)
        employees.push_back(employeeState(s.getEmployee(i)));
    state["employees"] = employees;
    json hire = json::array();
    for (int r = 1; r <= s.candidateCount(); ++r) {
        const employee& e = s.getCandidate(r);
        hire.push_back({{"name", e.name},
                        {"exp", static_cast<int>(e.exp)},
                        {"rel", static_cast<int>(e.rel)},
                        {"amb", static_cast<int>(e.amb)},
                        {"trainingcost", e.trainingcost}});
    }
    state["hire"] = hire;
}

} // namespace zorvane::sim
